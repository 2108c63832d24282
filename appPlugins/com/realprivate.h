// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "apptypes.h"

#include <QString>

namespace appPlugins {

/// Description of one column of real values; numbers are in the base unit of the column. The text
/// is the default value in engineering notation; that the two agree is the author's business.
struct RealPrivate
{
    ENUM_UNIT_TYPE unitType = UNIT_EMPTY;   ///< kind of quantity; chooses the prefixes
    double dbValue = 0;                     ///< default value of a new cell
    QString strValue = QStringLiteral("0"); ///< text of a new cell
    double dbAbsoluteMax = 1.0;             ///< largest value
    double dbAbsoluteMin = 0;               ///< smallest value
    double resolution = 0.001;              ///< step to which values are rounded; a power of ten
};

} // namespace appPlugins
