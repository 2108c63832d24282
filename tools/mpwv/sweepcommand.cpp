// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "commandline.h"
#include "input.h"
#include "parametertable.h"
#include "setupdocument.h"
#include "setuprules.h"
#include "setupseries.h"
#include "sweepplan.h"
#include "texttable.h"
#include "timing.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace {

const QLatin1String Voltage("voltage");
const QLatin1String Inductance("inductance");

class SweepLine : public CommandLine
{
public:
    SweepLine()
        : CommandLine(
              QStringLiteral("sweep"),
              QStringLiteral("Makes the series of setups of a double-pulse test: copies of a "
                             "setup with the width of one pulse swept, or with the width of "
                             "the first pulse that drives a current through an inductance. "
                             "Ranges are FROM:TO:STEP, in steps of STEP from FROM up to TO, "
                             "numbers as 2u, 0.5m or 2us. Prints a table of the series."))
    {
        addArgument(QStringLiteral("SETUP"), QStringLiteral("Setup file, - for standard input."),
                    QStringLiteral("SETUP"));
        addOption({QStringLiteral("o"), QStringLiteral("output")},
                  QStringLiteral("Folder of the series; made where it does not exist."),
                  QStringLiteral("FOLDER"));
        addSweepOptions();
        addJsonOption();
        addOption({QStringLiteral("csv")}, QStringLiteral("Print the table as CSV."));
    }

private:
    void addSweepOptions()
    {
        addOption({QStringLiteral("pulse")}, QStringLiteral("The pulse to sweep; 1 if not given."),
                  QStringLiteral("NUMBER"));
        addOption({QStringLiteral("width")}, QStringLiteral("Widths in seconds."),
                  QStringLiteral("RANGE"));
        addOption({QStringLiteral("current")},
                  QStringLiteral("Currents in amperes, for the first pulse."),
                  QStringLiteral("RANGE"));
        addOption({Voltage}, QStringLiteral("Volts across the inductance."),
                  QStringLiteral("NUMBER"));
        addOption({Inductance}, QStringLiteral("Henries."), QStringLiteral("NUMBER"));
    }
};

// The complaint about an option that "--current" needs; empty when @p value is filled.
QString readPositive(const CommandLine& line, const QString& option, const QString& unit,
                     const QString& example, double& value)
{
    if (!line.isSet(option))
        return QStringLiteral("--current wants --%1").arg(option);
    if (parseEngineering(line.value(option), value, unit) && value > 0)
        return QString();
    return QStringLiteral("--%1: \"%2\" is no number above 0 such as %3; %4")
        .arg(option, printable(line.value(option)), example, prefixHint());
}

SweepPlan wrongPlan(const QString& reason)
{
    return {{}, reason};
}

SweepPlan currentPlan(const CommandLine& line, const SweepRange& range)
{
    double voltage = 0;
    double inductance = 0;
    QString wrong =
        readPositive(line, Voltage, QStringLiteral("V"), QStringLiteral("400 or 400V"), voltage);
    if (wrong.isEmpty())
        wrong = readPositive(line, Inductance, QStringLiteral("H"), QStringLiteral("50u or 50uH"),
                             inductance);
    return wrong.isEmpty() ? planCurrents(range, voltage, inductance) : wrongPlan(wrong);
}

// An option that widths have no use for.
QString strayOption(const CommandLine& line)
{
    if (line.isSet(Voltage))
        return Voltage;
    return line.isSet(Inductance) ? QString(Inductance) : QString();
}

