// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "outputwaveform.h"

class InstrumentLink;

/// What channel 1 of the instrument put out in its last burst.
struct ChannelTrace
{
    OutputWaveform waveform;
    double start = 0; ///< seconds from the trigger to the first sample
};

/// Fetches the trace over @p link. Returns an empty text and fills @p trace, or the reason: there
/// is no burst yet, or the replies are not what they should be.
QString fetchTrace(InstrumentLink& link, ChannelTrace& trace);
