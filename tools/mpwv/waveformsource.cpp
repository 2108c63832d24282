// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "waveformsource.h"

#include "input.h"

#include <QFileInfo>

namespace {

const QLatin1String Period("period");
const QLatin1String Frequency("frequency");

std::optional<double> positiveValue(const CommandLine& line, const QString& option,
                                    const QString& unit)
{
    double value = 0;
    if (!parseEngineering(line.value(option), value, unit) || !(value > 0))
        return std::nullopt;
    return value;
}

QString badNumber(const CommandLine& line, const QString& option, const QString& example)
{
    return QStringLiteral("--%1: \"%2\" is no positive number such as %3; %4")
        .arg(option, printable(line.value(option)), example, prefixHint());
}

// The period that the options give in seconds, or 0 without them; otherwise the complaint.
QString periodOf(const CommandLine& line, double& seconds)
{
    if (line.isSet(Period) && line.isSet(Frequency))
        return QStringLiteral("--period and --frequency exclude each other");
    if (line.isSet(Period)) {
        const std::optional<double> period = positiveValue(line, Period, QStringLiteral("s"));
        seconds = period.value_or(0);
        return period ? QString() : badNumber(line, Period, QStringLiteral("34u or 34us"));
    }
    if (line.isSet(Frequency)) {
        const std::optional<double> frequency =
            positiveValue(line, Frequency, QStringLiteral("Hz"));
        seconds = frequency ? 1.0 / *frequency : 0;
        return frequency ? QString()
                         : badNumber(line, Frequency, QStringLiteral("29.412k or 29.412kHz"));
    }
    return QString();
}

QString fillFromSetup(const Input& input, const CommandLine& line, WaveformSource& source)
{
    source.isSetup = true;
    source.train = trainOf(input.document, line.load());
    return outputOfTrain(source.train, source.waveform);
}

void fillFromFile(const Input& input, const CommandLine& line, double period,
                  WaveformSource& source)
{
    source.waveform = outputOfFile(input.file, line.load().value_or(LoadImpedance::Ohm50));
    source.waveform.setPeriod(period);
}

int inputError(const QString& text, Streams& streams)
{
    printError(streams, text);
    return ExitInput;
}

} // namespace

void addSourceOptions(CommandLine& line)
{
    line.addArgument(QStringLiteral("INPUT"),
                     QStringLiteral("A setup or a waveform file; - reads the standard input."),
                     QStringLiteral("INPUT"));
    line.addLoadOption();
    line.addOption({Period},
                   QStringLiteral("Period in seconds of a waveform file, which has no time base "
                                  "of its own: 34u or 34us."),
                   QStringLiteral("SECONDS"));
    line.addOption({Frequency}, QStringLiteral("The same as a frequency in hertz: 29.412k."),
                   QStringLiteral("HERTZ"));
}

QString titleOf(const QString& path)
{
    return path == QLatin1String("-") ? QStringLiteral("standard input")
                                      : QFileInfo(path).completeBaseName();
}

std::optional<int> readSource(const CommandLine& line, Streams& streams, WaveformSource& source)
{
    double period = 0;
    const QString complaint = periodOf(line, period);
    if (!complaint.isEmpty())
        return line.usageError(complaint, streams);

    const QString path = line.arguments().constFirst();
    Input input;
    const QString unreadable = readInput(path, streams, input);
    if (!unreadable.isEmpty())
        return inputError(unreadable, streams);
    if (input.kind == Input::Setup && period > 0)
        return line.usageError(QStringLiteral("%1: a setup has a time base of its own").arg(path),
                               streams);

    source.title = titleOf(path);
    if (input.kind == Input::Waveform) {
        fillFromFile(input, line, period, source);
        return std::nullopt;
    }
    const QString reason = fillFromSetup(input, line, source);
    if (!reason.isEmpty())
        return inputError(path + QLatin1String(": ") + reason, streams);
    return std::nullopt;
}
