// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "editorhost.h"

#include "cplugincombcomponent.h"
#include "frontpanelkeys.h"

#include <QString>
#include <QTest>

/// The numbers of an editor, their limits and the warning of a number that exceeds them.
namespace EditorNumbers {

/// A number as (maximum, minimum), to a hundredth of a millivolt: free of rounding noise.
inline QString limits(const appPlugins::RealCombComponent* number)
{
    double max = 0;
    double min = 0;
    number->getMaxMinValue(max, min);
    return QStringLiteral("%1 %2").arg(QString::number(max, 'f', 5), QString::number(min, 'f', 5));
}

inline QString limits(double max, double min)
{
    return QStringLiteral("%1 %2").arg(QString::number(max, 'f', 5), QString::number(min, 'f', 5));
}

inline QString warningText(const char* value, const char* range)
{
    return QStringLiteral("ARBID_ERROR_CODE_S0207(%1) \nSTR_ID_VALID_RANGE   (%2)")
        .arg(QString::fromUtf8(value), QString::fromUtf8(range));
}

inline void enterLevels(const EditorHost& host, const char* high, const char* low)
{
    host.enter(host.highLevel(), QLatin1String(high), QT_KEY_X1);
    host.enter(host.lowLevel(), QLatin1String(low), QT_KEY_X1);
    QCOMPARE(host.highLevel()->get(), QString(QLatin1String(high)).toDouble());
    QCOMPARE(host.lowLevel()->get(), QString(QLatin1String(low)).toDouble());
}

} // namespace EditorNumbers
