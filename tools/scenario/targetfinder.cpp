// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "targetfinder.h"

#include "identifiertexts.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

using Keypad::ScreenItem;

const int Nowhere = -1;

// How much two stretches have in common, measured by the shorter one.
bool shareHalf(int begin, int length, int otherBegin, int otherLength)
{
    const int common = qMin(begin + length, otherBegin + otherLength) - qMax(begin, otherBegin);
    return 2 * common >= qMin(length, otherLength);
}

bool inOneRow(const QRect& a, const QRect& b)
{
    return shareHalf(a.y(), a.height(), b.y(), b.height());
}

bool inOneColumn(const QRect& a, const QRect& b)
{
    return shareHalf(a.x(), a.width(), b.x(), b.width());
}

// Frames may touch or overlap by a few pixels.
int gapBehind(int end, int begin)
{
    const int overlap = 4;
    return begin + overlap < end ? Nowhere : qMax(0, begin - end);
}

int distance(const QRect& item, ScreenRelation::Side side, const QRect& landmark)
{
    const bool sideways = side == ScreenRelation::RightOf || side == ScreenRelation::LeftOf;
    if (sideways ? !inOneRow(item, landmark) : !inOneColumn(item, landmark))
        return Nowhere;
    switch (side) {
    case ScreenRelation::RightOf:
        return gapBehind(landmark.x() + landmark.width(), item.x());
    case ScreenRelation::LeftOf:
        return gapBehind(item.x() + item.width(), landmark.x());
    case ScreenRelation::Below:
        return gapBehind(landmark.y() + landmark.height(), item.y());
    default:
        return gapBehind(item.y() + item.height(), landmark.y());
    }
}

bool canBeTouched(const ScreenItem& item)
{
    return item.role != QLatin1String("text") && item.role != QLatin1String("header");
}

class Finder
{
public:
    Finder(const Keypad::ScreenDescription& screen, const IdentifierTexts& texts)
        : m_screen(screen)
        , m_texts(texts)
    {}

    QVector<ScreenItem> find(const ScreenTarget& target) const
    {
        QVector<Candidate> candidates;
        const QVector<ScreenItem> shown = target.hasText ? showing(target.text) : m_screen.items;
        for (const ScreenItem& item : shown) {
            const int sum = distanceFromAll(item, target.relations);
            if (sum != Nowhere && !repeats(item, candidates))
                candidates.append({item, sum});
        }
        std::stable_sort(candidates.begin(), candidates.end(), isLikelier);
        QVector<ScreenItem> items;
        for (const Candidate& candidate : qAsConst(candidates))
            items.append(candidate.item);
        return items;
    }

private:
    struct Candidate
    {
        ScreenItem item;
        int distance = 0;
    };

    static bool isLikelier(const Candidate& a, const Candidate& b)
    {
        if (a.distance != b.distance)
            return a.distance < b.distance;
        return canBeTouched(a.item) && !canBeTouched(b.item);
    }

    QVector<ScreenItem> showing(const ScenarioText& text) const
    {
        const QRegularExpression pattern = text.pattern(m_texts);
        QVector<ScreenItem> items;
        for (const ScreenItem& item : m_screen.items) {
            if (pattern.match(item.text.simplified()).hasMatch())
                items.append(item);
        }
        return items;
    }

    int distanceFromAll(const ScreenItem& item, const QVector<ScreenRelation>& relations) const
    {
        int sum = 0;
        for (const ScreenRelation& relation : relations) {
            const int nearest = distanceFromNearest(item, relation);
            if (nearest == Nowhere)
                return Nowhere;
            sum += nearest;
        }
        return sum;
    }

    int distanceFromNearest(const ScreenItem& item, const ScreenRelation& relation) const
    {
        int nearest = Nowhere;
        for (const ScreenItem& landmark : showing(relation.landmark)) {
            const int away = distance(item.rect, relation.side, landmark.rect);
            if (away != Nowhere && (nearest == Nowhere || away < nearest))
                nearest = away;
        }
        return nearest;
    }

    static bool repeats(const ScreenItem& item, const QVector<Candidate>& candidates)
    {
        return std::any_of(candidates.begin(), candidates.end(), [&item](const Candidate& other) {
            return other.item.text == item.text &&
                   (other.item.rect.contains(item.rect) || item.rect.contains(other.item.rect));
        });
    }

    const Keypad::ScreenDescription& m_screen;
    const IdentifierTexts& m_texts;
};

QString sideWords(ScreenRelation::Side side)
{
    switch (side) {
    case ScreenRelation::RightOf:
        return QStringLiteral("right of");
    case ScreenRelation::LeftOf:
        return QStringLiteral("left of");
    case ScreenRelation::Below:
        return QStringLiteral("below");
    default:
        return QStringLiteral("above");
    }
}

} // namespace

QVector<ScreenItem> findTarget(const ScreenTarget& target, const Keypad::ScreenDescription& screen,
                               const IdentifierTexts& texts)
{
    return target.isPlace ? QVector<ScreenItem>() : Finder(screen, texts).find(target);
}

int likelyCount(const QVector<ScreenItem>& found)
{
    const bool first = !found.isEmpty() && canBeTouched(found.first());
    return int(std::count_if(found.begin(), found.end(), [first](const ScreenItem& item) {
        return canBeTouched(item) == first;
    }));
}

QString shownTarget(const ScreenTarget& target, const IdentifierTexts& texts)
{
    if (target.isPlace)
        return QStringLiteral("the place %1,%2").arg(target.place.x()).arg(target.place.y());
    QStringList parts;
    parts.append(target.hasText ? QStringLiteral("\"%1\"").arg(target.text.shown(texts))
                                : QStringLiteral("something"));
    for (const ScreenRelation& relation : target.relations) {
        if (parts.size() > 1)
            parts.append(QStringLiteral("and"));
        parts.append(QStringLiteral("%1 \"%2\"")
                         .arg(sideWords(relation.side), relation.landmark.shown(texts)));
    }
    return parts.join(QLatin1Char(' '));
}
