// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pulsesynthesis.h"

#include <cmath>

/// A second calculation of a pulse, one point at a time, to hold the generator's sections against.
class PulseReference
{
public:
    PulseReference(const INFO_WFM& wfm, const INFO_PULSE& pulse)
        : m_wfm(wfm)
        , m_pulse(pulse)
    {
        const double perCycle = (wfm.lStop - wfm.lStart + 1) / pulse.dblCycle;
        const double rise = pulse.lRiseTime * (pulse.lRiseType ? 2.073878 : 1.25);
        const double fall = pulse.lFallTime * (pulse.lFallType ? 2.073878 : 1.25);
        m_nCycle = qint64(std::floor(perCycle + 0.5));
        m_nFirst = qint64(std::floor(0.5 + pulse.dblPhase / 360.0 * perCycle));
        m_nRise = qint64(std::floor(rise + 0.5));
        m_nFall = qint64(std::floor(fall + 0.5));
        const auto top = qint64(std::floor(pulse.l50Width - rise / 2 - fall / 2 + 0.5));
        m_nTop = top < 0 ? 0 : top;
    }

    /// The value at a buffer index inside the stretch; the stretch must be one point long at least.
    double at(qint64 index) const
    {
        qint64 position = (m_nFirst + index - m_wfm.lStart) % m_nCycle;
        if (position < 0)
            position += m_nCycle;
        return height(position);
    }

    bool isDefined() const { return m_nCycle > 0; }

private:
    double height(qint64 j) const
    {
        const bool down = m_pulse.lDirect != 0;
        const double half = m_wfm.dblAmp / 2;
        const double base = down ? m_wfm.dblOffset + half : m_wfm.dblOffset - half;
        const double sign = down ? -1 : 1;
        const qint64 p1 = m_pulse.lDelay + m_nRise;
        const qint64 p2 = p1 + m_nTop;
        const qint64 p3 = p2 + m_nFall;
        // A factor of 1 or -1 is exact wherever it stands in a product.
        if (j < m_pulse.lDelay)
            return base;
        if (j < p1)
            return base + sign * leading(double(j - m_pulse.lDelay));
        if (j < p2)
            return base + sign * m_wfm.dblAmp;
        if (j < p3)
            return base + sign * trailing(double(j - p2));
        return base;
    }

    double leading(double t) const
    {
        if (m_pulse.lRiseType == 0)
            return m_wfm.dblAmp * t / double(m_nRise);
        return t * m_wfm.dblAmp / double(m_nRise) -
               m_wfm.dblAmp / 6.283185307 * std::sin(6.283185307 * t / double(m_nRise));
    }

    double trailing(double t) const
    {
        if (m_pulse.lFallType == 0)
            return m_wfm.dblAmp * (1 - t / double(m_nFall));
        return m_wfm.dblAmp / 6.283185307 * std::sin(6.283185307 * t / double(m_nFall)) +
               (1 - t / double(m_nFall)) * m_wfm.dblAmp;
    }

    INFO_WFM m_wfm;
    INFO_PULSE m_pulse;
    qint64 m_nCycle;
    qint64 m_nFirst;
    qint64 m_nRise;
    qint64 m_nFall;
    qint64 m_nTop;
};
