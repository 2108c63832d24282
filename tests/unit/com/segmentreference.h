// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "segment.h"

#include <QByteArray>

#include <algorithm>
#include <numeric>
#include <vector>

/// What the segment manager promises, told in another way: the free stretches are what no used
/// segment covers.
class SegmentReference
{
public:
    struct Segment
    {
        Uint32 start;
        Uint32 length;
        appPlugins::SEGID id;
        double mark; ///< what the segment's samples hold
    };
    struct Stretch
    {
        Uint32 start;
        Uint32 length;
    };

    explicit SegmentReference(Uint32 size)
        : m_size(size)
        , m_ids(16)
    {
        std::iota(m_ids.begin(), m_ids.end(), 0);
    }

    appPlugins::SEGID malloc(Uint32 length, double mark)
    {
        if (length > m_size)
            return -1;
        if (m_ids.empty())
            return -2;
        for (const Stretch& stretch : stretches()) {
            if (stretch.length >= length)
                return take(stretch, length, mark);
        }
        return -3;
    }

    void free(appPlugins::SEGID id)
    {
        Segment* segment = find(id);
        if (segment == nullptr)
            return;
        m_ids.push_back(id);
        if (segment->length != 0)
            m_used.erase(m_used.begin() + (segment - m_used.data()));
        tidyEnd();
    }

    void shrink(appPlugins::SEGID id, Uint32 length)
    {
        Segment* segment = find(id);
        if (segment != nullptr && segment->length > length)
            segment->length = length;
        tidyEnd();
    }

    void compact()
    {
        std::stable_sort(m_used.begin(), m_used.end(),
                         [](const Segment& a, const Segment& b) { return a.start < b.start; });
        Uint32 position = 0;
        for (Segment& segment : m_used) {
            segment.start = position;
            position += segment.length;
        }
        m_emptyEnd = position == m_size;
    }

    Segment* find(appPlugins::SEGID id)
    {
        for (Segment& segment : m_used) {
            if (segment.id == id)
                return &segment;
        }
        return nullptr;
    }

    std::vector<Stretch> stretches() const
    {
        std::vector<bool> taken(m_size, false);
        for (const Segment& segment : m_used)
            std::fill_n(taken.begin() + segment.start, segment.length, true);

        std::vector<Stretch> result;
        for (Uint32 i = 0; i < m_size; ++i) {
            if (!taken[i] && (i == 0 || taken[i - 1]))
                result.push_back({i, 0});
            if (!taken[i])
                ++result.back().length;
        }
        if (m_emptyEnd)
            result.push_back({m_size, 0});
        return result;
    }

    const std::vector<Segment>& used() const { return m_used; }
    /// The manager's printed state without the identifiers of free stretches: which former one a
    /// merged stretch keeps is tested with given cases.
    QByteArray text() const;

private:
    appPlugins::SEGID take(const Stretch& stretch, Uint32 length, double mark)
    {
        const Segment segment = {stretch.start, length, m_ids.front(), mark};
        m_ids.erase(m_ids.begin());
        if (stretch.length == length)
            m_used.insert(m_used.begin(), segment);
        else
            m_used.push_back(segment);
        if (stretch.start == m_size)
            m_emptyEnd = false;
        return segment.id;
    }

    // A stretch of nothing that compaction left at the end goes into the next one that ends there.
    void tidyEnd()
    {
        if (!m_emptyEnd)
            return;
        m_emptyEnd = false;
        const std::vector<Stretch> all = stretches();
        m_emptyEnd = all.empty() || all.back().start + all.back().length != m_size;
    }

    Uint32 m_size;
    std::vector<Segment> m_used;
    std::vector<appPlugins::SEGID> m_ids;
    bool m_emptyEnd = false;
};

inline QByteArray segmentLine(Uint32 start, Uint32 length)
{
    return " start:" + QByteArray::number(start) + " len:" + QByteArray::number(length);
}

inline QByteArray SegmentReference::text() const
{
    const std::vector<Stretch> all = stretches();
    const Uint32 space =
        std::accumulate(all.begin(), all.end(), Uint32(0),
                        [](Uint32 sum, const Stretch& s) { return sum + s.length; });
    QByteArray result = "freeSegments: " + QByteArray::number(uint(all.size())) +
                        "\nTotal free Space:" + QByteArray::number(space) + "\n";
    for (const Stretch& stretch : all)
        result += segmentLine(stretch.start, stretch.length) + "\n";
    result += "usedSegments: " + QByteArray::number(uint(m_used.size())) + "\n";
    for (const Segment& segment : m_used)
        result += segmentLine(segment.start, segment.length) +
                  " ID:" + QByteArray::number(segment.id) + "\n";
    return result + "freeIDs:" + QByteArray::number(uint(m_ids.size())) + "\n";
}
