// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "thumbnail.h"

#include "waveformsample.h"

#include <algorithm>

namespace {

const int ColumnsPerCharacter = 3;
const int Lines = 8;
const int Steps = 2 * Lines;

struct Stroke
{
    int low;
    int high;
};

// The steps of height that the strokes of one character's columns reach.
Stroke strokeOf(const quint8* thumbnail, int character)
{
    const int first = character * ColumnsPerCharacter;
    const int end = std::min(first + ColumnsPerCharacter, appPlugins::ThumbnailColumns);
    Stroke stroke = {Steps - 1, 0};
    for (int column = first; column < end; ++column) {
        const quint8* const pair = thumbnailColumn(thumbnail, column);
        stroke.low = std::min(stroke.low, pair[0] * Steps / 256);
        stroke.high = std::max(stroke.high, pair[1] * Steps / 256);
    }
    return stroke;
}

QChar block(Stroke stroke, int line)
{
    const auto covered = [stroke](int step) { return step >= stroke.low && step <= stroke.high; };
    const int lower = Steps - 2 - 2 * line;
    const QChar blocks[] = {QLatin1Char(' '), QChar(0x2584), QChar(0x2580), QChar(0x2588)};
    return blocks[(covered(lower) ? 1 : 0) + (covered(lower + 1) ? 2 : 0)];
}

} // namespace

Thumbnail thumbnailOf(const std::vector<qint16>& samples)
{
    std::vector<appPlugins::WaveformData> words(samples.size());
    std::transform(samples.cbegin(), samples.cend(), words.begin(), [](qint16 sample) {
        return appPlugins::exchangedWord(static_cast<quint16>(sample));
    });
    Thumbnail thumbnail = {};
    appPlugins::ThumbnailMake(static_cast<Uint32>(words.size()), words.data(), thumbnail.data());
    return thumbnail;
}

QStringList thumbnailText(const quint8* thumbnail)
{
    const int characters =
        (appPlugins::ThumbnailColumns + ColumnsPerCharacter - 1) / ColumnsPerCharacter;
    QStringList lines;
    for (int line = 0; line < Lines; ++line) {
        QString text;
        for (int i = 0; i < characters; ++i)
            text += block(strokeOf(thumbnail, i), line);
        lines.append(text);
    }
    return lines;
}
