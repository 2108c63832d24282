// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "labellayout.h"

#include <algorithm>
#include <numeric>

namespace {

struct Span
{
    double from;
    double to;
};

struct Row
{
    QVector<Span> texts;
    QVector<Span> leaders;
};

// Where a text stands above the middle of its line.
enum Lean { Centred, LeansLeft, LeansRight };

// One way to go about the labels; each fails where another does not.
struct Attempt
{
    bool shortestFirst; ///< otherwise from left to right
    Lean leans[3];
};

const Attempt Attempts[] = {{true, {Centred, LeansLeft, LeansRight}},
                            {false, {Centred, LeansLeft, LeansRight}},
                            {false, {LeansLeft, Centred, LeansRight}},
                            {true, {LeansLeft, Centred, LeansRight}},
                            // A staircase of texts that end at their leaders.
                            {false, {LeansLeft, LeansLeft, LeansLeft}}};

bool isFree(const QVector<Span>& taken, Span span, double distance)
{
    return std::none_of(taken.begin(), taken.end(), [=](const Span& other) {
        return span.from < other.to + distance && other.from < span.to + distance;
    });
}

double middleOf(const LabelRequest& label)
{
    return (label.from + label.to) * 0.5;
}

// Distance of a leader from the texts beside it, and from the end of its own.
double leaderDistance(const LabelSpace& space)
{
    return space.margin * 0.4;
}

Span textSpan(const LabelRequest& label, Lean lean, const LabelSpace& space)
{
    const double overhang = leaderDistance(space);
    double left = middleOf(label) - label.width * 0.5;
    if (lean == LeansLeft)
        left = middleOf(label) + overhang - label.width;
    else if (lean == LeansRight)
        left = middleOf(label) - overhang;
    left = std::max(space.left, std::min(left, space.right - label.width));
    return {left, left + label.width};
}

bool fitsInside(const LabelRequest& label, const LabelSpace& space)
{
    return space.inside && label.to - label.from >= label.width + 2 * space.margin;
}

// A leader passes through the rows below the text.
bool leaderIsFree(const QVector<Row>& rows, int row, Span leader, double distance)
{
    return std::all_of(rows.begin(), rows.begin() + row,
                       [=](const Row& below) { return isFree(below.texts, leader, distance); });
}

LabelPlace placeAbove(const LabelRequest& label, const Attempt& attempt, const LabelSpace& space,
                      QVector<Row>& rows)
{
    const double distance = leaderDistance(space);
    const Span leader = {middleOf(label), middleOf(label)};
    for (int row = 0; row < rows.size() && leaderIsFree(rows, row, leader, distance); ++row) {
        for (const Lean lean : attempt.leans) {
            const Span text = textSpan(label, lean, space);
            if (!isFree(rows.at(row).texts, text, space.margin) ||
                !isFree(rows.at(row).leaders, text, distance))
                continue;
            rows[row].texts.append(text);
            std::for_each(rows.begin(), rows.begin() + row,
                          [leader](Row& below) { below.leaders.append(leader); });
            return {row + 1, text.from};
        }
    }
    return {};
}

QVector<int> orderOf(const QVector<LabelRequest>& labels, bool shortestFirst)
{
    QVector<int> order(labels.size());
    std::iota(order.begin(), order.end(), 0);
    if (shortestFirst)
        std::stable_sort(order.begin(), order.end(), [&labels](int one, int other) {
            return labels.at(one).to - labels.at(one).from <
                   labels.at(other).to - labels.at(other).from;
        });
    return order;
}

QVector<LabelPlace> placeAll(const QVector<LabelRequest>& labels, const Attempt& attempt,
                             const LabelSpace& space)
{
    QVector<Row> rows(space.rows);
    QVector<LabelPlace> places(labels.size());
    for (const int index : orderOf(labels, attempt.shortestFirst)) {
        const LabelRequest& label = labels.at(index);
        if (fitsInside(label, space))
            places[index] = {0, middleOf(label) - label.width * 0.5};
        else
            places[index] = placeAbove(label, attempt, space, rows);
    }
    return places;
}

int placedIn(const QVector<LabelPlace>& places)
{
    return int(std::count_if(places.begin(), places.end(),
                             [](const LabelPlace& place) { return place.row >= 0; }));
}

} // namespace

QVector<LabelPlace> placeLabels(const QVector<LabelRequest>& labels, const LabelSpace& space)
{
    QVector<LabelPlace> best = placeAll(labels, Attempts[0], space);
    for (const Attempt& attempt : Attempts) {
        if (allPlaced(best))
            break;
        const QVector<LabelPlace> places = placeAll(labels, attempt, space);
        if (placedIn(places) > placedIn(best))
            best = places;
    }
    return best;
}

bool allPlaced(const QVector<LabelPlace>& places)
{
    return placedIn(places) == places.size();
}

int rowsUsed(const QVector<LabelPlace>& places)
{
    int rows = 0;
    for (const LabelPlace& place : places)
        rows = std::max(rows, place.row);
    return rows;
}
