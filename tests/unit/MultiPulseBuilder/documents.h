// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QVector>

/// Setup documents for tests, put together without the program's own names and constants.
namespace Documents {

/// A document from the text of its member "multiple pulses"; an unreadable text ends the process.
inline QJsonObject fromText(const QByteArray& members)
{
    const QJsonDocument parsed = QJsonDocument::fromJson("{\"multiple pulses\": " + members + '}');
    if (!parsed.isObject())
        qFatal("not a setup document: %s", members.constData());
    return parsed.object();
}

/// The array "width/gap" from cell texts: "2.000u 10.000u, 3.000u 10.000u".
inline QByteArray rows(const QByteArray& cells)
{
    QByteArray text;
    for (const QByteArray& row : cells.split(',')) {
        const QList<QByteArray> pair = row.trimmed().split(' ');
        if (pair.size() != 2)
            continue;
        text += text.isEmpty() ? "" : ", ";
        text += "{\"width\": \"" + pair.at(0) + "\", \"gap\": \"" + pair.at(1) + "\"}";
    }
    return "[" + text + "]";
}

/// A document with the given cells and delay (a number's text), amplitude 2 V, offset 0.5 V; @p
/// more is appended to its members.
inline QJsonObject train(const QByteArray& cells, const QByteArray& delay = "1e-05",
                         const QByteArray& more = "")
{
    return fromText("{\"voltage\": {\"amplitude\": 2, \"offset\": 0.5}, "
                    "\"trigger delay\": {\"value\": " +
                    delay + "}, \"width/gap\": " + rows(cells) +
                    (more.isEmpty() ? more : ", " + more) + "}");
}

} // namespace Documents
