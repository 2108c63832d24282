// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "scenarioprogram.h"

#include "commandlog.h"
#include "hostdesk.h"
#include "scenariocheck.h"
#include "scenariooptions.h"
#include "scenarioplayer.h"

#include <QDir>
#include <QFile>
#include <QTextStream>

namespace {

QString readFile(const QString& name, QIODevice& in, QByteArray& text)
{
    if (name == QLatin1String("-")) {
        text = in.readAll();
        return {};
    }
    QFile file(name);
    if (!file.open(QIODevice::ReadOnly))
        return QStringLiteral("cannot read %1: %2").arg(name, file.errorString());
    text = file.readAll();
    return {};
}

QStringList readScenarios(const QStringList& files, QIODevice& in, QVector<Scenario>& scenarios)
{
    QStringList mistakes;
    for (const QString& name : files) {
        QByteArray text;
        Scenario scenario;
        scenario.fileName = name;
        const QString unreadable = readFile(name, in, text);
        mistakes += unreadable.isEmpty() ? parseScenario(text, scenario) : QStringList(unreadable);
        scenarios.append(scenario);
    }
    return mistakes;
}

int refuse(QTextStream& err, const QStringList& reasons)
{
    for (const QString& reason : reasons)
        err << "kvx-scenario: " << reason << '\n';
    err.flush();
    return ScenarioUsage;
}

int play(const ScenarioOptions& options, const QVector<Scenario>& scenarios, QTextStream& out,
         QTextStream& err)
{
    if (!QDir().mkpath(options.folders.output) ||
        (options.folders.approve && !QDir().mkpath(options.folders.pictures)))
        return refuse(err, {QStringLiteral("cannot make the folder for pictures")});
    HostDesk desk(options.screenPort, options.keypad, options.instrumentPort);
    if (!desk.connectToHost())
        return refuse(err, {desk.trouble()});
    CommandLog commands(options.transcript);
    ScenarioPlayer player(desk, commands, options.folders, out);
    const QString unready = player.begin(options.language);
    if (!unready.isEmpty())
        return refuse(err, {unready});
    for (const Scenario& scenario : scenarios) {
        const QString report = player.play(scenario);
        if (report.isEmpty())
            continue;
        err << report << Qt::flush;
        return ScenarioFailed;
    }
    return ScenarioPassed;
}

} // namespace

int runScenarioProgram(const QStringList& arguments, QIODevice& in, QTextStream& out,
                       QTextStream& err)
{
    const ScenarioOptions options = parseScenarioOptions(arguments);
    if (options.task == ScenarioOptions::Refuse)
        return refuse(err, {options.text});
    if (options.task == ScenarioOptions::Tell) {
        out << options.text << Qt::flush;
        return ScenarioPassed;
    }
    QVector<Scenario> scenarios;
    QStringList mistakes = readScenarios(options.files, in, scenarios);
    if (mistakes.isEmpty())
        mistakes = unknownIdentifiers(scenarios, options.folders.translations);
    if (!mistakes.isEmpty())
        return refuse(err, mistakes);
    return options.task == ScenarioOptions::Check ? ScenarioPassed
                                                  : play(options, scenarios, out, err);
}
