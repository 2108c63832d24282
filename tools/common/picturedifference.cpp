// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "picturedifference.h"

namespace {

// Text without hinting comes to a mean of 1.5 and a share of 0.01, a missing prefix letter to
// a share of 0.05.
const double TolerableMean = 2.5;
const double TolerableShare = 0.02;

const int ClearDifference = 100;
const int TileSize = 20;

int channelDistance(QRgb a, QRgb b)
{
    const int red = qAbs(qRed(a) - qRed(b));
    const int green = qAbs(qGreen(a) - qGreen(b));
    const int blue = qAbs(qBlue(a) - qBlue(b));
    return qMax(red, qMax(green, blue));
}

// Whether no pixel round the place in the other picture has nearly the colour.
bool isStranger(QRgb colour, const QImage& other, int x, int y)
{
    for (int dy = -1; dy <= 1; ++dy) {
        for (int dx = -1; dx <= 1; ++dx) {
            if (other.valid(x + dx, y + dy) &&
                channelDistance(colour, other.pixel(x + dx, y + dy)) < ClearDifference)
                return false;
        }
    }
    return true;
}

bool clearlyDifferent(const QImage& a, const QImage& b, int x, int y)
{
    return isStranger(a.pixel(x, y), b, x, y) || isStranger(b.pixel(x, y), a, x, y);
}

double meanDifference(const QImage& a, const QImage& b)
{
    double sum = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x)
            sum += channelDistance(a.pixel(x, y), b.pixel(x, y));
    }
    return sum / (double(a.width()) * a.height());
}

QImage darkened(const QImage& picture)
{
    QImage result = picture;
    for (int y = 0; y < result.height(); ++y) {
        for (int x = 0; x < result.width(); ++x) {
            const QRgb colour = result.pixel(x, y);
            result.setPixel(x, y, qRgb(qRed(colour) / 3, qGreen(colour) / 3, qBlue(colour) / 3));
        }
    }
    return result;
}

double shareInTile(const QImage& a, const QImage& b, const QRect& tile, QImage& marks)
{
    int different = 0;
    for (int y = tile.top(); y <= tile.bottom(); ++y) {
        for (int x = tile.left(); x <= tile.right(); ++x) {
            if (!clearlyDifferent(a, b, x, y))
                continue;
            ++different;
            marks.setPixel(x, y, qRgb(255, 0, 0));
        }
    }
    return double(different) / (tile.width() * tile.height());
}

} // namespace

bool PictureDifference::tolerable() const
{
    return mean <= TolerableMean && share <= TolerableShare;
}

PictureDifference differenceOf(const QImage& approvedPicture, const QImage& renderedPicture)
{
    const QImage approved = approvedPicture.convertToFormat(QImage::Format_RGB32);
    const QImage rendered = renderedPicture.convertToFormat(QImage::Format_RGB32);
    if (approved.size() != rendered.size() || approved.isNull())
        return {255, 1, {}, approved};

    PictureDifference difference;
    difference.mean = meanDifference(approved, rendered);
    difference.picture = darkened(approved);
    for (int y = 0; y < approved.height(); y += TileSize) {
        for (int x = 0; x < approved.width(); x += TileSize) {
            const QRect tile = QRect(x, y, TileSize, TileSize).intersected(approved.rect());
            const double share = shareInTile(approved, rendered, tile, difference.picture);
            if (share > difference.share) {
                difference.share = share;
                difference.worst = tile.center();
            }
        }
    }
    return difference;
}
