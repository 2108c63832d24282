// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "waveformstore.h"

#include "waveformreader.h"

#include <QDir>
#include <QFileInfo>
#include <QStringList>

#include <algorithm>

using appPlugins::SEGID;
using appPlugins::WaveformFile;

namespace {

enum StandardError {
    DataOutOfRange = -222,
    OutOfMemory = -225,
    MassStorageError = -250,
    FileNameNotFound = -256,
    FileNameError = -257,
};

const int MaxDetailLength = 120;

// The detail ends up inside a quoted reply of limited length.
StoreError storeError(int number, const QString& detail)
{
    QString text = detail.simplified();
    text.replace(QLatin1Char('"'), QLatin1Char('\''));
    return {number, text.left(MaxDetailLength).toUtf8()};
}

bool isPlainPart(const QString& part)
{
    const bool printable =
        std::all_of(part.begin(), part.end(), [](QChar letter) { return letter.isPrint(); });
    return printable && !part.isEmpty() && part != QLatin1String(".") &&
           part != QLatin1String("..");
}

// The parts of "M:/a/b" behind the drive; none for a name that could leave the drive.
QStringList partsOfName(const QString& name)
{
    const QString drive = QStringLiteral("M:/");
    if (!name.startsWith(drive))
        return {};

    const QStringList parts = name.mid(drive.size()).split(QLatin1Char('/'));
    return std::all_of(parts.begin(), parts.end(), isPlainPart) ? parts : QStringList();
}

StoreError checkWaveform(const WaveformFile& file, const GeneratorLimits& limits)
{
    if (file.samples.empty())
        return storeError(MassStorageError, QStringLiteral("points: a waveform has one at least"));
    if (file.samples.size() > limits.waveformLength)
        return storeError(MassStorageError, QStringLiteral("points: more than this model plays"));
    if (!limits.canPlay(file.header.ampValue, file.header.offsetValue))
        return storeError(DataOutOfRange, QStringLiteral("levels: %1 Vpp at %2 V")
                                              .arg(file.header.ampValue)
                                              .arg(file.header.offsetValue));
    return {};
}

} // namespace

// The memory is not cleared: pages that no waveform ever uses are never touched.
WaveformStore::WaveformStore(const QString& userDataFolder, const GeneratorLimits& limits,
                             Uint32 memorySamples)
    : m_strFolder(userDataFolder)
    , m_limits(limits)
    , m_manager(memorySamples)
    , m_pMemory(new double[memorySamples])
{}

StoreError WaveformStore::load(int slot, const QString& name, WaveformLevels& levels)
{
    QString path;
    StoreError nameError = resolve(name, path);
    if (nameError.number != 0)
        return nameError;

    WaveformFile file;
    const QString reason = appPlugins::readWaveform(path, file);
    if (!reason.isEmpty())
        return storeError(MassStorageError, reason);
    StoreError contentError = checkWaveform(file, m_limits);
    if (contentError.number != 0)
        return contentError;
    StoreError memoryError = keep(slot, file.samples);
    if (memoryError.number == 0)
        levels = {file.header.ampValue, file.header.offsetValue};
    return memoryError;
}

// Links are followed, but not out of the folder. Only plain files are opened: a pipe would hold up
// the whole instrument.
StoreError WaveformStore::resolve(const QString& name, QString& path) const
{
    const QStringList parts = partsOfName(name);
    if (parts.isEmpty())
        return storeError(FileNameError, name);

    const QString folder = QFileInfo(m_strFolder).canonicalFilePath();
    const QFileInfo file(QDir(m_strFolder).filePath(parts.join(QLatin1Char('/'))));
    path = file.canonicalFilePath();
    if (folder.isEmpty() || !file.exists())
        return storeError(FileNameNotFound, name);
    if (!path.startsWith(folder + QLatin1Char('/')))
        return storeError(FileNameError, name + QStringLiteral(" leads out of M:/"));
    if (!file.isFile())
        return storeError(FileNameError, name + QStringLiteral(" is not a plain file"));
    return {};
}

// The new waveform is in before the old one goes, so that a failure leaves the old one playing.
StoreError WaveformStore::keep(int slot, const std::vector<qint16>& samples)
{
    const SEGID segment = allocate(Uint32(samples.size()));
    if (segment < 0)
        return storeError(
            OutOfMemory,
            QStringLiteral("%1 samples, %2 are free").arg(samples.size()).arg(freeSamples()));

    std::copy(samples.begin(), samples.end(), m_pMemory.get() + m_manager.getStart(segment));
    remove(slot);
    m_segments.insert(slot, segment);
    return {};
}

SEGID WaveformStore::allocate(Uint32 samples)
{
    const SEGID segment = m_manager.malloc(samples);
    const bool fragmented = segment < 0 && m_manager.getFreeIDNum() > 0 && samples <= freeSamples();
    if (!fragmented)
        return segment;

    m_manager.defrag(m_pMemory.get());
    return m_manager.malloc(samples);
}

QVector<qint16> WaveformStore::counts(int slot) const
{
    if (!holds(slot))
        return {};

    const SEGID segment = m_segments.value(slot);
    const double* const first = m_pMemory.get() + m_manager.getStart(segment);
    QVector<qint16> counts(int(m_manager.getLength(segment)));
    std::transform(first, first + counts.size(), counts.begin(),
                   [](double sample) { return qint16(sample); });
    return counts;
}

void WaveformStore::remove(int slot)
{
    if (holds(slot))
        m_manager.free(m_segments.take(slot));
}

void WaveformStore::clear()
{
    m_segments.clear();
    m_manager.format();
}
