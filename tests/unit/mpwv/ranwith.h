// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "command.h"
#include "pulsetrain.h"
#include "setupdocument.h"

#include <QBuffer>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QtTest>

/// What a command of the tool did with its streams.
struct Ran
{
    int exitCode = -1;
    QByteArray out;
    QByteArray err;
};

using CommandFunction = int (*)(const QStringList&, Streams&);

inline Ran ranWith(CommandFunction command, const QStringList& arguments,
                   const QByteArray& input = QByteArray())
{
    QBuffer in;
    QBuffer out;
    QBuffer err;
    in.setData(input);
    in.open(QIODevice::ReadOnly);
    out.open(QIODevice::WriteOnly);
    err.open(QIODevice::WriteOnly);
    Streams streams = {&in, &out, &err, false};
    Ran ran;
    ran.exitCode = command(arguments, streams);
    ran.out = out.data();
    ran.err = err.data();
    return ran;
}

/// A setup of pulses given as texts of width and gap, levels in volts.
struct TestSetup
{
    double delay = 1e-5;
    double amplitude = 2;
    double offset = 0;
    int source = 0;
    int slope = 0;
    int ohms = 50;
    QVector<QPair<QString, QString>> rows;

    QJsonObject document() const
    {
        QJsonArray widthGap;
        for (const auto& row : rows)
            widthGap.append(QJsonObject{{QStringLiteral("width"), row.first},
                                        {QStringLiteral("gap"), row.second}});
        QJsonObject pulses = defaultMultiplePulses();
        setPart(pulses, SetupKey::PulseNumbers, SetupKey::Value, rows.size());
        setPart(pulses, SetupKey::TriggerDelay, SetupKey::Value, delay);
        setPart(pulses, SetupKey::Voltage, SetupKey::Amplitude, amplitude);
        setPart(pulses, SetupKey::Voltage, SetupKey::Offset, offset);
        pulses.insert(SetupKey::TriggerSource, source);
        pulses.insert(SetupKey::TriggerSlope, slope);
        pulses.insert(SetupKey::LoadImpedance, ohms);
        pulses.insert(SetupKey::WidthGap, widthGap);
        return {{SetupKey::MultiplePulses, pulses}};
    }

    static void setPart(QJsonObject& pulses, QLatin1String part, QLatin1String member,
                        const QJsonValue& value)
    {
        QJsonObject changed = pulses.value(part).toObject();
        changed.insert(member, value);
        pulses.insert(part, changed);
    }

    QByteArray json() const { return QJsonDocument(document()).toJson(); }
    PulseTrain train() const { return PulseTrain::fromDocument(document()); }

    /// Two pulses of 2 us with gaps of 10 us behind a delay of 10 us.
    static TestSetup doublePulse()
    {
        TestSetup setup;
        setup.rows = {{QStringLiteral("2.000u"), QStringLiteral("10.000u")},
                      {QStringLiteral("2.000u"), QStringLiteral("10.000u")}};
        return setup;
    }
};

inline void writeFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qPrintable(path));
}

inline QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("unreadable");
}

/// The writer logs one warning for each waveform that it makes.
inline void expectHeaderWarning(int times = 1)
{
    for (int i = 0; i < times; ++i)
        QTest::ignoreMessage(QtWarningMsg, QRegularExpression(QStringLiteral("^headerWrite")));
}

/// The library logs each step at information level.
inline void silenceInformation()
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.info=false"));
}
