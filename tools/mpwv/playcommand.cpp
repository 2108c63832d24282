// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "burstaccount.h"
#include "channeltrace.h"
#include "command.h"
#include "commandline.h"
#include "input.h"
#include "instrumentsession.h"
#include "pictureoutput.h"
#include "pulseplot.h"
#include "rendering.h"
#include "scpiquery.h"
#include "setupcheck.h"
#include "userdata.h"
#include "waveformsource.h"

#include "runsequence.h"

namespace {

const QLatin1String TraceOption("trace");
const QLatin1String AccountOption("account");
const QLatin1String TriggerOption("trigger");

// One call of the command, from the setup to the account of what was played.
class Play
{
public:
    Play(const CommandLine& line, Streams& streams)
        : m_line(line)
        , m_streams(streams)
    {}

    int run();

private:
    QString readOptions();
    bool wantsTrace() const { return m_line.isSet(TraceOption) || m_line.isSet(AccountOption); }
    bool wantsTrigger() const { return m_line.isSet(TriggerOption) || wantsTrace(); }
    void warn(const QJsonObject& document);
    int play();
    int start();
    int writeFile();
    int watch();
    int triggerAndFetch(InstrumentSession& session);
    int writeTrace(const ChannelTrace& trace);
    int printAccount(const ChannelTrace& trace);
    int outputError(const QString& reason);
    void print(const QString& text) { m_streams.out->write(text.toUtf8() + '\n'); }

