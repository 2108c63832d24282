// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"
#include "apptypes.h"

#include <cstddef>
#include <cstdio>

/// @file
/// The instrument's binary waveform format (extension ".mpwv") and its writer.
///
/// A file is a 512-byte header followed by one signed 16-bit two's-complement number per sample.
/// All numbers are little-endian, those with a fraction IEEE 754 double precision. The samples are
/// normalised: the waveform's own minimum and maximum map to -32764 and +32764; the voltages come
/// from the header's amplitude and offset.
namespace appPlugins {

using WaveformData = quint16;         ///< one sample with its two bytes exchanged
using WaveformThumbnailData = quint8; ///< one byte of a thumbnail or of a sample

const int WaveformMagicSize = 16;         ///< bytes of the magic with its padding
const int ThumbnailColumns = 206;         ///< columns of the thumbnail, two bytes each
const Uint32 WaveformVersion = 20050114;  ///< the only version of the format
const char WaveformMagic[] = "QRNKVX60K"; ///< what a file begins with
const int WaveformFullScale = 32764;      ///< 8191 x 4: a 14-bit value shifted up by two bits

/// The header's fields at their offsets in the file.
struct WaveformInfo
{
    char magic[WaveformMagicSize]; ///< "QRNKVX60K", zero-filled
    Uint32 version;                ///< WaveformVersion
    Uint32 points;                 ///< number of samples
    qint32 hasThumbnail;           ///< 1
    /// (lower end, upper end) of the stroke in each column, on a scale of 0 to 255
    WaveformThumbnailData thumbnail[2 * ThumbnailColumns];
    double ampValue;    ///< volts peak-to-peak
    double offsetValue; ///< volts
};

/// The header as it stands in the file.
union WaveformFileHeader
{
    quint8 byte[512];  ///< all of it; zeros behind the fields
    WaveformInfo info; ///< the fields, in bytes 0 to 455
};

static_assert(sizeof(WaveformFileHeader) == 512, "the header is 512 bytes in the file");
static_assert(offsetof(WaveformInfo, version) == 16, "file format");
static_assert(offsetof(WaveformInfo, points) == 20, "file format");
static_assert(offsetof(WaveformInfo, hasThumbnail) == 24, "file format");
static_assert(offsetof(WaveformInfo, thumbnail) == 28, "file format");
static_assert(offsetof(WaveformInfo, ampValue) == 440, "file format");
static_assert(offsetof(WaveformInfo, offsetValue) == 448, "file format");
static_assert(Q_BYTE_ORDER == Q_LITTLE_ENDIAN, "the header is written as it stands in memory");

/// True when the file system can report the status of @p path: it exists and is within reach.
APPPLUGINS_EXPORT bool FileIsExist(const char* path);

/// Applies one operation to each of @p p_nLength elements: @p p_nOp 0 subtracts @p p_ndblParam, 1
/// divides by it, 2 adds it, 3 multiplies by it; any other value does nothing.
APPPLUGINS_EXPORT void ScalarMath(int p_nOp, double* p_aWfmData, double p_ndblParam,
                                  Uint32 p_nLength);

/// Maps the data to -1 ... +1 in place and reports the bounds it found. The search begins at a
/// minimum of 1000 and a maximum of -1000: data wholly above 1000 keeps that minimum, data wholly
/// below -1000 that maximum. A constant waveform between them becomes zeros.
APPPLUGINS_EXPORT void Normalize(double* p_dbVal, Uint32 l_nLength, double& l_dbMinVal,
                                 double& l_dbMaxVal);

/// Undoes Normalize() with the bounds it reported, within the rounding of a division and a
/// multiplication.
APPPLUGINS_EXPORT void unNormalize(double* p_dbVal, Uint32 l_nLength, double l_dbMinVal,
                                   double l_dbMaxVal);

/// Turns the four bytes of a normalised single-precision sample (IEEE 754, in @p WfmData4) into the
/// two bytes of the file's sample (in @p CnvtWfmData), low byte first: the sample times 8191 times
/// 4, truncated toward zero, its low 16 bits. A sample that is not finite gives 0.
APPPLUGINS_EXPORT void CnvtDoubleWfmDataToShortWfmData(WaveformThumbnailData* WfmData4,
                                                       WaveformThumbnailData* CnvtWfmData);

/// Fills the header's 206 byte pairs from @p points byte-exchanged samples. @p thumbnail holds 412
/// bytes; with 206 points or fewer the columns behind the last point are left as they are, with
/// none nothing is written.
APPPLUGINS_EXPORT void ThumbnailMake(Uint32 points, WaveformData* dataPtr,
                                     WaveformThumbnailData* thumbnail);

/// A file opened through the standard library. Paths are in the file system's 8-bit encoding.
class APPPLUGINS_EXPORT CFileBase
{
public:
    /// Without an open stream.
    CFileBase() = default;
    /// Closes the stream if it is still open.
    virtual ~CFileBase();
    /// A stream has one owner.
    CFileBase(const CFileBase&) = delete;
    /// A stream has one owner.
    CFileBase& operator=(const CFileBase&) = delete;

    /// Closes any open stream and opens @p path for reading. False when that fails.
    bool readOpen(char* path);
    /// Closes any open stream and opens @p path for writing, truncating it. False when that fails.
    bool writeOpen(char* path);
    /// Keeps an open stream and returns true; otherwise opens @p path for appending. False when
    /// that fails.
    bool appendOpen(char* path);
    /// Closes the stream if one is open.
    void close();

protected:
    std::FILE* fp = nullptr; ///< the open stream, null for none
};

/// Writes one waveform file; one object per file. Errors are false results and nothing else: a
/// partial file may remain, and the caller decides what the user is told.
///
/// @code
/// char path[] = "/mnt/user-data/ramp.mpwv";
/// double volts[] = {-1, -0.5, 0, 0.5, 1};
/// const bool written = CWaveformFileWriter().write(path, 5, 2, 0, volts); // 2 V peak-to-peak
/// @endcode
class APPPLUGINS_EXPORT CWaveformFileWriter : public CFileBase
{
public:
    /// Prepares the header: magic, version and zeros.
    CWaveformFileWriter();
    /// Closes the stream if it is still open.
    ~CWaveformFileWriter() override;

    /// Writes the whole file, over one that is there: @p points samples (0 included) of @p data,
    /// with @p amp (volts peak-to-peak) and @p offset (volts) stored in the header as they are
    /// passed. Only the shape of @p data counts, not its unit; it is normalised in place and
    /// restored within rounding. False when the file cannot be opened or is not written to its end.
    bool write(char* filePath, Uint32 points, double amp, double offset, double* data);

    /// Writes the 512 header bytes, thumbnail included, to the stream, which must be open. False on
    /// failure, with the stream closed. Arguments as for write().
    bool headerWrite(Uint32 points, double amp, double offset, double* data);

    /// Writes @p points samples, two bytes each, to the stream, which must be open. False on
    /// failure, with the stream closed. Arguments as for write().
    bool dataWrite(Uint32 points, double* data);

private:
    bool writeHeaderBlock();

    WaveformFileHeader header;
};

} // namespace appPlugins
