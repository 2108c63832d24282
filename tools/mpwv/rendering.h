// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "input.h"

#include <memory>

/// Making waveform files of setups, with a sample buffer that is allocated once and used again for
/// each of them. One object per thread.
class Renderer
{
public:
    Renderer();

    /// Writes the train's waveform file to @p path, whole or not at all. Returns an empty text or
    /// the reason, which does not name the file.
    QString writeFile(const PulseTrain& train, const QString& path);

    /// The bytes of the train's waveform file. Returns an empty text or the reason.
    QString makeBytes(const PulseTrain& train, QByteArray& bytes);

private:
    QString writeTo(const QByteArray& path, const PulseTrain& train);

    std::unique_ptr<double[]> m_pBuffer;
};

/// The waveform file that a setup becomes, or the one that @p input is. Returns an empty text or
/// the reason, which does not name the file.
QString waveformOf(const Input& input, appPlugins::WaveformFile& file);
