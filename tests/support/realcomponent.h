// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "parameteredit.h"
#include "realcombcomponent.h"
#include "toolkitform.h"

#include <QSignalSpy>

/// A real component in a form of its own, beside one that can take the focus, and what it reports.
template<typename Component>
struct RealComponentOf
{
    template<typename Number>
    RealComponentOf(ENUM_UNIT_TYPE unitType, Number value, Number limit, Number otherLimit,
                    Number resolution)
        : component(form.add(new Component(&form, "TITLE", false, "V", unitType, value, limit,
                                           otherLimit, resolution)))
        , other(form.add(new appPlugins::RealCombComponent(&form, "OTHER", false, nullptr,
                                                           UNIT_TIME, 1e-5, 1e-6, 1, 1e-9)))
        , changed(component,
                  QOverload<double>::of(&appPlugins::CPluginCombComponentBase::paraChanged))
        , illegal(component, &appPlugins::RealCombComponent::sgnRealParameterIllegal)
        , focusIn(component, &appPlugins::RealCombComponent::sgn_editorFocusIn)
        , focusOut(component, &appPlugins::RealCombComponent::sgn_editorFocusOut)
    {
        component->setObjectName(QStringLiteral("HighLevel"));
        form.start();
    }

    Component* operator->() const { return component; }

    appPlugins::ParameterTextEdit* digits() const
    {
        return component->template findChild<appPlugins::ParameterTextEdit*>();
    }

    appPlugins::CUnit* prefix() const
    {
        return component->template findChild<appPlugins::CUnit*>();
    }

    /// Digits and prefix as a user sees them.
    QString shown() const { return digits()->toPlainText() + prefix()->text(); }

    /// Taps the digits and puts the cursor on the character at @p position.
    void focusOn(int position)
    {
        FrontPanel::tap(digits()->viewport());
        QTextCursor cursor = digits()->textCursor();
        cursor.setPosition(position);
        digits()->setTextCursor(cursor);
    }

    QVector<double> changes() const { return values(changed); }
    QVector<double> illegalValues() const { return values(illegal); }
    bool isSilent() const { return changed.isEmpty() && illegal.isEmpty(); }

    /// To twelve digits, which is finer than any resolution and free of rounding noise.
    static QVector<double> values(const QSignalSpy& spy)
    {
        QVector<double> result;
        for (const QList<QVariant>& arguments : spy)
            result.append(QString::number(arguments.first().toDouble(), 'g', 12).toDouble());
        return result;
    }

    ToolkitForm form;
    Component* component;
    appPlugins::RealCombComponent* other;
    QSignalSpy changed;
    QSignalSpy illegal;
    QSignalSpy focusIn;
    QSignalSpy focusOut;
};

/// Takes numbers of any kind.
struct RealComponent : RealComponentOf<appPlugins::RealCombComponent>
{
    RealComponent(ENUM_UNIT_TYPE unitType, double value, double limit, double otherLimit,
                  double resolution)
        : RealComponentOf(unitType, value, limit, otherLimit, resolution)
    {}
};
