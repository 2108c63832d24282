// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "segment.h"
#include "segmentreference.h"
#include "stdoutcapture.h"

#include <QByteArray>
#include <QList>

#include <algorithm>
#include <random>
#include <vector>

inline QByteArray segmentStateWithoutFreeIds(const appPlugins::SegmentManager& manager)
{
    const QList<QByteArray> lines = printed([&manager] { manager.debugSegment(); }).split('\n');
    QByteArray result;
    bool used = false;
    for (const QByteArray& text : lines) {
        used = used || text.startsWith("usedSegments");
        const int mark = text.indexOf(" ID:");
        result += (used || mark < 0 ? text : text.left(mark)) + "\n";
    }
    result.chop(1);
    return result;
}

/// Plays the same operations on a manager with its sample memory and on the reference.
class SegmentDuel
{
public:
    SegmentDuel(unsigned seed, Uint32 size)
        : m_generator(seed)
        , m_size(size)
        , m_manager(size)
        , m_reference(size)
        , m_data(size, 0.0)
    {}

    /// One random operation on both; false when their results or the samples after it differ.
    bool step()
    {
        switch (draw(12)) {
        case 0:
        case 1:
        case 2:
        case 3:
            return allocate(draw(m_size / 6));
        case 4:
            return allocate(draw(3) == 0 ? m_size + draw(3) : draw(m_size));
        case 5:
        case 6:
        case 7:
            return give(appPlugins::SEGID(draw(20)) - 2);
        case 8:
        case 9:
            return shrink(appPlugins::SEGID(draw(20)) - 2, draw(m_size / 8));
        case 10:
            return fillUp();
        default:
            return compact();
        }
    }

    QByteArray actual() const { return segmentStateWithoutFreeIds(m_manager); }
    QByteArray expected() const { return m_reference.text(); }

private:
    Uint32 draw(Uint32 bound) { return Uint32(m_generator()) % bound; }

    bool allocate(Uint32 length)
    {
        m_mark += 1;
        appPlugins::SEGID id = 0;
        printed([&] { id = m_manager.malloc(length); });
        const appPlugins::SEGID expectedId = m_reference.malloc(length, m_mark);
        for (const SegmentReference::Segment& segment : m_reference.used()) {
            if (segment.mark == m_mark)
                std::fill_n(m_data.begin() + segment.start, length, m_mark);
        }
        return id == expectedId;
    }

    bool give(appPlugins::SEGID id)
    {
        m_manager.free(id);
        m_reference.free(id);
        return true;
    }

    bool shrink(appPlugins::SEGID id, Uint32 length)
    {
        m_manager.shrink(id, length);
        m_reference.shrink(id, length);
        return true;
    }

    bool fillUp()
    {
        const std::vector<SegmentReference::Stretch> free = m_reference.stretches();
        return free.empty() || allocate(free[draw(Uint32(free.size()))].length);
    }

    bool compact()
    {
        printed([this] { m_manager.defrag(m_data.data()); });
        m_reference.compact();
        return std::all_of(
            m_reference.used().begin(), m_reference.used().end(),
            [this](const SegmentReference::Segment& segment) { return isIntact(segment); });
    }

    bool isIntact(const SegmentReference::Segment& segment) const
    {
        const auto begin = m_data.begin() + segment.start;
        return std::all_of(begin, begin + segment.length,
                           [&segment](double sample) { return sample == segment.mark; });
    }

    std::mt19937 m_generator;
    Uint32 m_size;
    appPlugins::SegmentManager m_manager;
    SegmentReference m_reference;
    std::vector<double> m_data;
    double m_mark = 0;
};
