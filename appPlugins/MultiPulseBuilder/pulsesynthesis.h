// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <cstddef>
#include <vector>

/// The generators that turn pulses into sample values in volts. Points and indices are 32-bit
/// signed numbers; times in points may be fractional.

/// Stretch of the sample buffer that a generator fills.
struct INFO_WFM
{
    qint32 lAction;   ///< 2 adds to the buffer, 3 inserts before writing, anything else overwrites
    double dblAmp;    ///< volts peak-to-peak
    double dblOffset; ///< volts
    qint32 lStart;    ///< first index
    qint32 lStop;     ///< last index, inclusive
    qint32 lSize;     ///< valid points in the buffer, used by the insert action
};

/// Shape of one pulse.
struct INFO_PULSE
{
    double dblCycle;  ///< cycles in the stretch
    double dblPhase;  ///< start phase in degrees; a negative one counts from the cycle's end
    double l50Width;  ///< points at 50 % of the amplitude
    double lRiseTime; ///< points from 10 % to 90 %
    double lFallTime; ///< points from 90 % to 10 %
    qint32 lDelay;    ///< points of base level before the leading edge
    qint32 lDirect;   ///< 0 rises from the low level; anything else falls from the high level
    qint32 lRiseType; ///< 0 linear, anything else raised sine
    qint32 lFallType; ///< as lRiseType
};

// Descriptions are handed on as they stand in memory.
static_assert(offsetof(INFO_WFM, dblAmp) == 8 && offsetof(INFO_WFM, lStart) == 24, "field order");
static_assert(sizeof(INFO_WFM) == 40, "no field added or widened");
static_assert(offsetof(INFO_PULSE, l50Width) == 16 && offsetof(INFO_PULSE, lDelay) == 40,
              "field order");
static_assert(sizeof(INFO_PULSE) == 56, "no field added or widened");

/// Indices of a buffer that may be written: from @c first up to, not including, @c end.
struct SampleWindow
{
    qint64 first;
    qint64 end;
};

/// Writes the pulse to the indices lStart to lStop of @p wfmData, which holds at least lStop + 1
/// values (lSize for the insert action). Returns 0.
qint32 MakeWfmMultiPulses(INFO_WFM* infoWfm, INFO_PULSE* infoPulse, double* wfmData);

/// As MakeWfmMultiPulses(), but leaves every index outside @p window untouched: the stretch keeps
/// its length, and what lies outside is lost. The insert action moves nothing here.
void makePulseInWindow(const INFO_WFM& infoWfm, const INFO_PULSE& infoPulse, double* wfmData,
                       SampleWindow window);

/// Fills lStart to lStop with dblOffset, added to what is there when lAction is 2. Returns 0.
qint32 MakeWfmDC(INFO_WFM* infoWfm, double* wfmData);

/// Turns a group of times (seconds) into whole points, in place: each time gets its share of the
/// 131072 points that a train of @p dbTotalPeriod seconds may have, rounded down; what is lost by
/// rounding is not handed out again.
///
/// @p data is an output although it is passed as a read-only reference: callers pass a vector that
/// is not const. @p nTotalPoints receives the sum of the points. A group of zero duration has 0
/// points; counts beyond 32 bits saturate. Returns false, with everything unchanged, for a total
/// period of zero or an empty group.
bool timeUnitConvertToPointsUnit(double dbTotalPeriod, const std::vector<double>& data,
                                 long& nTotalPoints);

/// Samples per second at which a waveform of @p points would hold 3000 points, at most 2e9; 1000 to
/// 2999 points, and fewer than -999, keep @p dbSamplingRate.
double getSuitableSamplingRate(int points, double dbSamplingRate);
