// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QtEndian>

#include <cmath>
#include <vector>

/// A second calculation of the waveform file's samples and picture, one word at a time, to hold the
/// writer's against.
namespace ThumbnailReference {

/// The words of a file whose bytes are exchanged, from the bytes behind the header.
inline std::vector<quint16> exchangedWords(const QByteArray& samples)
{
    std::vector<quint16> words;
    for (int i = 0; i + 1 < samples.size(); i += 2)
        words.push_back(qFromBigEndian<quint16>(samples.constData() + i));
    return words;
}

/// The pictures of many points: each column one stroke that touches the one before it.
inline QByteArray strokes(const std::vector<quint16>& words)
{
    QByteArray pairs;
    int previous[2] = {0, 255};
    size_t next = 0;
    for (int column = 1; column <= 206; ++column) {
        const auto formula = size_t(std::floor(double(words.size()) / 206.0 * column));
        const size_t end = column == 206 ? words.size() : formula;
        int low = words[next] & 0x3FFF;
        int high = low;
        while (++next < end) {
            const int word = words[next] & 0x3FFF;
            high = word > high ? word : high;
            low = word < low ? word : low;
        }
        const bool rises = high / 64 >= previous[0];
        const int first = rises && low / 64 > previous[1] ? previous[1] : low / 64;
        previous[1] = rises ? high / 64 : previous[0];
        previous[0] = first;
        pairs.append(char(previous[0])).append(char(previous[1]));
    }
    return pairs;
}

/// The 412 bytes for any number of words.
inline QByteArray thumbnail(const std::vector<quint16>& words)
{
    if (words.size() > 206)
        return strokes(words);

    QByteArray pairs;
    for (const quint16 word : words)
        pairs.append(char(word >> 6)).append(char(word >> 6));
    return pairs + QByteArray(412 - pairs.size(), '\0');
}

} // namespace ThumbnailReference
