// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "segment.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <numeric>

namespace appPlugins {

namespace {

using Segments = std::list<SegmentObject>;

const int IdentifierCount = 16;
const SEGID FreeID = -1;
const SEGID NoIdentifierLeft = -2;
const SEGID NoMemoryLeft = -3;
const SEGID LongerThanMemory = -1;
const Uint32 Unknown = 0xFFFFFFFF;

template<typename List>
auto findSegment(List& segments, SEGID id)
{
    return std::find_if(segments.begin(), segments.end(),
                        [id](const SegmentObject& segment) { return segment.ID == id; });
}

Segments::iterator firstBehind(Segments& segments, Uint32 address)
{
    return std::find_if(segments.begin(), segments.end(), [address](const SegmentObject& segment) {
        return segment.startAddress > address;
    });
}

Uint32 totalLength(const Segments& segments)
{
    return std::accumulate(
        segments.begin(), segments.end(), Uint32(0),
        [](Uint32 sum, const SegmentObject& segment) { return sum + segment.length; });
}

void printSegments(const Segments& segments)
{
    for (const SegmentObject& segment : segments)
        std::printf(" start:%u len:%u ID:%d\n", segment.startAddress, segment.length, segment.ID);
}

SEGID noMemory()
{
    std::printf("no enough memory!\n");
    return NoMemoryLeft;
}

} // namespace

SegmentManager::SegmentManager(Uint32 size)
    : maxSize(size)
{
    format();
}

SEGID SegmentManager::malloc(Uint32 len)
{
    if (len > maxSize) {
        std::printf("len is greater than the maxSize(%u)\n", maxSize);
        return LongerThanMemory;
    }
    if (freeIDs.empty()) {
        std::printf("no available id!\n");
        return NoIdentifierLeft;
    }

    const auto fit =
        std::find_if(freeSegments.begin(), freeSegments.end(),
                     [len](const SegmentObject& stretch) { return stretch.length >= len; });
    if (fit == freeSegments.end())
        return noMemory();

    const SEGID id = freeIDs.front();
    freeIDs.pop();
    allocate(fit, len, id);
    return id;
}

// The two cases put the new segment at opposite ends of the used list. Whoever reads the printed
// state sees this order, so it stays.
void SegmentManager::allocate(Segments::iterator fit, Uint32 len, SEGID id)
{
    if (fit->length == len) {
        fit->ID = id;
        usedSegments.splice(usedSegments.begin(), freeSegments, fit);
        return;
    }

    usedSegments.emplace_back(fit->startAddress, len, id);
    fit->startAddress += len;
    fit->length -= len;
}

void SegmentManager::free(SEGID id)
{
    if (id < 0 || id >= IdentifierCount)
        return;

    const auto segment = findSegment(usedSegments, id);
    if (segment == usedSegments.end())
        return;

    freeIDs.push(id);
    // An empty segment has no memory to give back: it stays listed as used, its identifier apart.
    if (segment->length != 0)
        freeSegments.splice(firstBehind(freeSegments, segment->startAddress), usedSegments,
                            segment);
    defrag();
}

void SegmentManager::shrink(SEGID id, Uint32 len)
{
    const auto segment = findSegment(usedSegments, id);
    if (segment == usedSegments.end() || segment->length <= len)
        return;

    const Uint32 tail = segment->startAddress + len;
    freeSegments.emplace(firstBehind(freeSegments, tail), tail, segment->length - len, FreeID);
    segment->length = len;
    defrag();
}

void SegmentManager::defrag()
{
    for (auto segment = freeSegments.begin(); segment != freeSegments.end();) {
        const auto next = std::next(segment);
        if (next != freeSegments.end() &&
            segment->startAddress + segment->length == next->startAddress) {
            next->startAddress = segment->startAddress;
            next->length += segment->length;
            freeSegments.erase(segment);
        }
        segment = next;
    }
}

void SegmentManager::defrag(double* data)
{
    std::printf("Enter defrag!\n");
    usedSegments.sort([](const SegmentObject& left, const SegmentObject& right) {
        return left.startAddress < right.startAddress;
    });

    Uint32 position = 0;
    for (SegmentObject& segment : usedSegments) {
        if (segment.startAddress != position) {
            std::memmove(data + position, data + segment.startAddress,
                         segment.length * sizeof(double));
            segment.startAddress = position;
        }
        position += segment.length;
    }

    freeSegments.clear();
    freeSegments.emplace_back(position, maxSize - position, FreeID);
}

void SegmentManager::format()
{
    freeSegments.clear();
    usedSegments.clear();
    freeIDs = {};

    freeSegments.emplace_back(0, maxSize, FreeID);
    for (int id = 0; id < IdentifierCount; ++id)
        freeIDs.push(id);
}

Uint32 SegmentManager::getStart(SEGID id) const
{
    const auto segment = findSegment(usedSegments, id);
    return segment == usedSegments.end() ? Unknown : segment->startAddress;
}

Uint32 SegmentManager::getLength(SEGID id) const
{
    const auto segment = findSegment(usedSegments, id);
    return segment == usedSegments.end() ? Unknown : segment->length;
}

Uint32 SegmentManager::getFreeSpace() const
{
    return totalLength(freeSegments);
}

Uint32 SegmentManager::getFreeSegNum() const
{
    return Uint32(freeSegments.size());
}

Uint32 SegmentManager::getUsedSegNum() const
{
    return Uint32(usedSegments.size());
}

Uint32 SegmentManager::getFreeIDNum() const
{
    return Uint32(freeIDs.size());
}

void SegmentManager::debugSegment() const
{
    std::printf("freeSegments: %u\n", getFreeSegNum());
    std::printf("Total free Space:%u\n", getFreeSpace());
    printSegments(freeSegments);
    std::printf("usedSegments: %u\n", getUsedSegNum());
    printSegments(usedSegments);
    std::printf("freeIDs:%u\n", getFreeIDNum());
}

} // namespace appPlugins
