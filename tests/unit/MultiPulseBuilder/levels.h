// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "multipulseeditorprivate.h"

#include "cplugincombcomponent.h"
#include "devicetable.h"
#include "frontpanel.h"
#include "hostcallbacks.h"
#include "logcapture.h"
#include "multipulseeditor.h"

#include <QComboBox>
#include <QListView>

#include <cmath>
#include <memory>

/// Levels and their ranges as readable texts.
namespace LevelText {

inline QString text(const char* latin1)
{
    return QString::fromLatin1(latin1);
}

/// To a nanovolt, free of rounding noise and of the sign of zero.
inline QString number(double volts)
{
    return QString::number(std::round(volts * 1e9) / 1e9 + 0.0, 'g', 12);
}

inline QString quantity(const char* name, double value, double min, double max)
{
    return QStringLiteral("%1 %2 (%3, %4)")
        .arg(QLatin1String(name), number(value), number(min), number(max));
}

/// "A 2.5, O 0 (-3.75, 3.75), H 1.25 (-4.999, 5), L -1.25 (-5, 4.999)"
inline QString shown(const MultiPulseEditorPrivate& model)
{
    return QStringLiteral("A %1, %2, %3, %4")
        .arg(number(model.m_dbAmplitude),
             quantity("O", model.m_dbOffset, model.m_dbMinOffset, model.m_dbMaxOffset),
             quantity("H", model.m_dbHighLevel, model.m_dbMinHighLevel, model.m_dbMaxHighLevel),
             quantity("L", model.m_dbLowLevel, model.m_dbMinLowLevel, model.m_dbMaxLowLevel));
}

inline QString shown(const char* name, const appPlugins::RealCombComponent* component)
{
    double max = 0;
    double min = 0;
    component->getMaxMinValue(max, min);
    return quantity(name, component->get(), min, max);
}

/// What the four quantities and their ranges look like in the log.
inline QString body(const char* amplitude, const char* offset, const char* high, const char* low)
{
    return QStringLiteral("\n m_dbAmplitude %1 \n m_dbOffset %2 \n m_dbHighLevel %3 "
                          "\n m_dbLowLevel %4 \n++++++++++++++++++++++++++++++++++++++++++\n")
        .arg(QLatin1String(amplitude), QLatin1String(offset), QLatin1String(high),
             QLatin1String(low));
}

/// The last line of the log that holds @p title.
inline QString lastLine(const char* title)
{
    const QStringList lines = LogCapture::messages().filter(QLatin1String(title));
    return lines.value(lines.size() - 1);
}

} // namespace LevelText

/// A window for one model family, and a level model of the test's own that drives its components.
/// The window has a model, too, which speaks by the log alone.
struct Levels
{
    enum Load { Ohm50, HighZ };

    explicit Levels(int family)
    {
        warnings().clear();
        g_warningMessage = &Levels::warn;
        g_currentDeviceType = deviceFamilies().at(family);
        editor = std::make_unique<MultiPulseEditor>(nullptr);
        high = editor->findChild<appPlugins::RealCombComponent*>(QStringLiteral("HighLevel"));
        low = editor->findChild<appPlugins::RealCombComponent*>(QStringLiteral("LowLevel"));
        load = editor->findChildren<appPlugins::ComboBoxCombComponent*>().value(2);
        model = std::make_unique<MultiPulseEditorPrivate>();
        model->q_ptr = editor.get();
    }
    ~Levels()
    {
        model.reset();
        editor.reset();
        g_warningMessage = nullptr;
    }
    Levels(const Levels&) = delete;
    Levels& operator=(const Levels&) = delete;

    /// Levels and ranges that the user sees.
    QString components() const
    {
        return LevelText::shown("H", high) + QLatin1String(", ") + LevelText::shown("L", low);
    }

    /// The level model as it starts in a window, with the levels shown in the components.
    void start(Load startLoad)
    {
        editor->slt_LoadImpChanged(startLoad);
        model->initMembers();
    }

    /// Puts both levels into the components, as a program does.
    void setLevels(double highLevel, double lowLevel) const
    {
        for (appPlugins::RealCombComponent* component : {high, low})
            component->setMaxMinValue(-100, 100);
        high->set(highLevel);
        low->set(lowLevel);
    }

    bool show() const
    {
        editor->show();
        const bool active = QTest::qWaitForWindowActive(editor.get());
        FrontPanel::settle();
        return active;
    }

    static void enter(const appPlugins::RealCombComponent* component, const char* volts)
    {
        FrontPanel::tap(component->focusProxy());
        FrontPanel::type(QString::fromLatin1(volts));
        FrontPanel::press(QT_KEY_X1);
    }

    void choose(Load wanted) const
    {
        auto* box = load->findChild<QComboBox*>();
        FrontPanel::tap(box);
        const QAbstractItemView* list = box->view();
        FrontPanel::tap(list->viewport(),
                        list->visualRect(list->model()->index(wanted, 0)).center());
    }

    /// What the host was asked to tell.
    static QStringList& warnings()
    {
        static QStringList list;
        return list;
    }

    static int warn(QString text)
    {
        warnings().append(text);
        return 0;
    }

    LogCapture log;
    std::unique_ptr<MultiPulseEditor> editor;
    std::unique_ptr<MultiPulseEditorPrivate> model;
    appPlugins::RealCombComponent* high;
    appPlugins::RealCombComponent* low;
    appPlugins::ComboBoxCombComponent* load;
};
