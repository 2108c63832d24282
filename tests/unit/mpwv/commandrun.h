// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "command.h"
#include "setupdocument.h"

#include <QBuffer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>

/// What a command did with its streams.
struct CommandResult
{
    int exitCode;
    QByteArray out;
    QByteArray err;
};

using CommandFunction = int (*)(const QStringList&, Streams&);

inline CommandResult runWith(CommandFunction run, const QStringList& arguments,
                             const QByteArray& input = QByteArray(), bool terminal = false)
{
    QBuffer in;
    QBuffer out;
    QBuffer err;
    in.setData(input);
    in.open(QIODevice::ReadOnly);
    out.open(QIODevice::WriteOnly);
    err.open(QIODevice::WriteOnly);
    Streams streams = {&in, &out, &err, terminal};
    const int exitCode = run(arguments, streams);
    return {exitCode, out.data(), err.data()};
}

/// The default setup: a delay of 10 us, then twice 2 us of pulse and 10 us of gap.
inline QJsonObject defaultSetup()
{
    return {{SetupKey::MultiplePulses, defaultMultiplePulses()}};
}

inline QJsonObject withMember(QJsonObject document, const QString& member, const QJsonValue& value)
{
    QJsonObject stored = document.value(SetupKey::MultiplePulses).toObject();
    stored.insert(member, value);
    document.insert(SetupKey::MultiplePulses, stored);
    return document;
}

inline QJsonObject withRows(const QJsonObject& document, const QVector<SetupRow>& rows)
{
    QJsonArray array;
    for (const SetupRow& row : rows)
        array.append(QJsonObject{{SetupKey::Width, row.width}, {SetupKey::Gap, row.gap}});
    QJsonObject numbers = document.value(SetupKey::MultiplePulses)
                              .toObject()
                              .value(SetupKey::PulseNumbers)
                              .toObject();
    numbers.insert(SetupKey::Value, array.size());
    return withMember(withMember(document, SetupKey::WidthGap, array), SetupKey::PulseNumbers,
                      numbers);
}

inline QByteArray jsonText(const QJsonObject& document)
{
    return QJsonDocument(document).toJson();
}

inline QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeBytes(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

/// Keeps the lines out of the log that the library writes for each waveform; everything else still
/// reaches it, from any thread.
class WithoutLibraryLog
{
public:
    WithoutLibraryLog() { previous() = qInstallMessageHandler(&WithoutLibraryLog::handle); }
    ~WithoutLibraryLog() { qInstallMessageHandler(previous()); }
    WithoutLibraryLog(const WithoutLibraryLog&) = delete;
    WithoutLibraryLog& operator=(const WithoutLibraryLog&) = delete;

private:
    static QtMessageHandler& previous()
    {
        static QtMessageHandler handler = nullptr;
        return handler;
    }

    static void handle(QtMsgType type, const QMessageLogContext& context, const QString& text)
    {
        if (!text.startsWith(QLatin1String("headerWrite")) &&
            !text.startsWith(QLatin1String("timeUnitConvertToPointsUnit")))
            previous()(type, context, text);
    }
};
