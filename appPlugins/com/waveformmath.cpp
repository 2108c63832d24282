// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cfilebase.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace appPlugins {

namespace {

struct Bounds
{
    double min;
    double max;
};

// Eight running bounds side by side instead of one, so that the compiler may keep them in vector
// registers: a single chain of comparisons would wait for itself at every element.
const Uint32 Lanes = 8;

Bounds findBounds(const double* data, Uint32 count)
{
    double low[Lanes];
    double high[Lanes];
    std::fill_n(low, Lanes, 1000.0);
    std::fill_n(high, Lanes, -1000.0);

    const Uint32 whole = count - count % Lanes;
    for (Uint32 i = 0; i < whole; i += Lanes) {
        for (Uint32 lane = 0; lane < Lanes; ++lane) {
            const double value = data[i + lane];
            low[lane] = value < low[lane] ? value : low[lane];
            high[lane] = value > high[lane] ? value : high[lane];
        }
    }
    for (Uint32 i = whole; i < count; ++i) {
        low[0] = std::min(low[0], data[i]);
        high[0] = std::max(high[0], data[i]);
    }
    return {*std::min_element(low, low + Lanes), *std::max_element(high, high + Lanes)};
}

struct Stroke
{
    int low;
    int high;
};

// The stroke of one column of at least one word: its lowest and highest masked word. Fourteen bits
// fit a signed type, for which the processors have vector minima.
Stroke columnStroke(const WaveformData* words, Uint32 begin, Uint32 end)
{
    auto low = static_cast<qint16>(words[begin] & 0x3FFF);
    qint16 high = low;
    for (Uint32 i = begin + 1; i < end; ++i) {
        const auto word = static_cast<qint16>(words[i] & 0x3FFF);
        low = std::min(low, word);
        high = std::max(high, word);
    }
    return {low / 64, high / 64};
}

Uint32 columnEnd(Uint32 points, int column)
{
    // In doubles the formula may fall one short of the end in the last column.
    if (column == ThumbnailColumns)
        return points;
    return static_cast<Uint32>(std::floor(points / 206.0 * column));
}

void drawColumns(Uint32 points, const WaveformData* words, WaveformThumbnailData* thumbnail)
{
    Stroke previous = {0, 255};
    Uint32 begin = 0;
    for (int column = 1; column <= ThumbnailColumns; ++column) {
        const Uint32 end = std::max(columnEnd(points, column), begin + 1);
        const Stroke found = columnStroke(words, begin, end);
        // Strokes of neighbouring columns overlap, so that the drawn line is connected.
        const Stroke stroke = found.high >= previous.low
                                  ? Stroke{std::min(found.low, previous.high), found.high}
                                  : Stroke{found.low, previous.low};
        *thumbnail++ = static_cast<WaveformThumbnailData>(stroke.low);
        *thumbnail++ = static_cast<WaveformThumbnailData>(stroke.high);
        previous = stroke;
        begin = end;
    }
}

// Few points have a column each. The words are not masked here, unlike in the drawn columns.
void copyColumns(Uint32 points, const WaveformData* words, WaveformThumbnailData* thumbnail)
{
    for (Uint32 i = 0; i < points; ++i) {
        const auto height = static_cast<WaveformThumbnailData>(words[i] / 64);
        *thumbnail++ = height;
        *thumbnail++ = height;
    }
}

} // namespace

void ScalarMath(int p_nOp, double* p_aWfmData, double p_ndblParam, Uint32 p_nLength)
{
    const auto apply = [=](auto operation) {
        std::transform(p_aWfmData, p_aWfmData + p_nLength, p_aWfmData, operation);
    };
    switch (p_nOp) {
    case 0:
        return apply([=](double value) { return value - p_ndblParam; });
    case 1:
        return apply([=](double value) { return value / p_ndblParam; });
    case 2:
        return apply([=](double value) { return value + p_ndblParam; });
    case 3:
        return apply([=](double value) { return value * p_ndblParam; });
    default:
        return;
    }
}

void Normalize(double* p_dbVal, Uint32 l_nLength, double& l_dbMinVal, double& l_dbMaxVal)
{
    const Bounds bounds = findBounds(p_dbVal, l_nLength);
    l_dbMinVal = bounds.min;
    l_dbMaxVal = bounds.max;

    const double center = (bounds.min + bounds.max) * 0.5;
    const double half = (bounds.max - bounds.min) * 0.5;
    if (center != 0 && half != 0) {
        // Both operations in one pass over the memory; element by element they are the same.
        std::transform(p_dbVal, p_dbVal + l_nLength, p_dbVal,
                       [=](double value) { return (value - center) / half; });
        return;
    }
    if (center != 0)
        ScalarMath(0, p_dbVal, center, l_nLength);
    if (half != 0)
        ScalarMath(1, p_dbVal, half, l_nLength);
}

void unNormalize(double* p_dbVal, Uint32 l_nLength, double l_dbMinVal, double l_dbMaxVal)
{
    const double half = (l_dbMaxVal - l_dbMinVal) * 0.5;
    const double center = (l_dbMaxVal + l_dbMinVal) * 0.5;
    if (center != 0 && half != 0) {
        std::transform(p_dbVal, p_dbVal + l_nLength, p_dbVal,
                       [=](double value) { return value * half + center; });
        return;
    }
    if (half != 0)
        ScalarMath(3, p_dbVal, half, l_nLength);
    if (center != 0)
        ScalarMath(2, p_dbVal, center, l_nLength);
}

void CnvtDoubleWfmDataToShortWfmData(WaveformThumbnailData* WfmData4,
                                     WaveformThumbnailData* CnvtWfmData)
{
    float sample = 0;
    std::memcpy(&sample, WfmData4, sizeof sample);

    const double value = static_cast<double>(sample) * 8191.0 * 4.0;
    // The remainder keeps the low 16 bits of numbers that no integer type holds.
    const double low = std::isfinite(value) ? std::fmod(std::trunc(value), 65536.0) : 0.0;
    const auto word = static_cast<quint16>(static_cast<qint32>(low));
    CnvtWfmData[0] = static_cast<WaveformThumbnailData>(word & 0xFF);
    CnvtWfmData[1] = static_cast<WaveformThumbnailData>(word >> 8);
}

void ThumbnailMake(Uint32 points, WaveformData* dataPtr, WaveformThumbnailData* thumbnail)
{
    if (points > static_cast<Uint32>(ThumbnailColumns))
        drawColumns(points, dataPtr, thumbnail);
    else
        copyColumns(points, dataPtr, thumbnail);
}

} // namespace appPlugins
