// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "sweepplan.h"

#include "input.h"
#include "parametertable.h"
#include "setuprules.h"

#include <QSet>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

const double Nanosecond = 1e-9;

// Steps that miss the end of a range by less than this share of a step are meant to hit it.
const double StepTolerance = 1e-6;

QString widthReason(double width)
{
    const QString limits = QStringLiteral("%1 to %2")
                               .arg(engineeringText(PulseWidthRange.minimum, QStringLiteral("s")),
                                    engineeringText(PulseWidthRange.maximum, QStringLiteral("s")));
    const double nanoseconds = std::round(width / Nanosecond);
    if (nanoseconds >= std::round(PulseWidthRange.minimum / Nanosecond) &&
        nanoseconds <= std::round(PulseWidthRange.maximum / Nanosecond))
        return QString();
    return QStringLiteral("a width of %1 is outside %2")
        .arg(engineeringText(width, QStringLiteral("s")), limits);
}

QString countReason(int count)
{
    return count <= MaxSweepSetups ? QString()
                                   : QStringLiteral("more than %1 setups").arg(MaxSweepSetups);
}

QString repeatedReason(const QVector<SweepStep>& steps)
{
    QSet<QString> suffixes;
    for (const SweepStep& step : steps) {
        if (suffixes.contains(step.suffix))
            return QStringLiteral("two steps would have the name %1").arg(step.suffix);
        suffixes.insert(step.suffix);
    }
    return QString();
}

// Zeros before and behind make the numbers equally long, so that they sort as texts.
QStringList padded(const QStringList& numbers)
{
    const QChar point = QLatin1Char('.');
    int whole = 0;
    int decimals = 0;
    for (const QString& number : numbers) {
        // No zeros behind an exponent.
        if (number.contains(QLatin1Char('e')))
            return numbers;
        whole = std::max(whole, number.section(point, 0, 0).size());
        decimals = std::max(decimals, number.section(point, 1).size());
    }
    QStringList texts;
    for (const QString& number : numbers) {
        const QString left = number.section(point, 0, 0).rightJustified(whole, QLatin1Char('0'));
        const QString right = number.section(point, 1).leftJustified(decimals, QLatin1Char('0'));
        texts.append(right.isEmpty() ? left : left + point + right);
    }
    return texts;
}

void nameSteps(QVector<SweepStep>& steps, const QString& currentPrefix)
{
    QStringList widths;
    QStringList currents;
    for (const SweepStep& step : qAsConst(steps)) {
        widths.append(QString::number(double(step.nanoseconds) / 1000, 'f', 3));
        currents.append(currentPrefix.isEmpty() ? QString() : numberText(step.current));
    }
    widths = padded(widths);
    currents = padded(currents);
    for (int i = 0; i < steps.size(); ++i)
        steps[i].suffix =
            currentPrefix + currents.at(i) + QStringLiteral("_w%1u").arg(widths.at(i));
}

// One value of the range as a step; the reason where it cannot be one.
template<typename MakeStep>
SweepPlan planValues(const SweepRange& range, const QString& currentPrefix, MakeStep makeStep)
{
    SweepPlan plan;
    const QVector<double> values = range.values(MaxSweepSetups);
    plan.wrong = countReason(values.size());
    for (int i = 0; i < values.size() && plan.wrong.isEmpty(); ++i) {
        SweepStep step;
        plan.wrong = makeStep(values.at(i), step);
        plan.steps.append(step);
    }
    if (!plan.wrong.isEmpty())
        return plan;
    nameSteps(plan.steps, currentPrefix);
    plan.wrong = repeatedReason(plan.steps);
    return plan;
}

} // namespace

bool SweepRange::parse(const QString& text, SweepRange& range, const QString& unit)
{
    const QStringList parts = text.split(QLatin1Char(':'));
    SweepRange read;
    if (parts.size() == 1) {
        if (!parseEngineering(parts.at(0), read.from, unit))
            return false;
        range = {read.from, read.from, 0};
        return true;
    }
    if (parts.size() != 3 || !parseEngineering(parts.at(0), read.from, unit) ||
        !parseEngineering(parts.at(1), read.to, unit) ||
        !parseEngineering(parts.at(2), read.step, unit))
        return false;
    if (read.step == 0 || (read.to - read.from) / read.step < 0)
        return false;
    range = read;
    return true;
}

QVector<double> SweepRange::values(int most) const
{
    // Values are counted in whole steps: adding the step up would miss the end by rounding.
    const double steps = step == 0 ? 0 : std::floor((to - from) / step + StepTolerance);
    const int last = static_cast<int>(std::min(steps, double(most)));
    QVector<double> all;
    for (int i = 0; i <= last; ++i)
        all.append(from + i * step);
    return all;
}

SweepPlan planWidths(const SweepRange& range)
{
    return planValues(range, QString(), [](double width, SweepStep& step) {
        QString outside = widthReason(width);
        if (!outside.isEmpty())
            return outside;
        if (!isOnGrid(width, Nanosecond))
            return QStringLiteral("a width of %1 s is not a multiple of 1 ns")
                .arg(numberText(width));
        step.nanoseconds = std::llround(width / Nanosecond);
        return QString();
    });
}

SweepPlan planCurrents(const SweepRange& range, double voltage, double inductance)
{
    return planValues(range, QStringLiteral("_i"), [=](double current, SweepStep& step) {
        const double width = inductance * current / voltage;
        const QString outside = widthReason(width);
        if (!outside.isEmpty())
            return QStringLiteral("%1 A: %2").arg(numberText(current), outside);
        step.nanoseconds = std::llround(width / Nanosecond);
        step.current = current;
        return QString();
    });
}

QString cellOfNanoseconds(qint64 nanoseconds)
{
    if (nanoseconds < 1000)
        return QStringLiteral("%1.000n").arg(nanoseconds);
    return QStringLiteral("%1.%2u")
        .arg(nanoseconds / 1000)
        .arg(nanoseconds % 1000, 3, 10, QLatin1Char('0'));
}
