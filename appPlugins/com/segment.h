// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"
#include "apptypes.h"

#include <list>
#include <queue>

namespace appPlugins {

/// Identifier of a used segment, 0 to 15; -1 marks a free stretch made by the manager.
using SEGID = qint32;

/// One stretch of the sample memory. Addresses and lengths count samples.
struct SegmentObject
{
    /// @p len samples from sample @p start on.
    SegmentObject(Uint32 start, Uint32 len, SEGID id)
        : startAddress(start)
        , length(len)
        , ID(id)
    {}

    Uint32 startAddress; ///< first sample
    Uint32 length;       ///< samples
    SEGID ID;            ///< 0 to 15 for a used segment; means nothing for a free stretch
};

/// Hands out up to 16 numbered segments of one linear sample memory, so that several waveforms
/// share one buffer. First fit, with freed neighbours merged (Knuth, The Art of Computer
/// Programming, volume 1, section 2.5); defrag(data) compacts. The buffer itself is the caller's.
/// Trouble is printed on standard output; nothing throws. One thread at a time.
class APPPLUGINS_EXPORT SegmentManager
{
public:
    /// A memory of @p maxSize samples, all free, with the identifiers 0 to 15 in ascending order.
    explicit SegmentManager(Uint32 maxSize);

    /// Allocates @p len samples. Returns the segment's identifier; -1 when @p len exceeds the
    /// memory, -2 when no identifier is left, -3 when no free stretch is long enough.
    SEGID malloc(Uint32 len);

    /// Gives a segment back and its identifier to the end of the queue. An identifier out of range
    /// or not in use is ignored. A segment of no samples stays listed as used.
    void free(SEGID id);

    /// Cuts a used segment down to its first @p len samples; a longer @p len changes nothing.
    void shrink(SEGID id, Uint32 len);

    /// Merges free stretches that touch and follow each other in the list.
    void defrag();

    /// Moves the used segments' samples in @p data (maxSize doubles, borrowed) down to its start,
    /// in ascending order of address, and leaves one free stretch behind them.
    void defrag(double* data);

    /// Back to the freshly constructed state.
    void format();

    /// First sample of a used segment; 0xFFFFFFFF when no used segment has that identifier.
    Uint32 getStart(SEGID id) const;
    /// Samples of a used segment; 0xFFFFFFFF when no used segment has that identifier.
    Uint32 getLength(SEGID id) const;
    /// Sum of the free stretches' lengths.
    Uint32 getFreeSpace() const;
    /// Number of free stretches.
    Uint32 getFreeSegNum() const;
    /// Number of used segments.
    Uint32 getUsedSegNum() const;
    /// Identifiers left in the queue, 16 at first.
    Uint32 getFreeIDNum() const;

    /// Prints the free and used segments and the number of free identifiers on standard output.
    void debugSegment() const;

private:
    void allocate(std::list<SegmentObject>::iterator fit, Uint32 len, SEGID id);

    std::list<SegmentObject> freeSegments; ///< ascending start address
    std::list<SegmentObject> usedSegments; ///< exact fits are put in front, others at the end
    std::queue<int> freeIDs;
    Uint32 maxSize;
};

} // namespace appPlugins
