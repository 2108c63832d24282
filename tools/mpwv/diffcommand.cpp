// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "input.h"
#include "jsondiff.h"
#include "rendering.h"
#include "timing.h"
#include "waveformdiff.h"

namespace {

struct Side
{
    Input input;
    appPlugins::WaveformFile file;
    double spacing = 0; // seconds between two points; 0 where a waveform file does not tell
};

QString readSide(const QString& path, Streams& streams, Side& side)
{
    QString refused = readInput(path, streams, side.input);
    if (!refused.isEmpty())
        return refused;
    const QString reason = waveformOf(side.input, side.file);
    if (!reason.isEmpty())
        return printable(path) + QLatin1String(": ") + reason;
    if (side.input.kind == Input::Setup && !side.file.samples.empty())
        side.spacing = trainTiming(PulseTrain::fromDocument(side.input.document)).spacing;
    return QString();
}

QStringList differences(const Side& left, const Side& right)
{
    QStringList lines;
    if (left.input.kind == Input::Setup && right.input.kind == Input::Setup)
        lines += differingMembers(left.input.document, right.input.document);
    lines += differingHeader(left.file, right.file);
    lines += differingSamples(left.file, right.file);
    lines += movedEdges(left.file, left.spacing, right.file, right.spacing);
    return lines;
}

} // namespace

int runDiff(const QStringList& arguments, Streams& streams)
{
    CommandLine line(QStringLiteral("diff"),
                     QStringLiteral("Compares two waveform files or setups: members, header, "
                                    "samples and the edges that moved. Exit code 1 if they "
                                    "differ."));
    line.addArgument(QStringLiteral("A"), QStringLiteral("Waveform file or setup."),
                     QStringLiteral("A"));
    line.addArgument(QStringLiteral("B"), QStringLiteral("What A became. Either may be -."),
                     QStringLiteral("B"));
    if (const auto ended = line.parse(arguments, streams, 2, 2))
        return *ended;

    Side sides[2];
    for (int i = 0; i < 2; ++i) {
        const QString reason = readSide(line.arguments().at(i), streams, sides[i]);
        if (!reason.isEmpty()) {
            printError(streams, reason);
            return ExitInput;
        }
    }
    const QStringList lines = differences(sides[0], sides[1]);
    for (const QString& text : lines)
        streams.out->write(text.toUtf8() + '\n');
    return lines.isEmpty() ? ExitOk : ExitFound;
}
