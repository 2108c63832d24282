// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pluginsTranslation.h"
#include "translated.h"

#include <QString>

namespace appPlugins {

/// What the user is told of a value outside its range; numbers in the base unit.
inline QString rangeWarning(double illegalValue, double min, double max)
{
    const auto number = [](double value) { return QString::number(value, 'g', 6); };
    return translated(TR_ARBID_ERROR_CODE_S0207) + QLatin1Char('(') + number(illegalValue) +
           QLatin1String(") \n") + translated(TR_STR_ID_VALID_RANGE) + QLatin1String("   (") +
           number(min) + QStringLiteral(" \u2014 ") + number(max) + QLatin1Char(')');
}

} // namespace appPlugins
