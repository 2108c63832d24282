// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "serverprogram.h"

#include "devicetable.h"
#include "endsignals.h"
#include "generatormodel.h"
#include "scpiinstrument.h"
#include "server.h"
#include "serverclock.h"
#include "serveroptions.h"
#include "transcript.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QTextStream>

#include <optional>

namespace {

/// A generator behind an instrument's command set, and the time of both.
struct Bench
{
    explicit Bench(const ServerOptions& options)
        : model(options.userData, options.model, [this] { return clock.now(); })
        , instrument(deviceOf(model))
    {}

    static ScpiDevice deviceOf(GeneratorModel& model)
    {
        const QByteArray firmware = QCoreApplication::applicationVersion().toLatin1();
        return {"Multi-Pulse Bench," + model.modelText() + ",SIM000001," + firmware,
                [&model] { model.reset(); }, [&model] { return model.trigger(); }, model.commands(),
                [&model] { return model.operationCondition(); }};
    }

    ServerClock clock;
    GeneratorModel model;
    ScpiInstrument instrument;
};

bool isKnownModel(const QString& name)
{
    for (const QStringList& family : deviceFamilies()) {
        const QString& familyName = family.at(DeviceName);
        if (name == familyName || name.toLatin1() == generatorLimits(familyName).modelText)
            return true;
    }
    return false;
}

QString unknownModel(const QString& name)
{
    QStringList choices;
    for (const QStringList& family : deviceFamilies())
        choices += family.at(DeviceName);
    for (const QStringList& family : deviceFamilies())
        choices += QString::fromLatin1(generatorLimits(family.at(DeviceName)).modelText);
    return QStringLiteral("--model %1: no such model; choose one of %2")
        .arg(name, choices.join(QLatin1String(", ")));
}

/// What makes the options unusable for an instrument, or an empty text.
QString checkInstrument(const ServerOptions& options)
{
    if (!isKnownModel(options.model))
        return unknownModel(options.model);
    const QFileInfo folder(options.userData);
    if (!folder.isDir() || !folder.isReadable())
        return QStringLiteral("--user-data %1: not a folder that can be read")
            .arg(options.userData);
    return QString();
}

int fail(QTextStream& err, const QString& reason, ServerExit code = ServerUsage)
{
    err << "kvx-instrument: " << reason << '\n';
    err.flush();
    return code;
}

QString readTranscriptFile(const QString& path, QVector<TranscriptEvent>& events)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("%1: %2").arg(path, file.errorString());
    const QString error = readTranscript(file, events);
    return error.isEmpty() ? error : QStringLiteral("%1: %2").arg(path, error);
}

int compare(const ServerOptions& options, QTextStream& out, QTextStream& err)
{
    QVector<TranscriptEvent> first;
    QVector<TranscriptEvent> second;
    QString error = readTranscriptFile(options.firstPath, first);
    if (error.isEmpty())
        error = readTranscriptFile(options.secondPath, second);
    if (!error.isEmpty())
        return fail(err, error);
    const QString difference = compareTranscripts(first, second);
    if (difference.isEmpty())
        return ServerDone;
    out << difference << '\n';
    return TranscriptsDiffer;
}

void replayEvent(const TranscriptEvent& event, Bench& bench, TranscriptWriter& writer)
{
    const bool isOverrun = event.mark == TranscriptEvent::Overrun;
    if (!isOverrun && event.mark != TranscriptEvent::Command)
        return;
    bench.clock.advanceTo(event.time);
    writer.write(event);
    ScpiFramer::Message message{event.bytes, isOverrun};
    if (message.bytes.endsWith('\n'))
        message.bytes.chop(1);
    const QByteArray reply = ScpiSession(bench.instrument).execute(message);
    if (!reply.isEmpty())
        writer.write({event.time, event.client, TranscriptEvent::Reply, reply});
}

int replay(const ServerOptions& options, QTextStream& out, QTextStream& err)
{
    QVector<TranscriptEvent> events;
    const QString error = readTranscriptFile(options.replayPath, events);
    if (!error.isEmpty())
        return fail(err, error);
    Bench bench(options);
    TranscriptWriter writer(*out.device());
    for (const TranscriptEvent& event : events)
        replayEvent(event, bench, writer);
    return ServerDone;
}

int serve(const ServerOptions& options, QTextStream& out, QTextStream& err)
{
    QFile file(options.transcriptPath);
    std::optional<TranscriptWriter> transcript;
    if (!options.transcriptPath.isEmpty()) {
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return fail(err, QStringLiteral("%1: %2").arg(file.fileName(), file.errorString()));
        transcript.emplace(file);
    }
    Bench bench(options);
    InstrumentServer server({bench.instrument, bench.clock, options.faults, options.seed,
                             transcript ? &*transcript : nullptr});
    if (!server.open(options.port))
        return fail(err, QStringLiteral("port %1: %2").arg(options.port).arg(server.errorString()),
                    ServerNoPort);
    const EndSignals endSignals;
    QObject::connect(&endSignals, &EndSignals::endRequested, qApp, &QCoreApplication::quit);
    out << (options.faults.refuse ? "refusing on 127.0.0.1:" : "listening on 127.0.0.1:")
        << server.port() << '\n';
    out.flush();
    return QCoreApplication::exec();
}

} // namespace

int runServerProgram(const QStringList& arguments, QTextStream& out, QTextStream& err)
{
    ServerOptions options;
    QString error = readServerOptions(arguments, options);
    if (error.isEmpty() && options.mode == ServerOptions::ShowText) {
        out << options.text;
        return ServerDone;
    }
    if (error.isEmpty() && options.mode != ServerOptions::Compare)
        error = checkInstrument(options);
    if (!error.isEmpty())
        return fail(err, error);
    switch (options.mode) {
    case ServerOptions::Compare:
        return compare(options, out, err);
    case ServerOptions::Replay:
        return replay(options, out, err);
    default:
        return serve(options, out, err);
    }
}