SweepPlan planOf(const CommandLine& line)
{
    const bool currents = line.isSet(QStringLiteral("current"));
    if (currents == line.isSet(QStringLiteral("width")))
        return wrongPlan(QStringLiteral("give either --width or --current"));

    const QString stray = currents ? QString() : strayOption(line);
    if (!stray.isEmpty())
        return wrongPlan(QStringLiteral("--%1 goes with --current, not with --width").arg(stray));
    const QString option = currents ? QStringLiteral("current") : QStringLiteral("width");
    const QString unit = currents ? QStringLiteral("A") : QStringLiteral("s");
    SweepRange range;
    if (!SweepRange::parse(line.value(option), range, unit))
        return wrongPlan(
            QStringLiteral("--%1: \"%2\" is no range FROM:TO:STEP such as %3; %4")
                .arg(option, printable(line.value(option)),
                     currents ? QStringLiteral("10:100:10") : QStringLiteral("2u:20u:1u"),
                     prefixHint()));
    return currents ? currentPlan(line, range) : planWidths(range);
}

// Rows are counted from one; 0 for what is no number of a row.
int pulseOf(const CommandLine& line)
{
    if (!line.isSet(QStringLiteral("pulse")))
        return 1;
    return std::max(line.value(QStringLiteral("pulse")).toInt(), 0);
}

QString complaint(const CommandLine& line, const SweepPlan& plan)
{
    const QString folder = QStringLiteral("output");
    if (!line.isSet(folder))
        return QStringLiteral("-o FOLDER is missing");
    if (line.value(folder) == QLatin1String("-"))
        return QStringLiteral("-o -: a series goes into a folder, not to the standard output");
    if (pulseOf(line) == 0)
        return QStringLiteral("--pulse: \"%1\" is no number of a pulse, from 1 on")
            .arg(printable(line.value(QStringLiteral("pulse"))));
    if (pulseOf(line) > 1 && line.isSet(QStringLiteral("current")))
        return QStringLiteral("--pulse %1 goes with --width: --current sweeps the first pulse")
            .arg(pulseOf(line));
    return plan.wrong;
}

QJsonArray storedRows(const QJsonObject& document)
{
    const QJsonObject stored = document.value(SetupKey::MultiplePulses).toObject();
    return stored.value(SetupKey::WidthGap).toArray();
}

// Everything else in the document stays, members that nobody knows included.
QJsonObject withWidth(QJsonObject document, int row, const QString& width)
{
    QJsonObject stored = document.value(SetupKey::MultiplePulses).toObject();
    QJsonArray rows = storedRows(document);
    QJsonObject cells = rows.at(row).toObject();
    cells.insert(SetupKey::Width, width);
    rows.replace(row, cells);
    stored.insert(SetupKey::WidthGap, rows);
    document.insert(SetupKey::MultiplePulses, stored);
    return document;
}

// Sums leave digits behind the ones that were meant.
double plainNumber(double value)
{
    return numberText(value).toDouble();
}

class Series
{
public:
    Series(const CommandLine& line, const SweepPlan& plan, const QJsonObject& document)
        : m_document(document)
        , m_plan(plan)
        , m_nRow(pulseOf(line) - 1)
        , m_bCurrents(line.isSet(QStringLiteral("current")))
    {
        const QString path = line.arguments().constFirst();
        m_strBase = path == QLatin1String("-") ? QStringLiteral("setup")
                                               : QFileInfo(path).completeBaseName();
    }

    int count() const { return m_plan.steps.size(); }

    SeriesFile file(int index) const
    {
        return {nameOf(index), QJsonDocument(documentOf(index)).toJson()};
    }

    /// Headings, then a row for each setup; numbers in base units.
    QVector<QStringList> table() const
    {
        QVector<QStringList> rows = {{QStringLiteral("file"), QStringLiteral("width_s"),
                                      QStringLiteral("played_s"), QStringLiteral("period_s"),
                                      QStringLiteral("frequency_Hz")}};
        if (m_bCurrents)
            rows[0].insert(1, QStringLiteral("current_A"));
        for (int i = 0; i < count(); ++i)
            rows.append(tableRow(i));
        return rows;
    }

    QJsonArray json() const
    {
        QJsonArray setups;
        for (int i = 0; i < count(); ++i)
            setups.append(jsonOf(i));
        return setups;
    }

private:
    QString nameOf(int index) const
    {
        return m_strBase + m_plan.steps.at(index).suffix + QLatin1String(".json");
    }

