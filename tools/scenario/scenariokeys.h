// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// The most detents or presses that one statement may ask for.
constexpr int MostDetents = 100;

/// The names of the front panel's keys, and whether a name is one of them.
QStringList frontKeyNames();
bool isFrontKeyName(const QString& name);
/// Code of a key's name; 0 for none.
int frontKeyCode(const QString& name);

/// The names of the keys that enter a number: sign, digits and point, then the key of the prefix G,
/// M, k, m, u or n, x1 for the base unit, or enter for none. Empty for what is no such number.
QStringList keysOfNumber(const QString& number, const QString& prefix);
