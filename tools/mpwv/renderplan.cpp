// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "renderplan.h"

#include "input.h"

#include <QDir>
#include <QFileInfo>
#include <QHash>
#include <QSet>

namespace {

const QLatin1String Standard("-");

bool isFolderTarget(const QStringList& setups, const QString& target)
{
    return setups.size() > 1 || target.endsWith(QLatin1Char('/')) || QFileInfo(target).isDir();
}

QString outputFor(const QString& setup, const QString& target, bool folder)
{
    if (folder) {
        const QString name =
            setup == Standard ? QStringLiteral("stdin.json") : QFileInfo(setup).fileName();
        return QDir(target).filePath(waveformName(name));
    }
    if (!target.isEmpty())
        return target;
    return setup == Standard ? QString(Standard) : waveformName(setup);
}

QSet<QString> identities(const QStringList& setups)
{
    QSet<QString> names;
    for (const QString& setup : setups) {
        if (setup != Standard)
            names.insert(fileIdentity(setup));
    }
    return names;
}

QString collision(const QVector<RenderJob>& jobs, const QStringList& setups)
{
    const QSet<QString> inputs = identities(setups);
    QHash<QString, QString> outputs;
    for (const RenderJob& job : jobs) {
        if (job.output == Standard)
            continue;
        const QString name = fileIdentity(job.output);
        if (inputs.contains(name))
            return QStringLiteral("%1 is a setup and would be overwritten")
                .arg(printable(job.output));
        const auto other = outputs.constFind(name);
        if (other != outputs.constEnd())
            return QStringLiteral("%1 and %2 would both become %3")
                .arg(printable(*other), printable(job.input), printable(job.output));
        outputs.insert(name, job.input);
    }
    return QString();
}

} // namespace

QString waveformName(const QString& setup)
{
    const QLatin1String ending(".json");
    const bool usual = setup.endsWith(ending);
    return (usual ? setup.left(setup.size() - ending.size()) : setup) + QLatin1String(".mpwv");
}

RenderPlan planRender(const QStringList& setups, const QString& target)
{
    RenderPlan plan;
    if (target == Standard && setups.size() > 1) {
        plan.wrong = QStringLiteral("one setup only can go to the standard output");
        return plan;
    }

    const bool folder = !target.isEmpty() && target != Standard && isFolderTarget(setups, target);
    for (const QString& setup : setups)
        plan.jobs.append({setup, outputFor(setup, target, folder)});
    if (folder && !QFileInfo::exists(target))
        plan.folder = target;
    plan.wrong = collision(plan.jobs, setups);
    return plan;
}
