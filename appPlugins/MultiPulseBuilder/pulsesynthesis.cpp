// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulsesynthesis.h"

#include "dbutils.h"
#include "saturate.h"

#include <QDebug>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numeric>

namespace {

enum StoreAction { Add = 2, Insert = 3 };

const double TwoPi = 6.283185307;

// A 10 % to 90 % time as the whole ramp: four fifths of a linear one, less of a raised sine.
double rampPoints(double edgeTime, qint32 edgeType)
{
    return edgeTime * (edgeType != 0 ? 2.073878 : 1.25);
}

qint32 roundedCount(double value)
{
    return toCount(std::floor(value + 0.5));
}

// One cycle of a pulse, worked out from its description: corners in points from the cycle's start.
struct PulseCycle
{
    PulseCycle(const INFO_WFM& infoWfm, const INFO_PULSE& infoPulse);

    double leadingEdge(qint64 position) const;
    double trailingEdge(qint64 position) const;

    qint64 length;  // points of a cycle, at least one
    qint64 start;   // position of the stretch's first point in the cycle
    qint64 delay;   // end of the base before the leading edge
    qint64 topFrom; // end of the leading edge
    qint64 topTo;   // start of the trailing edge
    qint64 end;     // end of the trailing edge
    qint32 rise;
    qint32 fall;
    qint32 riseType;
    qint32 fallType;
    double amplitude;
    double base;
    double slopeSign;
};

PulseCycle::PulseCycle(const INFO_WFM& infoWfm, const INFO_PULSE& infoPulse)
    : riseType(infoPulse.lRiseType)
    , fallType(infoPulse.lFallType)
    , amplitude(infoWfm.dblAmp)
{
    const double size = static_cast<double>(infoWfm.lStop) - infoWfm.lStart + 1;
    const double pointsPerCycle = size / infoPulse.dblCycle;
    length = std::max(roundedCount(pointsPerCycle), 1);
    start = toCount(std::floor(0.5 + infoPulse.dblPhase / 360.0 * pointsPerCycle)) % length;
    if (start < 0)
        start += length;

    const double risePoints = rampPoints(infoPulse.lRiseTime, riseType);
    const double fallPoints = rampPoints(infoPulse.lFallTime, fallType);
    rise = roundedCount(risePoints);
    fall = roundedCount(fallPoints);
    const qint32 top =
        toCount(std::floor(infoPulse.l50Width - risePoints / 2 - fallPoints / 2 + 0.5));

    delay = infoPulse.lDelay;
    topFrom = delay + rise;
    topTo = topFrom + std::max(top, 0);
    end = topTo + fall;

    const bool positive = infoPulse.lDirect == 0;
    base = positive ? infoWfm.dblOffset - amplitude / 2 : infoWfm.dblOffset + amplitude / 2;
    slopeSign = positive ? 1 : -1;
}

double PulseCycle::leadingEdge(qint64 position) const
{
    const auto t = static_cast<double>(position - delay);
    if (riseType == 0)
        return base + slopeSign * amplitude * t / rise;
    return base +
           slopeSign * (t * amplitude / rise - amplitude / TwoPi * std::sin(TwoPi * t / rise));
}

double PulseCycle::trailingEdge(qint64 position) const
{
    const auto t = static_cast<double>(position - topTo);
    if (fallType == 0)
        return base + slopeSign * amplitude * (1 - t / fall);
    return base + slopeSign *
                      (amplitude / TwoPi * std::sin(TwoPi * t / fall) + (1 - t / fall) * amplitude);
}

// Writes sections of cycles to the part of a stretch that may be written.
class StretchWriter
{
public:
    StretchWriter(const PulseCycle& cycle, double* data, bool add, SampleWindow window)
        : m_cycle(cycle)
        , m_pData(data)
        , m_bAdd(add)
        , m_window(window)
    {}

    // The cycle whose first point has the index origin; cut to the window. Negative times put a
    // corner before the one it follows: a section never reaches back into the ones before it.
    void writeCycle(qint64 origin) const
    {
        const PulseCycle& c = m_cycle;
        const qint64 rampFrom = std::max(c.delay, qint64(0));
        const qint64 topFrom = std::max(rampFrom, c.topFrom);
        const qint64 fallFrom = std::max(topFrom, c.topTo);
        const qint64 baseFrom = std::max(fallFrom, c.end);
        fill(origin, 0, c.delay, c.base);
        ramp(origin, rampFrom, c.topFrom, [&c](qint64 j) { return c.leadingEdge(j); });
        fill(origin, topFrom, c.topTo, c.base + c.slopeSign * c.amplitude);
        ramp(origin, fallFrom, c.end, [&c](qint64 j) { return c.trailingEdge(j); });
        fill(origin, baseFrom, c.length, c.base);
    }

private:
    // From and to in cycle positions become buffer indices inside cycle and window.
    SampleWindow cut(qint64 origin, qint64 from, qint64 to) const
    {
        to = std::min(to, m_cycle.length);
        return {std::max(origin + from, m_window.first), std::min(origin + to, m_window.end)};
    }