    const CommandLine& m_line;
    Streams& m_streams;
    InstrumentPlace m_place;
    PulseTrain m_train;
    QString m_strTracePath;
    QString m_strIdentity; // what the closing query was answered with
    bool m_bSent = false;  // some of the commands may have arrived
    bool m_bIsOn = false;  // all of them have
};

bool isCsv(const QString& path)
{
    return path.endsWith(QLatin1String(".csv"), Qt::CaseInsensitive);
}

QString Play::readOptions()
{
    QString complaint = readPlace(m_line, m_place);
    if (!complaint.isEmpty())
        return complaint;
    m_strTracePath = m_line.value(TraceOption);
    if (m_line.isSet(TraceOption) && !isCsv(m_strTracePath) && !formatOfName(m_strTracePath))
        return QStringLiteral("--trace %1: the name ends in none of .svg, .png and .csv")
            .arg(m_strTracePath);
    const QString setup = m_line.arguments().constFirst();
    complaint = overwriteReason(setup, m_strTracePath);
    return complaint.isEmpty() ? overwriteReason(setup, runFilePath(m_line)) : complaint;
}

void Play::warn(const QJsonObject& document)
{
    for (const Finding& finding : checkSetup(document))
        printError(m_streams, QLatin1String("warning: ") +
                                  findingLine(m_line.arguments().constFirst(), finding));
}

int Play::run()
{
    const QString complaint = readOptions();
    if (!complaint.isEmpty())
        return m_line.usageError(complaint, m_streams);

    QJsonObject document;
    const QString unreadable = readSetup(m_line.arguments().constFirst(), m_streams, document);
    if (!unreadable.isEmpty()) {
        printError(m_streams, unreadable);
        return ExitInput;
    }
    warn(document);
    m_train = trainOf(document, m_line.load());
    const int played = play();
    if (played != ExitOk && m_bSent)
        printError(m_streams, QStringLiteral("the output %1 on; 'mpwv stop' switches it off")
                                  .arg(m_bIsOn ? QLatin1String("is") : QLatin1String("may be")));
    return played;
}

int Play::play()
{
    const int started = start();
    return started == ExitOk ? watch() : started;
}

int Play::outputError(const QString& reason)
{
    printError(m_streams, reason);
    return ExitOutput;
}

// The file is written between connecting and sending, so that without an instrument nothing
// changes.
int Play::start()
{
    InstrumentSession session(m_place, m_streams);
    if (!session.connectToInstrument())
        return ExitInstrument;
    const int written = writeFile();
    if (written != ExitOk)
        return written;

    m_bSent = true;
    if (!session.send(RunSequence::runCommands(m_train)))
        return ExitInstrument;
    const std::optional<QByteArray> reply = session.confirm();
    if (!reply)
        return ExitInstrument;
    m_strIdentity = printable(QString::fromUtf8(reply->trimmed()));
    m_bIsOn = true;
    return ExitOk;
}

int Play::writeFile()
{
    const QString path = runFilePath(m_line);
    const QString reason = Renderer().writeFile(m_train, path);
    if (!reason.isEmpty())
        return outputError(path + QLatin1String(": ") + reason);
    print(QStringLiteral("wrote %1").arg(path));
    return ExitOk;
}

// A connection of its own: what the instrument thinks of the sequence is asked as any other client
// would ask it. Its reply to the closing query tells that it has read the commands, not that it has
// taken them, so that success is told only now.
int Play::watch()
{
    InstrumentSession session(m_place, m_streams);
    if (!session.connectToInstrument() || !session.hasNoErrors())
        return ExitInstrument;
    print(QStringLiteral("sent %1 commands to %2, which confirms: %3")
              .arg(RunSequence::runCommands(m_train).size())
              .arg(m_place.text(), m_strIdentity));
    return wantsTrigger() ? triggerAndFetch(session) : int(ExitOk);
}

int Play::triggerAndFetch(InstrumentSession& session)
{
    // The timer triggers by itself, and a trigger during its burst would be lost with an error.
    if (m_train.triggerSource != TriggerTimer) {
        if (!session.send({"*TRG\n"}) || !session.hasNoErrors())
            return ExitInstrument;
        print(QStringLiteral("triggered one burst"));
    }
    if (!wantsTrace())
        return ExitOk;

    ChannelTrace trace;
    const QString reason = fetchTrace(session.link(), trace);
    if (!reason.isEmpty()) {
        session.fail(reason);
        return ExitInstrument;
    }
    const int written = m_line.isSet(TraceOption) ? writeTrace(trace) : int(ExitOk);
    const int account = m_line.isSet(AccountOption) ? printAccount(trace) : int(ExitOk);
    return written != ExitOk ? written : account;
}

int Play::writeTrace(const ChannelTrace& trace)
{
    QByteArray bytes;
    if (isCsv(m_strTracePath)) {
        bytes = csvOf(trace.waveform);
    } else {
        const QString title =
            QStringLiteral("Channel 1: ") + titleOf(m_line.arguments().constFirst());
        const PulsePlot plot = plotOfWaveform(trace.waveform, polarityOf(m_train), title);
        bytes = renderPlot(plot, *formatOfName(m_strTracePath), DefaultPictureSize);
    }
    const QString reason = writeOutput(m_strTracePath, bytes, m_streams);
    if (!reason.isEmpty())
        return outputError(reason);
    print(QStringLiteral("wrote %1").arg(m_strTracePath));
    return ExitOk;
}

int Play::printAccount(const ChannelTrace& trace)
{
    OutputWaveform file;
    const QString reason = outputOfTrain(m_train, file);
    if (!reason.isEmpty())
        return outputError(reason);
    const BurstAccount account = accountOf(m_train, file, trace);
    m_streams.out->write(accountText(account).toUtf8());
    return account.fault.isEmpty() ? ExitOk : ExitInstrument;
}

void addOptions(CommandLine& line)
{
    line.addArgument(QStringLiteral("SETUP"),
                     QStringLiteral("A setup; - reads the standard input."),
                     QStringLiteral("SETUP"));
    line.addLoadOption();
    addPlaceOptions(line);
    addUserDataOption(line);
    line.addOption({TriggerOption}, QStringLiteral("Trigger one burst. With the timer as trigger "
                                                   "source the bursts begin by themselves."));
    line.addOption({TraceOption},
                   QStringLiteral("Trigger one burst, and write what channel 1 put out: a picture "
                                  "(.svg, .png) or numbers (.csv)."),
                   QStringLiteral("FILE"));
    line.addOption({AccountOption},
                   QStringLiteral("Trigger one burst, and print start and width of each pulse as "
                                  "channel 1 put it out beside what was asked for."));
}

} // namespace

int runPlay(const QStringList& arguments, Streams& streams)
{
    CommandLine line(
        QStringLiteral("play"),
        QStringLiteral("Writes the setup's waveform file for the instrument and starts "
                       "it on channel 1, as the editor's Run does. Warns of everything that "
                       "check would find. The file goes into a folder of this machine, which a "
                       "remote instrument must share."));
    addOptions(line);
    if (const std::optional<int> ended = line.parse(arguments, streams, 1, 1))
        return *ended;
    return Play(line, streams).run();
}
