// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "thumbnailpicture.h"

#include "contentpaths.h"

namespace {

const int WidthColumn = 0;
const int GapColumn = 1;

QString fileName(int pulseCount, const QString& quantity)
{
    const QLatin1String set(pulseCount < 3 ? "d_" : "m_");
    return set + quantity + QLatin1String(".png");
}

QString quantityOfFocus(const QString& focusName)
{
    static const struct
    {
        QLatin1String focusName;
        QLatin1String quantity;
    } Quantities[] = {
        {QLatin1String("Amplitude"), QLatin1String("ampl")},
        {QLatin1String("HighLevel"), QLatin1String("high")},
        {QLatin1String("Offset"), QLatin1String("offset")},
        {QLatin1String("LowLevel"), QLatin1String("low")},
        {QLatin1String("TriggerDelay"), QLatin1String("delay")},
    };
    for (const auto& entry : Quantities) {
        if (entry.focusName == focusName)
            return entry.quantity;
    }
    return QString();
}

// A train of three and more has no picture for its second gap, and none for the pulses between the
// second and the last.
QString quantityOfCell(const QPoint& cell, int pulseCount)
{
    const int row = cell.x();
    const int column = cell.y();
    const bool twoPulses = pulseCount < 3;
    if (column == WidthColumn && (row == 0 || row == 1))
        return row == 0 ? QStringLiteral("w1") : QStringLiteral("w2");
    if (column == GapColumn && (row == 0 || (row == 1 && twoPulses)))
        return row == 0 ? QStringLiteral("g1") : QStringLiteral("g2");
    if (!twoPulses && row >= 2 && row == pulseCount - 1) {
        if (column == WidthColumn)
            return QStringLiteral("wN");
        if (column == GapColumn)
            return QStringLiteral("gN");
    }
    return QString();
}

} // namespace

QString ThumbnailPicture::forFocus(const QString& focusName, int pulseCount)
{
    return fileName(pulseCount, quantityOfFocus(focusName));
}

QString ThumbnailPicture::forCell(const QPoint& cell, int pulseCount)
{
    return fileName(pulseCount, quantityOfCell(cell, pulseCount));
}

QString ThumbnailPicture::unmarked(int pulseCount)
{
    return fileName(pulseCount, QString());
}

QString ThumbnailPicture::path(const QString& fileName)
{
    return ContentPaths::picture(fileName);
}
