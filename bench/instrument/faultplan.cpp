// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "faultplan.h"

#include <functional>

namespace {

const int DefaultPieces = 3;
const qint64 MaxCount = 1000000000;

struct Fault
{
    const char* name;
    const char* argument; ///< its name in the help text; empty for a fault without one
    qint64 defaultValue;  ///< of an argument that may be left out; -1 where it may not
    qint64 minimum;
    qint64 maximum;
    std::function<void(FaultPlan&, qint64)> apply;
    const char* description;
};

const QVector<Fault>& faults()
{
    static const QVector<Fault> table = {
        {"no-accept", "", 0, 0, 0, [](FaultPlan& plan, qint64) { plan.noAccept = true; },
         "take no connection: clients connect, and nobody answers"},
        {"refuse", "", 0, 0, 0, [](FaultPlan& plan, qint64) { plan.refuse = true; },
         "hold the port without listening, so that connections are refused"},
        {"slow", "MS", -1, 0, 600000,
         [](FaultPlan& plan, qint64 n) { plan.slowMs = static_cast<int>(n); },
         "wait MS milliseconds before each reply or piece of one"},
        {"split", "N", DefaultPieces, 1, 1000,
         [](FaultPlan& plan, qint64 n) { plan.pieces = static_cast<int>(n); },
         "send each reply in N pieces cut at random places (3 without =N)"},
        {"close-after", "N", -1, 0, MaxCount,
         [](FaultPlan& plan, qint64 n) { plan.closeAfter = n; },
         "close a connection once N bytes have been received on it"},
        {"half-close-after", "N", -1, 0, MaxCount,
         [](FaultPlan& plan, qint64 n) { plan.halfCloseAfter = n; },
         "likewise, but close the sending side alone and go on reading"},
        {"close-at", "N", -1, 1, MaxCount, [](FaultPlan& plan, qint64 n) { plan.closeAt = n; },
         "close a connection when its N-th command is there, without executing it"},
        {"half-close-at", "N", -1, 1, MaxCount,
         [](FaultPlan& plan, qint64 n) { plan.halfCloseAt = n; },
         "close its sending side then, and execute this and later commands"},
        {"no-reply", "", 0, 0, 0, [](FaultPlan& plan, qint64) { plan.noReply = true; },
         "execute commands and queries, but send no reply"},
        {"rubbish", "", 0, 0, 0, [](FaultPlan& plan, qint64) { plan.rubbish = true; },
         "send 1 to 80 random bytes in place of each reply"},
    };
    return table;
}

QString formOf(const Fault& fault)
{
    QString name = QLatin1String(fault.name);
    const QString argument = QLatin1String(fault.argument);
    if (argument.isEmpty())
        return name;
    const QString form =
        fault.defaultValue < 0 ? QStringLiteral("%1=%2") : QStringLiteral("%1[=%2]");
    return form.arg(name, argument);
}

QString applyFault(const Fault& fault, const QString& item, FaultPlan& plan)
{
    const bool hasArgument = item.contains(QLatin1Char('='));
    const bool takesArgument = *fault.argument != 0;
    bool isNumber = !hasArgument && (!takesArgument || fault.defaultValue >= 0);
    qint64 value = fault.defaultValue;
    if (hasArgument && takesArgument)
        value = item.section(QLatin1Char('='), 1).toLongLong(&isNumber);
    if (!isNumber || value < fault.minimum || value > fault.maximum) {
        return QStringLiteral("fault \"%1\": not of the form %2, N from %3 to %4")
            .arg(item, formOf(fault))
            .arg(fault.minimum)
            .arg(fault.maximum);
    }
    fault.apply(plan, value);
    return QString();
}

QString addFault(const QString& item, FaultPlan& plan)
{
    const QString name = item.section(QLatin1Char('='), 0, 0);
    for (const Fault& fault : faults()) {
        if (name == QLatin1String(fault.name))
            return applyFault(fault, item, plan);
    }
    return QStringLiteral("fault \"%1\": no such fault").arg(item);
}

} // namespace

QString addFaults(const QString& text, FaultPlan& plan)
{
    for (const QString& item : text.split(QLatin1Char(','))) {
        QString error = addFault(item.trimmed(), plan);
        if (!error.isEmpty())
            return error;
    }
    return QString();
}

QStringList faultDescriptions()
{
    QStringList lines;
    for (const Fault& fault : faults()) {
        lines.append(
            QStringLiteral("%1 %2").arg(formOf(fault), -20).arg(QLatin1String(fault.description)));
    }
    return lines;
}
