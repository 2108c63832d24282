// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "batch.h"
#include "commandline.h"
#include "input.h"
#include "progressbar.h"
#include "rendering.h"
#include "renderplan.h"
#include "setupcheck.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <thread>
#include <vector>

namespace {

const int MaxThreads = 1024;

struct Outcome
{
    QStringList messages; // for the error stream
    int exitCode = ExitOk;
};

class RenderLine : public CommandLine
{
public:
    RenderLine()
        : CommandLine(
              QStringLiteral("render"),
              QStringLiteral("Makes waveform files of setups: SETUP.json becomes SETUP.mpwv "
                             "beside it. Warns of everything that check would find."))
    {
        addArgument(QStringLiteral("SETUP"), QStringLiteral("Setup file, - for standard input."),
                    QStringLiteral("SETUP..."));
        addOption({QStringLiteral("o"), QStringLiteral("output")},
                  QStringLiteral("The file to write, - for standard output, or a folder."),
                  QStringLiteral("FILE|FOLDER"));
        addOption({QStringLiteral("j"), QStringLiteral("jobs")},
                  QStringLiteral("Setups that are worked on at once; all cores if not given."),
                  QStringLiteral("NUMBER"));
        addLoadOption();
    }

    /// Threads to use; 0 where the option is no number from 1 to 1024.
    int jobs() const
    {
        const QString option = QStringLiteral("jobs");
        if (!isSet(option))
            return static_cast<int>(std::max(1U, std::thread::hardware_concurrency()));
        const int jobs = value(option).toInt();
        return jobs > 0 && jobs <= MaxThreads ? jobs : 0;
    }
};

class RenderRun
{
public:
    RenderRun(const RenderPlan& plan, const RenderLine& line, Streams& streams)
        : m_plan(plan)
        , m_load(line.load())
        , m_nThreads(line.jobs())
        , m_streams(streams)
        , m_outcomes(static_cast<size_t>(plan.jobs.size()))
    {}

    int run()
    {
        const int count = m_plan.jobs.size();
        ProgressBar progress(m_streams.err, m_streams.errIsTerminal, count);
        runBatch(
            count, m_nThreads, [this] { return makeWorker(); },
            [this, &progress](int job) {
                report(job, progress);
                progress.show(job + 1);
            });
        return m_nExitCode;
    }

private:
    std::function<void(int)> makeWorker()
    {
        const auto renderer = std::make_shared<Renderer>();
        return [this, renderer](int job) { render(job, *renderer); };
    }

    void render(int job, Renderer& renderer)
    {
        const RenderJob& files = m_plan.jobs.at(job);
        Outcome& outcome = m_outcomes[static_cast<size_t>(job)];
        QJsonObject document;
        const QString refused = readSetup(files.input, m_streams, document);
        if (!refused.isEmpty()) {
            outcome = {{refused}, ExitInput};
            return;
        }
        for (const Finding& finding : checkSetup(document))
            outcome.messages.append(QLatin1String("warning: ") + findingLine(files.input, finding));
        const QString failed = write(trainOf(document, m_load), files.output, renderer);
        if (!failed.isEmpty()) {
            outcome.messages.append(failed);
            outcome.exitCode = ExitOutput;
        }
    }

    // What is no file of its own gets the bytes in one piece, when nothing can go wrong any more.
    QString write(const PulseTrain& train, const QString& output, Renderer& renderer)
    {
        const QFileInfo target(output);
        const bool streamed = output == QLatin1String("-") ||
                              (target.exists() && !target.isFile() && !target.isDir());
        if (!streamed) {
            const QString reason = renderer.writeFile(train, output);
            return reason.isEmpty() ? reason : printable(output) + QLatin1String(": ") + reason;
        }
        QByteArray bytes;
        const QString reason = renderer.makeBytes(train, bytes);
        return reason.isEmpty() ? writeOutput(output, bytes, m_streams) : reason;
    }

    void report(int job, ProgressBar& progress)
    {
        Outcome& outcome = m_outcomes[static_cast<size_t>(job)];
        if (!outcome.messages.isEmpty())
            progress.clear();
        for (const QString& message : outcome.messages)
            printError(m_streams, message);
        m_nExitCode = std::max(m_nExitCode, outcome.exitCode);
        outcome.messages.clear();
    }

    const RenderPlan& m_plan;
    std::optional<LoadImpedance> m_load;
    int m_nThreads;
    Streams& m_streams;
    std::vector<Outcome> m_outcomes;
    int m_nExitCode = ExitOk;
};

} // namespace

int runRender(const QStringList& arguments, Streams& streams)
{
    RenderLine line;
    if (const auto ended = line.parse(arguments, streams, 1, arguments.size()))
        return *ended;

    const RenderPlan plan = planRender(line.arguments(), line.value(QStringLiteral("output")));
    if (!plan.wrong.isEmpty())
        return line.usageError(plan.wrong, streams);
    if (line.jobs() == 0)
        return line.usageError(QStringLiteral("--jobs: not a number from 1 to 1024"), streams);
    if (!plan.folder.isEmpty() && !QDir().mkpath(plan.folder)) {
        printError(streams,
                   QStringLiteral("%1: cannot be made a folder").arg(printable(plan.folder)));
        return ExitOutput;
    }
    const int exitCode = RenderRun(plan, line, streams).run();
    // A folder that nothing has come into goes again; one with files in it is not removed by this.
    if (!plan.folder.isEmpty())
        QDir().rmdir(plan.folder);
    return exitCode;
}
