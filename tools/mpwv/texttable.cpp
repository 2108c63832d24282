// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "texttable.h"

#include <algorithm>

namespace {

QVector<int> columnWidths(const QVector<QStringList>& rows)
{
    QVector<int> widths;
    for (const QStringList& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (int i = 0; i < row.size(); ++i)
            widths[i] = std::max(widths.at(i), row.at(i).size());
    }
    return widths;
}

} // namespace

QString textTable(const QVector<QStringList>& rows)
{
    const QVector<int> widths = columnWidths(rows);
    QString text;
    for (const QStringList& row : rows) {
        QString line = row.value(0).leftJustified(widths.value(0));
        for (int i = 1; i < row.size(); ++i)
            line += QLatin1String("  ") + row.at(i).rightJustified(widths.at(i));
        while (line.endsWith(QLatin1Char(' ')))
            line.chop(1);
        text += line + QLatin1Char('\n');
    }
    return text;
}
