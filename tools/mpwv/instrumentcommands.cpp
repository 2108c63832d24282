// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "command.h"
#include "commandline.h"
#include "input.h"
#include "instrumentsession.h"
#include "scpiquery.h"
#include "userdata.h"

#include "devicetable.h"
#include "runsequence.h"

#include <QFile>

namespace {

void print(Streams& streams, const QString& text)
{
    streams.out->write(text.toUtf8() + '\n');
}

std::optional<int> readOptions(CommandLine& line, const QStringList& arguments, Streams& streams,
                               InstrumentPlace& place)
{
    addPlaceOptions(line);
    if (const std::optional<int> ended = line.parse(arguments, streams, 0, 0))
        return ended;
    const QString complaint = readPlace(line, place);
    if (!complaint.isEmpty())
        return line.usageError(complaint, streams);
    return std::nullopt;
}

// Empty when the file is gone, whether it was there or not.
QString removeRunFile(const QString& path, Streams& streams)
{
    QFile file(path);
    if (!file.exists()) {
        print(streams, QStringLiteral("%1: was not there").arg(path));
        return QString();
    }
    if (!file.remove())
        return path + QLatin1String(": ") + file.errorString();
    print(streams, QStringLiteral("%1: deleted").arg(path));
    return QString();
}

bool isKnownModel(const QByteArray& model)
{
    // The table has no row for an unknown model but its default one, which has a model of its own.
    return model.startsWith("KVX7010") || deviceRowIndex(model) != deviceRowIndex(QByteArray());
}

void printRow(const QStringList& row, Streams& streams)
{
    const int fieldWidth = 12;
    const struct
    {
        QString name;
        QString value;
    } lines[] = {
        {QStringLiteral("family"), row.at(DeviceName)},
        {QStringLiteral("amplitude"),
         QStringLiteral("%1 to %2 Vpp")
             .arg(row.at(DeviceMinAmplitude), row.at(DeviceMaxAmplitude))},
        {QStringLiteral("levels"),
         QStringLiteral("%1 to %2 V").arg(row.at(DeviceOffsetMinus), row.at(DeviceOffsetPlus))},
        {QStringLiteral("sampling"),
         QStringLiteral("%1 samples/s").arg(row.at(DeviceSamplingRate))},
        {QStringLiteral("memory"), QStringLiteral("%1 points").arg(row.at(DeviceWaveformLength))}};
    for (const auto& item : lines)
        print(streams, (item.name + QLatin1Char(':')).leftJustified(fieldWidth) + item.value);
}

int printIdentity(const QByteArray& reply, Streams& streams)
{
    const QByteArray model = modelText(reply);
    const QString shown = printable(QString::fromUtf8(model));
    print(streams, QStringLiteral("reply:      ") + printable(QString::fromUtf8(reply.trimmed())));
    print(streams, QStringLiteral("model:      ") + shown);
    printRow(deviceFamilies().at(deviceRowIndex(model)), streams);
    if (isKnownModel(model))
        return ExitOk;
    printError(streams,
               QStringLiteral("the model \"%1\" is not known: the limits are those that are "
                              "taken for unknown models")
                   .arg(shown));
    return ExitInstrument;
}

} // namespace

int runStop(const QStringList& arguments, Streams& streams)
{
    CommandLine line(QStringLiteral("stop"),
                     QStringLiteral("Switches the output off, deletes the waveform file that was "
                                    "played, and resets the instrument."));
    addUserDataOption(line);
    InstrumentPlace place;
    if (const std::optional<int> ended = readOptions(line, arguments, streams, place))
        return *ended;

    InstrumentSession session(place, streams);
    if (!session.connectToInstrument() || !session.send(RunSequence::stopCommandsBeforeDelete()))
        return ExitInstrument;
    const QString reason = removeRunFile(runFilePath(line), streams);
    if (!session.send(RunSequence::stopCommandsAfterDelete()) || !session.confirm())
        return ExitInstrument;
    print(streams, QStringLiteral("the output is off"));
    if (reason.isEmpty())
        return ExitOk;
    printError(streams, reason);
    return ExitOutput;
}

int runIdentify(const QStringList& arguments, Streams& streams)
{
    CommandLine line(
        QStringLiteral("identify"),
        QStringLiteral("Asks the instrument who it is and prints its limits. The sampling rate is "
                       "its converter's, which no other command reckons with."));
    InstrumentPlace place;
    if (const std::optional<int> ended = readOptions(line, arguments, streams, place))
        return *ended;

    InstrumentSession session(place, streams);
    if (!session.connectToInstrument())
        return ExitInstrument;
    QByteArray reply;
    const QString reason = askLine(session.link(), "*IDN?\n", reply);
    if (reason.isEmpty())
        return printIdentity(reply, streams);
    session.fail(reason);
    return ExitInstrument;
}
