// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <functional>

struct SeriesFile
{
    QString name; ///< without a folder
    QByteArray bytes;
};

/// Writes @p count files into @p folder, which is made where it does not exist, all of them or
/// none;
/// @p makeFile is asked for one after the other. A file that exists already is not replaced: then
/// nothing is written. Returns an empty text or the reason, which names the file.
QString writeSeries(const QString& folder, int count,
                    const std::function<SeriesFile(int index)>& makeFile);
