// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "command.h"
#include "commandline.h"
#include "input.h"
#include "pictureoutput.h"
#include "pulseplot.h"
#include "waveformsource.h"

namespace {

const QLatin1String Output("output");
const QLatin1String Size("size");
const QLatin1String Format("format");

struct PictureRequest
{
    QString path;
    PictureFormat format = PictureFormat::Svg;
    QSize size = DefaultPictureSize;
};

void addOptions(CommandLine& line)
{
    addSourceOptions(line);
    line.addOption({QStringLiteral("o"), Output},
                   QStringLiteral("The picture, .svg or .png; - is the standard output."),
                   QStringLiteral("FILE"));
    line.addOption(
        {Size}, QStringLiteral("Width and height of the picture in pixels; 1200x600 by default."),
        QStringLiteral("WxH"));
    line.addOption({Format}, QStringLiteral("svg or png, where the file's name does not tell."),
                   QStringLiteral("FORMAT"));
}

// The complaint about the options, empty when @p request is filled.
QString readRequest(const CommandLine& line, PictureRequest& request)
{
    request.path = line.value(Output);
    if (request.path.isEmpty())
        return QStringLiteral("-o FILE is missing");
    const bool isNamed = line.isSet(Format);
    const auto format =
        formatOfName(isNamed ? QLatin1Char('.') + line.value(Format) : request.path);
    if (!format)
        return isNamed
                   ? QStringLiteral("--format: \"%1\" is neither svg nor png")
                         .arg(line.value(Format))
                   : QStringLiteral("-o %1: the name ends neither in .svg nor in .png, and there "
                                    "is no --format")
                         .arg(request.path);
    const auto size = line.isSet(Size) ? parsePictureSize(line.value(Size)) : DefaultPictureSize;
    if (!size)
        return QStringLiteral("--size: \"%1\" is no size such as 1200x600 with sides from %2 to %3")
            .arg(line.value(Size))
            .arg(MinPictureSide)
            .arg(MaxPictureSide);
    request.format = *format;
    request.size = *size;
    return overwriteReason(line.arguments().constFirst(), request.path);
}

} // namespace

int runPlot(const QStringList& arguments, Streams& streams)
{
    CommandLine line(QStringLiteral("plot"),
                     QStringLiteral("Draws volts against seconds, with the widths and gaps of the "
                                    "pulses: what leaves the generator, at the load. A waveform "
                                    "file without a period is drawn against its points."));
    addOptions(line);
    if (const std::optional<int> ended = line.parse(arguments, streams, 1, 1))
        return *ended;
    PictureRequest request;
    const QString complaint = readRequest(line, request);
    if (!complaint.isEmpty())
        return line.usageError(complaint, streams);

    WaveformSource source;
    if (const std::optional<int> ended = readSource(line, streams, source))
        return *ended;
    const PulsePlot plot = source.isSetup ? plotOfTrain(source.train, source.waveform, source.title)
                                          : plotOfWaveform(source.waveform, source.title);
    const QString reason =
        writeOutput(request.path, renderPlot(plot, request.format, request.size), streams);
    if (reason.isEmpty())
        return ExitOk;
    printError(streams, reason);
    return ExitOutput;
}
