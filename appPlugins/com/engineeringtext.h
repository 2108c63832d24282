// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QString>

/// @file
/// Texts of table cells in engineering notation, with the SI prefixes.

/// The value of a table cell's text in the base unit, rounded with DBRound() to @p resolution.
///
/// The text is a decimal number and one prefix letter of "[munKMG]" (case-sensitive: n 1e-9, u
/// 1e-6, m 1e-3, K 1e3, M 1e6, G 1e9). The first such letter counts, wherever it stands, and is
/// taken out before the rest is read with QString::toDouble(); without one the whole text is the
/// number. Unreadable text, a unit behind the prefix ("2.000us") and the small "k" of the unit
/// selectors included, reads as 0.
APPPLUGINS_EXPORT double engineeringTextToDouble(const QString& text, double resolution);
