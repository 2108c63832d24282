// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "input.h"

#include <QFile>
#include <QFileInfo>
#include <QJsonDocument>

#include <cstring>

namespace {

const int ChunkBytes = 64 * 1024;

// Pieces instead of one read of the limit, which would reserve the limit for every small file.
QString readPieces(QIODevice& source, QByteArray& bytes)
{
    QByteArray chunk(ChunkBytes, Qt::Uninitialized);
    for (;;) {
        const qint64 count = source.read(chunk.data(), chunk.size());
        if (count < 0)
            return source.errorString();
        if (count == 0)
            return QString();
        if (bytes.size() + count > MaxSetupBytes)
            return QStringLiteral("size: more than the %1 bytes that are read").arg(MaxSetupBytes);
        bytes.append(chunk.constData(), int(count));
    }
}

QString readFile(const QString& path, QByteArray& bytes)
{
    if (QFileInfo(path).isDir())
        return QStringLiteral("is a folder");
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return file.errorString();
    return readPieces(file, bytes);
}

QString placeOf(const QByteArray& bytes, int offset)
{
    const QByteArray before = bytes.left(offset);
    const int line = before.count('\n') + 1;
    const int column = before.size() - before.lastIndexOf('\n');
    return QStringLiteral("line %1, column %2").arg(line).arg(column);
}

QString documentReason(const QByteArray& bytes, const QJsonDocument& document,
                       const QJsonParseError& error)
{
    if (error.error != QJsonParseError::NoError)
        return QStringLiteral("not a JSON text: %1 at %2")
            .arg(error.errorString(), placeOf(bytes, error.offset));
    if (!document.isObject())
        return QStringLiteral("not a setup: a JSON array where an object is wanted");
    return QStringLiteral("not a setup: the JSON object is empty");
}

QString named(const QString& path, const QString& reason)
{
    if (reason.isEmpty())
        return reason;
    const bool standardInput = path == QLatin1String("-");
    return (standardInput ? QStringLiteral("standard input") : printable(path)) +
           QLatin1String(": ") + reason;
}

} // namespace

QString readBytes(const QString& path, Streams& streams, QByteArray& bytes)
{
    bytes.clear();
    if (path == QLatin1String("-"))
        return named(path, readPieces(*streams.in, bytes));
    return named(path, readFile(path, bytes));
}

bool isWaveform(const QByteArray& bytes)
{
    return bytes.startsWith(appPlugins::WaveformMagic);
}

QString parseSetup(const QString& path, const QByteArray& bytes, QJsonObject& document)
{
    if (isWaveform(bytes))
        return named(path, QStringLiteral("a waveform file where a setup is wanted"));

    QJsonParseError error;
    const QJsonDocument parsed = QJsonDocument::fromJson(bytes, &error);
    if (!parsed.isObject() || parsed.object().isEmpty())
        return named(path, documentReason(bytes, parsed, error));
    document = parsed.object();
    return QString();
}

QString readInput(const QString& path, Streams& streams, Input& input)
{
    QByteArray bytes;
    QString unreadable = readBytes(path, streams, bytes);
    if (!unreadable.isEmpty())
        return unreadable;

    input.kind = isWaveform(bytes) ? Input::Waveform : Input::Setup;
    if (input.kind == Input::Setup) {
        QString reason = parseSetup(path, bytes, input.document);
        // A waveform file that has lost its magic is better told from its name than from not being
        // JSON; but a setup that was saved under such a name is a setup.
        if (reason.isEmpty() || !path.endsWith(QLatin1String(".mpwv")))
            return reason;
    }
    return named(path, appPlugins::parseWaveform(bytes, input.file));
}

QString readSetup(const QString& path, Streams& streams, QJsonObject& document)
{
    QByteArray bytes;
    const QString unreadable = readBytes(path, streams, bytes);
    return unreadable.isEmpty() ? parseSetup(path, bytes, document) : unreadable;
}

bool parseLoad(const QString& text, LoadImpedance& load)
{
    const bool isOhm50 = text == QLatin1String("50");
    if (!isOhm50 && text.compare(QLatin1String("hi-z"), Qt::CaseInsensitive) != 0)
        return false;
    load = isOhm50 ? LoadImpedance::Ohm50 : LoadImpedance::HighZ;
    return true;
}
