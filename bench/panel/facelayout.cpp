// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "facelayout.h"

#include <QHash>

namespace {

const double Top = 46;
const double Left = 908;
const double RowStep = 47;
const double ColumnStep = 90;

QRectF socket(double y)
{
    const double size = 80;
    return {1334 - size / 2, y, size, size};
}

QRectF cell(double x, double y, double width, double height)
{
    return {x, y, width, height};
}

void placeFunctionKeys(QHash<QString, QRectF>& places)
{
    const QString names[2][3] = {
        {QStringLiteral("home"), QStringLiteral("back"), QStringLiteral("help")},
        {QStringLiteral("utility"), QStringLiteral("default"), QStringLiteral("manual")}};
    for (int row = 0; row < 2; ++row) {
        for (int column = 0; column < 3; ++column)
            places.insert(names[row][column],
                          cell(Left + column * 120, Top + row * RowStep, 110, 40));
    }
}

void placeArrowKeys(QHash<QString, QRectF>& places)
{
    const double x = Left + 219;
    const double y = 162;
    const double step = 46;
    places.insert(QStringLiteral("up"), cell(x + step, y, 42, 42));
    places.insert(QStringLiteral("left"), cell(x, y + step, 42, 42));
    places.insert(QStringLiteral("right"), cell(x + 2 * step, y + step, 42, 42));
    places.insert(QStringLiteral("down"), cell(x + step, y + 2 * step, 42, 42));
}

void placeNumberKeys(QHash<QString, QRectF>& places)
{
    const QStringList rows[] = {
        {QStringLiteral("7"), QStringLiteral("8"), QStringLiteral("9"), QStringLiteral("gn")},
        {QStringLiteral("4"), QStringLiteral("5"), QStringLiteral("6"), QStringLiteral("mu")},
        {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"), QStringLiteral("km")},
        {QStringLiteral("0"), QStringLiteral("point"), QStringLiteral("minus"),
         QStringLiteral("x1")}};
    const double y = 324;
    for (int row = 0; row < 4; ++row) {
        for (int column = 0; column < 4; ++column)
            places.insert(rows[row].at(column),
                          cell(Left + column * ColumnStep, y + row * RowStep, 80, 40));
    }
    const double last = y + 4 * RowStep;
    places.insert(QStringLiteral("backspace"), cell(Left, last, 80, 40));
    places.insert(QStringLiteral("cancel"), cell(Left + ColumnStep, last, 125, 40));
    places.insert(QStringLiteral("enter"), cell(Left + 225, last, 125, 40));
}

QHash<QString, QRectF> makeKeys()
{
    QHash<QString, QRectF> places;
    placeFunctionKeys(places);
    placeArrowKeys(places);
    placeNumberKeys(places);
    places.insert(QStringLiteral("channel1"), cell(1298, Top, 72, 56));
    return places;
}

} // namespace

QRectF FaceLayout::glass()
{
    return {24, Top, 852, 508};
}

QRectF FaceLayout::screen()
{
    return {50, Top + 14, 800, 480};
}

QRectF FaceLayout::knob()
{
    return {Left + 14, 150, 162, 162};
}

QRectF FaceLayout::key(const QString& name)
{
    static const QHash<QString, QRectF> places = makeKeys();
    return places.value(name);
}

QRectF FaceLayout::connector(int channel)
{
    return socket(channel == 1 ? 124 : 272);
}

QRectF FaceLayout::triggerInput()
{
    return socket(424);
}

QRectF FaceLayout::operation()
{
    return {Left - 14, Top, 378, 508};
}

QRectF FaceLayout::outputs()
{
    return {1284, Top, 100, 508};
}

QRectF FaceLayout::title()
{
    return {24, 8, 852, 34};
}