    QJsonObject documentOf(int index) const
    {
        return withWidth(m_document, m_nRow, cellOfNanoseconds(m_plan.steps.at(index).nanoseconds));
    }

    TrainTiming timingOf(int index) const
    {
        return trainTiming(PulseTrain::fromDocument(documentOf(index)));
    }

    QStringList tableRow(int index) const
    {
        const TrainTiming timing = timingOf(index);
        const QuantisedTime width = timing.pulses.at(m_nRow).width;
        QStringList row = {nameOf(index), numberText(width.asked), numberText(width.got),
                           numberText(timing.period), numberText(timing.frequency)};
        if (m_bCurrents)
            row.insert(1, numberText(m_plan.steps.at(index).current));
        return row;
    }

    QJsonObject jsonOf(int index) const
    {
        const TrainTiming timing = timingOf(index);
        const QuantisedTime width = timing.pulses.at(m_nRow).width;
        QJsonObject setup = {{QStringLiteral("file"), nameOf(index)},
                             {QStringLiteral("width"), plainNumber(width.asked)},
                             {QStringLiteral("played"), width.got},
                             {QStringLiteral("period"), plainNumber(timing.period)},
                             {QStringLiteral("frequency"), plainNumber(timing.frequency)}};
        if (m_bCurrents)
            setup.insert(QStringLiteral("current"), plainNumber(m_plan.steps.at(index).current));
        return setup;
    }

    QJsonObject m_document;
    SweepPlan m_plan;
    int m_nRow;
    bool m_bCurrents;
    QString m_strBase;
};

QString csvText(const QVector<QStringList>& rows)
{
    QString text;
    for (QStringList row : rows) {
        // The file's name is the one cell that may hold anything.
        row[0].replace(QLatin1Char('"'), QLatin1String("\"\""));
        if (row.at(0).contains(QLatin1Char(',')) || row.at(0).contains(QLatin1Char('"')))
            row[0] = QLatin1Char('"') + row.at(0) + QLatin1Char('"');
        text += row.join(QLatin1Char(',')) + QLatin1Char('\n');
    }
    return text;
}

QByteArray tableBytes(const CommandLine& line, const Series& series)
{
    if (line.isSet(QStringLiteral("json")))
        return QJsonDocument(series.json()).toJson();
    if (line.isSet(QStringLiteral("csv")))
        return csvText(series.table()).toUtf8();
    return textTable(series.table()).toUtf8();
}

int failed(const QString& reason, int exitCode, Streams& streams)
{
    printError(streams, reason);
    return exitCode;
}

} // namespace

int runSweep(const QStringList& arguments, Streams& streams)
{
    SweepLine line;
    if (const auto ended = line.parse(arguments, streams, 1, 1))
        return *ended;
    const SweepPlan plan = planOf(line);
    const QString wrong = complaint(line, plan);
    if (!wrong.isEmpty())
        return line.usageError(wrong, streams);

    QJsonObject document;
    const QString refused = readSetup(line.arguments().constFirst(), streams, document);
    if (!refused.isEmpty())
        return failed(refused, ExitInput, streams);
    const int rows = storedRows(document).size();
    if (pulseOf(line) > rows)
        return failed(QStringLiteral("%1: multiple pulses.width/gap: %2 rows, no pulse %3")
                          .arg(printable(line.arguments().constFirst()))
                          .arg(rows)
                          .arg(pulseOf(line)),
                      ExitInput, streams);

    const Series series(line, plan, document);
    const QString unwritten = writeSeries(line.value(QStringLiteral("output")), series.count(),
                                          [&series](int index) { return series.file(index); });
    if (!unwritten.isEmpty())
        return failed(unwritten, ExitOutput, streams);
    streams.out->write(tableBytes(line, series));
    return ExitOk;
}
