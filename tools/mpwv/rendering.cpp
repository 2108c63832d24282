// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "rendering.h"

#include "trainsamples.h"
#include "wholefile.h"

#include <QFile>

#include <cerrno>

#include <sys/mman.h>
#include <unistd.h>

Renderer::Renderer()
    // Left uninitialised: each train zeroes what it fills.
    : m_pBuffer(new double[PointBudget])
{}

QString Renderer::writeTo(const QByteArray& path, const PulseTrain& train)
{
    // The writer tells that it failed and not why; the system's reason is the first one left
    // behind.
    errno = 0;
    if (writeTrainWaveform(path.constData(), train, m_pBuffer.get()))
        return QString();
    return errno != 0 ? qt_error_string(errno) : QStringLiteral("cannot be written");
}

QString Renderer::writeFile(const PulseTrain& train, const QString& path)
{
    WholeFile whole(path);
    QString reason = whole.open();
    if (reason.isEmpty())
        reason = writeTo(QFile::encodeName(whole.workPath()), train);
    if (reason.isEmpty())
        reason = whole.commit();
    return reason;
}

QString Renderer::makeBytes(const PulseTrain& train, QByteArray& bytes)
{
    // A file in memory: the bytes come from the one writer that there is, whatever they are for.
    const int descriptor = memfd_create("mpwv", MFD_CLOEXEC);
    if (descriptor < 0)
        return qt_error_string(errno);
    QFile memory;
    memory.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered,
                QFileDevice::AutoCloseHandle);

    QString reason = writeTo("/proc/self/fd/" + QByteArray::number(descriptor), train);
    if (reason.isEmpty())
        bytes = memory.readAll();
    return reason;
}

QString waveformOf(const Input& input, appPlugins::WaveformFile& file)
{
    if (input.kind == Input::Waveform) {
        file = input.file;
        return QString();
    }

    QByteArray bytes;
    const QString reason = Renderer().makeBytes(PulseTrain::fromDocument(input.document), bytes);
    return reason.isEmpty() ? appPlugins::parseWaveform(bytes, file) : reason;
}
