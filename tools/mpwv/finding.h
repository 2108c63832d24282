// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVector>

/// Something in a file that the editor, or the writer of waveform files, would not have put there.
struct Finding
{
    QString member; ///< "multiple pulses.voltage.amplitude", or a field of a waveform file
    QString reason;
};

/// "FILE: MEMBER: reason", always one line.
QString findingLine(const QString& file, const Finding& finding);