    void fill(qint64 origin, qint64 from, qint64 to, double value) const
    {
        const SampleWindow part = cut(origin, from, to);
        if (part.first >= part.end)
            return;
        double* const first = m_pData + part.first;
        double* const last = m_pData + part.end;
        if (m_bAdd)
            std::transform(first, last, first, [value](double old) { return old + value; });
        else
            std::fill(first, last, value);
    }

    template<typename Height>
    void ramp(qint64 origin, qint64 from, qint64 to, Height height) const
    {
        const SampleWindow part = cut(origin, from, to);
        for (qint64 i = part.first; i < part.end; ++i) {
            const double value = height(i - origin);
            m_pData[i] = m_bAdd ? m_pData[i] + value : value;
        }
    }

    const PulseCycle& m_cycle;
    double* m_pData;
    bool m_bAdd;
    SampleWindow m_window;
};

// Makes room for a stretch: the tail of the buffer moves up behind it.
void moveTail(const INFO_WFM& infoWfm, double* wfmData)
{
    const qint64 count = qint64(infoWfm.lSize) - infoWfm.lStop - 1;
    if (count > 0)
        std::memmove(wfmData + infoWfm.lStop + 1, wfmData + infoWfm.lStart,
                     static_cast<size_t>(count) * sizeof(double));
}

} // namespace

qint32 MakeWfmMultiPulses(INFO_WFM* infoWfm, INFO_PULSE* infoPulse, double* wfmData)
{
    if (infoWfm->lAction == Insert)
        moveTail(*infoWfm, wfmData);
    makePulseInWindow(*infoWfm, *infoPulse, wfmData, {infoWfm->lStart, qint64(infoWfm->lStop) + 1});
    return 0;
}

void makePulseInWindow(const INFO_WFM& infoWfm, const INFO_PULSE& infoPulse, double* wfmData,
                       SampleWindow window)
{
    window.first = std::max(window.first, qint64(infoWfm.lStart));
    window.end = std::min(window.end, qint64(infoWfm.lStop) + 1);

    const PulseCycle cycle(infoWfm, infoPulse);
    const StretchWriter writer(cycle, wfmData, infoWfm.lAction == Add, window);
    qint64 origin = infoWfm.lStart - cycle.start;
    if (window.first > origin)
        origin += (window.first - origin) / cycle.length * cycle.length;
    for (; origin < window.end; origin += cycle.length)
        writer.writeCycle(origin);
}

qint32 MakeWfmDC(INFO_WFM* infoWfm, double* wfmData)
{
    const bool add = infoWfm->lAction == Add;
    for (qint64 i = infoWfm->lStart; i <= infoWfm->lStop; ++i)
        wfmData[i] = add ? wfmData[i] + infoWfm->dblOffset : infoWfm->dblOffset;
    return 0;
}

bool timeUnitConvertToPointsUnit(double dbTotalPeriod, const std::vector<double>& data,
                                 long& nTotalPoints)
{
    if (DBSameValue(dbTotalPeriod, 0.0) || data.empty())
        return false;

    // The signature promises what it does not keep; see the header.
    auto& times = const_cast<std::vector<double>&>(data);
    const double cycle = std::accumulate(times.begin(), times.end(), 0.0);
    const qint32 tmp = toCount(std::floor(cycle / dbTotalPeriod * 128.0 * 1024.0));

    qint32 total = 0;
    for (double& entry : times) {
        // A group of zero duration has no shares to divide.
        const double points = std::floor(entry / cycle * tmp);
        entry = std::isnan(points) ? 0.0 : points;
        total = toCount(total + entry);
    }
    nTotalPoints = total;

    qInfo() << "timeUnitConvertToPointsUnit"
            << "tmp" << tmp << "nTotalPoints" << nTotalPoints << "cycle" << cycle << "dbTotalPeriod"
            << dbTotalPeriod;
    return true;
}

double getSuitableSamplingRate(int points, double dbSamplingRate)
{
    qInfo() << "getSuitableSamplingRate"
            << "SAMPLE_RATE_CONST in use, points=" << points
            << "debSamplingRate=" << dbSamplingRate;

    if ((points >= -999 && points <= 999) || points >= 3000) {
        const double time = points / dbSamplingRate;
        dbSamplingRate = std::min(std::floor(3000 / time), 2000000000.0);
    }

    qInfo() << "getSuitableSamplingRate"
            << "dbSamplingRate" << dbSamplingRate;
    return dbSamplingRate;
}
