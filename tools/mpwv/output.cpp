// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "input.h"
#include "wholefile.h"

#include <QFile>
#include <QFileInfo>

namespace {

const int LongestText = 200;

QString writeStream(QIODevice& stream, const QByteArray& bytes)
{
    return stream.write(bytes) == bytes.size() ? QString() : stream.errorString();
}

QString writeFile(const QString& path, const QByteArray& bytes)
{
    WholeFile whole(path);
    QString refused = whole.open();
    if (!refused.isEmpty())
        return refused;

    QFile file(whole.workPath());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        return file.errorString();
    file.close();
    return whole.commit();
}

bool isPlain(QChar character)
{
    const bool breaksLines = character.category() == QChar::Separator_Line ||
                             character.category() == QChar::Separator_Paragraph;
    return (character.isPrint() && !breaksLines) || character.isSurrogate();
}

} // namespace

QString writeOutput(const QString& path, const QByteArray& bytes, Streams& streams)
{
    const bool standard = path == QLatin1String("-");
    QString reason = standard ? writeStream(*streams.out, bytes) : writeFile(path, bytes);
    if (reason.isEmpty())
        return reason;
    return (standard ? QStringLiteral("standard output") : printable(path)) + QLatin1String(": ") +
           reason;
}

QString fileIdentity(const QString& path)
{
    const QFileInfo file(path);
    if (file.exists())
        return file.canonicalFilePath();
    const QString folder = QFileInfo(file.path()).canonicalFilePath();
    return (folder.isEmpty() ? file.absolutePath() : folder) + QLatin1Char('/') + file.fileName();
}

QString overwriteReason(const QString& input, const QString& output)
{
    const QLatin1String standard("-");
    if (input == standard || output == standard || !QFileInfo(output).isFile() ||
        fileIdentity(input) != fileIdentity(output))
        return QString();
    return QStringLiteral("%1 is the input and would be overwritten").arg(printable(output));
}

void printError(Streams& streams, const QString& text)
{
    streams.err->write(QByteArray("mpwv: ") + text.toUtf8() + '\n');
}

QString printable(const QString& text)
{
    QString plain;
    for (const QChar character : text.left(LongestText)) {
        if (isPlain(character))
            plain += character;
        else
            plain += QString::asprintf("\\u%04x", unsigned(character.unicode()));
    }
    return text.size() > LongestText ? plain + QLatin1String("...") : plain;
}
