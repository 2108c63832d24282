// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "input.h"
#include "texttable.h"
#include "timing.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <cmath>

namespace {

// Errors and points from here on are written with an exponent.
const double LongestPlain = 1e12;

QString secondsText(double value)
{
    return std::isfinite(value) ? engineeringText(value, QStringLiteral("s")) : QStringLiteral("-");
}

QString signedText(double value)
{
    if (!std::isfinite(value))
        return QStringLiteral("-");
    return QString::asprintf(std::fabs(value) < LongestPlain ? "%+.3f" : "%+.3e", value);
}

QString pointsText(double points)
{
    const bool isPlain = std::fabs(points) < LongestPlain;
    return QString::number(points, isPlain ? 'f' : 'e', isPlain ? 0 : 3);
}

QStringList timeCells(const QuantisedTime& time)
{
    return {secondsText(time.asked), secondsText(time.got), pointsText(time.points),
            signedText(time.error() * 1e9), signedText(time.errorPercent())};
}

QVector<QStringList> timeRows(const TrainTiming& timing)
{
    QVector<QStringList> rows = {{QStringLiteral("time"), QStringLiteral("asked"),
                                  QStringLiteral("got"), QStringLiteral("points"),
                                  QStringLiteral("error/ns"), QStringLiteral("error/%")}};
    const auto add = [&rows](const QString& name, const QuantisedTime& time) {
        rows.append(QStringList(name) + timeCells(time));
    };
    add(QStringLiteral("delay"), timing.delay);
    for (int i = 0; i < timing.pulses.size(); ++i) {
        add(QStringLiteral("width %1").arg(i + 1), timing.pulses.at(i).width);
        add(QStringLiteral("gap %1").arg(i + 1), timing.pulses.at(i).gap);
    }
    return rows;
}

QString timingText(const TrainTiming& timing)
{
    return textTable({{QStringLiteral("period"), secondsText(timing.period)},
                      {QStringLiteral("frequency"),
                       engineeringText(timing.frequency, QStringLiteral("Hz"))},
                      {QStringLiteral("points"), QString::number(timing.points)},
                      {QStringLiteral("spacing"), secondsText(timing.spacing)}}) +
           QLatin1Char('\n') + textTable(timeRows(timing));
}

// A number that is not finite becomes null.
QJsonObject timeJson(const QuantisedTime& time)
{
    return {{QStringLiteral("asked"), time.asked},
            {QStringLiteral("got"), time.got},
            {QStringLiteral("points"), time.points},
            {QStringLiteral("error"), time.error()},
            {QStringLiteral("errorPercent"), time.errorPercent()}};
}

QByteArray timingJson(const TrainTiming& timing)
{
    QJsonArray pulses;
    for (const PulseTiming& pulse : timing.pulses)
        pulses.append(QJsonObject{{QStringLiteral("width"), timeJson(pulse.width)},
                                  {QStringLiteral("gap"), timeJson(pulse.gap)}});
    return QJsonDocument(QJsonObject{{QStringLiteral("period"), timing.period},
                                     {QStringLiteral("frequency"), timing.frequency},
                                     {QStringLiteral("points"), timing.points},
                                     {QStringLiteral("spacing"), timing.spacing},
                                     {QStringLiteral("delay"), timeJson(timing.delay)},
                                     {QStringLiteral("pulses"), pulses}})
        .toJson();
}

} // namespace

int runTiming(const QStringList& arguments, Streams& streams)
{
    CommandLine line(
        QStringLiteral("timing"),
        QStringLiteral("Tells what the waveform's points make of each time of a setup: what was "
                       "asked for, what the instrument plays, and the error. All points are played "
                       "in one period; the sampling rate of the instrument's own converter is not "
                       "modelled."));
    line.addArgument(QStringLiteral("SETUP"), QStringLiteral("Setup file, - for standard input."),
                     QStringLiteral("SETUP"));
    line.addJsonOption();
    if (const auto ended = line.parse(arguments, streams, 1, 1))
        return *ended;

    QJsonObject document;
    const QString reason = readSetup(line.arguments().constFirst(), streams, document);
    if (!reason.isEmpty()) {
        printError(streams, reason);
        return ExitInput;
    }
    const TrainTiming timing = trainTiming(PulseTrain::fromDocument(document));
    streams.out->write(line.isSet(QStringLiteral("json")) ? timingJson(timing)
                                                          : timingText(timing).toUtf8());
    return ExitOk;
}
