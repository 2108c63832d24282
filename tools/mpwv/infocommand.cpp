// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "input.h"
#include "pulsefinder.h"
#include "setuprules.h"
#include "texttable.h"
#include "thumbnail.h"

#include <QJsonArray>
#include <QJsonDocument>

using appPlugins::ThumbnailColumns;
using appPlugins::WaveformFile;

namespace {

QString voltsText(double value)
{
    return numberText(value) + QLatin1String(" V");
}

// To the tenth of a millivolt, the levels' resolution: a sample's step is finer than it is exact.
QString levelText(const WaveformFile& file, qint16 sample)
{
    return QString::number(file.volts(sample), 'f', 4) + QLatin1String(" V");
}

double highLevel(const WaveformFile& file)
{
    return file.header.offsetValue + file.header.ampValue * 0.5;
}

double lowLevel(const WaveformFile& file)
{
    return file.header.offsetValue - file.header.ampValue * 0.5;
}

QString headerText(const WaveformFile& file)
{
    return textTable({{QStringLiteral("magic"), QLatin1String(appPlugins::WaveformMagic)},
                      {QStringLiteral("version"), QString::number(file.header.version)},
                      {QStringLiteral("points"), QString::number(file.header.points)},
                      {QStringLiteral("hasThumbnail"), QString::number(file.header.hasThumbnail)},
                      {QStringLiteral("ampValue"), voltsText(file.header.ampValue)},
                      {QStringLiteral("offsetValue"), voltsText(file.header.offsetValue)},
                      {QStringLiteral("high level"), voltsText(highLevel(file))},
                      {QStringLiteral("low level"), voltsText(lowLevel(file))}});
}

QString pulsesText(const WaveformFile& file, const FoundPulses& found)
{
    if (found.pulses.isEmpty())
        return QStringLiteral("no pulses\n");

    QVector<QStringList> rows = {{QStringLiteral("pulse"), QStringLiteral("start"),
                                  QStringLiteral("width"), QStringLiteral("gap"),
                                  QStringLiteral("level")}};
    for (const FoundPulse& pulse : found.pulses)
        rows.append({QString::number(rows.size()), QString::number(pulse.start),
                     QString::number(pulse.width), QString::number(pulse.gap),
                     levelText(file, pulse.level)});
    return QStringLiteral("%1 pulses %2, in points\n%3")
        .arg(QString::number(found.pulses.size()),
             found.downwards ? QStringLiteral("downwards") : QStringLiteral("upwards"),
             textTable(rows));
}

QString infoText(const QString& path, const WaveformFile& file)
{
    return printable(path) + QLatin1Char('\n') + headerText(file) + QLatin1Char('\n') +
           pulsesText(file, findPulses(file.samples)) + QLatin1String("\nthumbnail\n") +
           thumbnailText(file.header.thumbnail).join(QLatin1Char('\n')) + QLatin1Char('\n');
}

QJsonArray pulsesJson(const WaveformFile& file, const FoundPulses& found)
{
    QJsonArray pulses;
    for (const FoundPulse& pulse : found.pulses)
        pulses.append(QJsonObject{{QStringLiteral("start"), pulse.start},
                                  {QStringLiteral("width"), pulse.width},
                                  {QStringLiteral("gap"), pulse.gap},
                                  {QStringLiteral("level"), file.volts(pulse.level)}});
    return pulses;
}

QJsonArray thumbnailJson(const quint8* thumbnail)
{
    QJsonArray columns;
    for (int i = 0; i < ThumbnailColumns; ++i) {
        const quint8* const pair = thumbnailColumn(thumbnail, i);
        columns.append(QJsonArray{pair[0], pair[1]});
    }
    return columns;
}

QByteArray infoJson(const QString& path, const WaveformFile& file)
{
    const FoundPulses found = findPulses(file.samples);
    const QJsonObject info = {{QStringLiteral("file"), path},
                              {QStringLiteral("magic"), QLatin1String(appPlugins::WaveformMagic)},
                              {QStringLiteral("version"), qint64(file.header.version)},
                              {QStringLiteral("points"), qint64(file.header.points)},
                              {QStringLiteral("hasThumbnail"), file.header.hasThumbnail},
                              {QStringLiteral("ampValue"), file.header.ampValue},
                              {QStringLiteral("offsetValue"), file.header.offsetValue},
                              {QStringLiteral("highLevel"), highLevel(file)},
                              {QStringLiteral("lowLevel"), lowLevel(file)},
                              {QStringLiteral("downwards"), found.downwards},
                              {QStringLiteral("pulses"), pulsesJson(file, found)},
                              {QStringLiteral("thumbnail"), thumbnailJson(file.header.thumbnail)}};
    return QJsonDocument(info).toJson();
}

} // namespace

int runInfo(const QStringList& arguments, Streams& streams)
{
    CommandLine line(
        QStringLiteral("info"),
        QStringLiteral("Prints the header of a waveform file, its levels, the pulses found in its "
                       "samples at half height, and its thumbnail."));
    line.addArgument(QStringLiteral("FILE"), QStringLiteral("Waveform file, - for standard input."),
                     QStringLiteral("FILE.mpwv"));
    line.addJsonOption();
    if (const auto ended = line.parse(arguments, streams, 1, 1))
        return *ended;

    const QString path = line.arguments().constFirst();
    Input input;
    QString reason = readInput(path, streams, input);
    if (reason.isEmpty() && input.kind == Input::Setup)
        reason = QStringLiteral("%1: a setup where a waveform file is wanted").arg(printable(path));
    if (!reason.isEmpty()) {
        printError(streams, reason);
        return ExitInput;
    }
    streams.out->write(line.isSet(QStringLiteral("json")) ? infoJson(path, input.file)
                                                          : infoText(path, input.file).toUtf8());
    return ExitOk;
}
