// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// A value as a person reads it: an engineering prefix and the unit, and as many decimals as it
/// needs, at least @p fewest and at most six: "1.000 MHz", "12.345678 kHz". Infinity is "∞".
QString valueText(double value, const QString& unit, int fewest = 3);

/// The same with three decimals, no more and no less: "1.235 kHz".
QString shortValueText(double value, const QString& unit);
