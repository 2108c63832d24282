// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>
#include <QVector>

/// Lines of a table whose columns are as wide as their widest cell, two blanks apart. The first
/// column stands to the left, all others to the right; the first row holds the headings.
QString textTable(const QVector<QStringList>& rows);
