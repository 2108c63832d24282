// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "cfilebase.h"
#include "waveformsample.h"

#include <QDebug>

#include <algorithm>
#include <cstring>
#include <vector>

namespace appPlugins {

namespace {

// Normalises a caller's samples while it lives and restores them at its end, on every path.
class NormalizedSamples
{
public:
    NormalizedSamples(double* data, Uint32 points)
        : m_pData(data)
        , m_nPoints(points)
    {
        Normalize(m_pData, m_nPoints, m_dbMin, m_dbMax);
    }
    ~NormalizedSamples() { unNormalize(m_pData, m_nPoints, m_dbMin, m_dbMax); }
    NormalizedSamples(const NormalizedSamples&) = delete;
    NormalizedSamples& operator=(const NormalizedSamples&) = delete;

private:
    double* m_pData;
    Uint32 m_nPoints;
    double m_dbMin = 0;
    double m_dbMax = 0;
};

// Samples that are converted at a time: enough for vector instructions, small enough that no second
// copy of the waveform comes into being.
const Uint32 BlockSize = 256;

// Both bytes of a sample, low byte first, go straight into the stream's buffer. The stream belongs
// to this writer alone, so nothing is lost without the locks, and a call into the library for every
// two bytes would cost more than all the rest of the writer.
bool writeSample(quint16 word, std::FILE* stream)
{
    return putc_unlocked(word & 0xFF, stream) != EOF && putc_unlocked(word >> 8, stream) != EOF;
}

bool writeBlock(const double* normalised, quint64 count, std::FILE* stream)
{
    quint16 words[BlockSize];
    std::transform(normalised, normalised + count, words, sampleWord);
    return std::all_of(words, words + count,
                       [stream](quint16 word) { return writeSample(word, stream); });
}

} // namespace

CWaveformFileWriter::CWaveformFileWriter()
{
    std::memset(&header, 0, sizeof header);
    std::memcpy(header.info.magic, WaveformMagic, sizeof WaveformMagic - 1);
    header.info.version = WaveformVersion;
}

CWaveformFileWriter::~CWaveformFileWriter() = default;

bool CWaveformFileWriter::write(char* filePath, Uint32 points, double amp, double offset,
                                double* data)
{
    if (!writeOpen(filePath))
        return false;
    if (!headerWrite(points, amp, offset, data))
        return false;
    if (!dataWrite(points, data))
        return false;

    // What is still in the stream's buffer may find the disk full: a file that is not whole must
    // not be played.
    const bool flushed = std::fflush(fp) == 0;
    close();
    return flushed;
}

bool CWaveformFileWriter::headerWrite(Uint32 points, double amp, double offset, double* data)
{
    header.info.points = points;
    header.info.ampValue = amp;
    header.info.offsetValue = offset;
    header.info.hasThumbnail = 1;

    std::vector<WaveformData> words(points);
    qWarning() << "headerWrite" << static_cast<const void*>(words.data()) << "\n"
               << static_cast<const void*>(words.data() + points);

    const NormalizedSamples normalized(data, points);
    // The instrument's own pictures are made from samples with their bytes exchanged.
    std::transform(data, data + points, words.begin(),
                   [](double sample) { return exchangedWord(sampleWord(sample)); });
    ThumbnailMake(points, words.data(), header.info.thumbnail);
    return writeHeaderBlock();
}

bool CWaveformFileWriter::writeHeaderBlock()
{
    if (std::fwrite(header.byte, sizeof header.byte, 1, fp) == 1)
        return true;

    close();
    return false;
}

bool CWaveformFileWriter::dataWrite(Uint32 points, double* data)
{
    const NormalizedSamples normalized(data, points);
    for (quint64 i = 0; i < points; i += BlockSize) {
        const quint64 count = std::min(quint64(BlockSize), points - i);
        if (!writeBlock(data + i, count, fp)) {
            close();
            return false;
        }
    }
    return true;
}

} // namespace appPlugins
