// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editorhost.h"
#include "logcapture.h"
#include "setupfiles.h"

#include <QDialog>
#include <QMap>
#include <QStackedWidget>

/// Setups in tests: made from the one that a new editor saves, and read off the editor.
namespace Setups {

/// The setup that a new editor saves, as it stands in the file.
const char NewSetup[] = R"({
    "multiple pulses": {
        "load impedance": 50,
        "pulse gap": {
            "default value": 1e-05,
            "maximum": 0.00015,
            "minimum": 2e-08
        },
        "pulse leading": 0,
        "pulse numbers": {
            "maximum": 30,
            "minimum": 2,
            "value": 2
        },
        "pulse trailing": 0,
        "pulse width": {
            "default value": 2e-06,
            "maximum": 0.00015,
            "minimum": 2e-08
        },
        "trigger delay": {
            "maximum": 0.00015,
            "minimum": 1e-06,
            "value": 1e-05
        },
        "trigger slope": 0,
        "trigger source": 0,
        "trigger timer": {
            "maximum": 500,
            "minimum": 2e-06,
            "value": 0.001
        },
        "voltage": {
            "amplitude": 2.5,
            "offset": 0,
            "type": 1
        },
        "width/gap": [
            {
                "gap": "10.000u",
                "width": "2.000u"
            },
            {
                "gap": "10.000u",
                "width": "2.000u"
            }
        ]
    }
}
)";

inline QJsonObject newPulses()
{
    return SetupFiles::pulsesOf(NewSetup);
}

inline QString key(const char* name)
{
    return QLatin1String(name);
}

/// The pulses of a new editor with one number changed: "voltage", "amplitude" or, for a member that
/// is no object, "trigger slope", "".
inline QJsonObject changed(QJsonObject pulses, const char* member, const char* inner,
                           const QJsonValue& value)
{
    QJsonObject object = pulses.value(key(member)).toObject();
    object.insert(key(inner), value);
    pulses.insert(key(member), *inner == '\0' ? value : QJsonValue(object));
    return pulses;
}

inline QJsonObject withLevels(const QJsonObject& pulses, double amplitude, double offset)
{
    return changed(changed(pulses, "voltage", "amplitude", amplitude), "voltage", "offset", offset);
}

inline QJsonObject withLoad(const QJsonObject& pulses, const QJsonValue& ohms)
{
    return changed(pulses, "load impedance", "", ohms);
}

inline QJsonObject row(const char* width, const char* gap)
{
    return {{key("width"), key(width)}, {key("gap"), key(gap)}};
}

inline QJsonArray rows(int count)
{
    QJsonArray array;
    for (int i = 0; i < count; ++i)
        array.append(row("2.000u", "10.000u"));
    return array;
}

inline QString outOfRange(const char* value, const char* min, const char* max)
{
    return QStringLiteral("ARBID_ERROR_CODE_S0207(%1) \nSTR_ID_VALID_RANGE   (%2 \u2014 %3)")
        .arg(key(value), key(min), key(max));
}

inline QString volts(const appPlugins::RealCombComponent* level)
{
    return QString::number(level->get(), 'f', 4);
}

inline QString levels(const EditorHost& host)
{
    return volts(host.highLevel()) + QLatin1Char(' ') + volts(host.lowLevel());
}

inline QString limits(const appPlugins::RealCombComponent* component)
{
    double max = 0;
    double min = 0;
    component->getMaxMinValue(max, min);
    return QStringLiteral("%1 to %2").arg(min, 0, 'f', 4).arg(max, 0, 'f', 4);
}

inline QString page(const EditorHost& host)
{
    auto* stack = host.slope()->parentWidget();
    while (qobject_cast<QStackedWidget*>(stack) == nullptr)
        stack = stack->parentWidget();
    return QString::number(qobject_cast<QStackedWidget*>(stack)->currentIndex());
}

inline QString tableText(const EditorHost& host)
{
    QStringList texts;
    for (int i = 0; i < host.table()->model()->rowCount(); ++i)
        texts.append(host.cell(i, 0) + QLatin1Char('/') + host.cell(i, 1));
    return texts.join(QLatin1Char(' '));
}

/// All that a setup sets, each by its name.
inline QMap<QString, QString> everything(const EditorHost& host)
{
    return {{key("count"), QString::number(host.count()->get())},
            {key("levels"), levels(host)},
            {key("delay"), QString::number(host.delay()->get(), 'g', 9)},
            {key("source"), QString::number(host.source()->get())},
            {key("page"), page(host)},
            {key("slope"), QString::number(host.slope()->get())},
            {key("timer"), QString::number(host.timer()->get(), 'g', 9)},
            {key("load"), QString::number(host.load()->get())},
            {key("table"), tableText(host)}};
}

/// Runs something in a new editor on the screen, with nothing in the host's record.
inline void inEditor(const std::function<void(const EditorHost&)>& inside)
{
    const LogCapture log;
    EditorHost host;
    host.show();
    host.exec([&] {
        EditorHost::record().warnings.clear();
        inside(host);
    });
}

inline QStringList logLinesWith(const char* text)
{
    return LogCapture::messages().filter(key(text));
}

} // namespace Setups
