// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "transcript.h"

#include <QFileDevice>

const char TranscriptTitle[] = "# kvx-instrument transcript 1";

namespace {

const char Marks[] = "+->!<";
const int MaxDescription = 200;
const qint64 NanosecondsPerSecond = 1000000000;

QByteArray escaped(const QByteArray& bytes)
{
    QByteArray text;
    for (const char c : bytes) {
        if (c == '\\')
            text += "\\\\";
        else if (c == '\n')
            text += "\\n";
        else if (c == '\r')
            text += "\\r";
        else if (c == '\t')
            text += "\\t";
        else if (c >= ' ' && c <= '~')
            text += c;
        else
            text += "\\x" + QByteArray(1, c).toHex();
    }
    return text;
}

/// The byte that the escape sequence at @p pos (the character behind the backslash) stands for;
/// moves @p pos to its last character. False when it is none.
bool unescapeOne(const QByteArray& text, int& pos, char& byte)
{
    const int simple = pos < text.size() ? QByteArray("\\nrt").indexOf(text.at(pos)) : -1;
    if (simple >= 0) {
        byte = "\\\n\r\t"[simple];
        return true;
    }
    bool isHex = false;
    const int code = text.mid(pos + 1, 2).toInt(&isHex, 16);
    if (!isHex || pos + 2 >= text.size() || text.at(pos) != 'x' || code < 0)
        return false;
    byte = static_cast<char>(code);
    pos += 2;
    return true;
}

bool unescape(const QByteArray& text, QByteArray& bytes)
{
    for (int pos = 0; pos < text.size(); ++pos) {
        char byte = text.at(pos);
        if (byte == '\\' && !unescapeOne(text, ++pos, byte))
            return false;
        bytes.append(byte);
    }
    return true;
}

bool parseTime(const QByteArray& text, qint64& time)
{
    const int point = text.indexOf('.');
    if (point < 1 || text.size() - point != 10)
        return false;
    bool secondsValid = false;
    bool fractionValid = false;
    const uint seconds = text.left(point).toUInt(&secondsValid);
    const uint fraction = text.mid(point + 1).toUInt(&fractionValid);
    time = seconds * NanosecondsPerSecond + fraction;
    return secondsValid && fractionValid;
}

QVector<TranscriptEvent> talkOf(const QVector<TranscriptEvent>& events)
{
    QVector<TranscriptEvent> talk;
    for (const TranscriptEvent& event : events) {
        if (event.mark != TranscriptEvent::Connected && event.mark != TranscriptEvent::Disconnected)
            talk.append(event);
    }
    return talk;
}

QString describe(const QVector<TranscriptEvent>& talk, int index)
{
    if (index >= talk.size())
        return QStringLiteral("(end)");
    const TranscriptEvent& event = talk.at(index);
    return QStringLiteral("%1 %2")
        .arg(QLatin1Char(event.mark))
        .arg(QString::fromLatin1(escaped(event.bytes).left(MaxDescription)));
}

bool isSame(const TranscriptEvent& a, const TranscriptEvent& b)
{
    return a.mark == b.mark && a.bytes == b.bytes;
}

} // namespace

TranscriptWriter::TranscriptWriter(QIODevice& device)
    : m_device(device)
{
    m_device.write(QByteArray(TranscriptTitle) + '\n');
}

void TranscriptWriter::write(const TranscriptEvent& event)
{
    m_device.write(transcriptLine(event) + '\n');
    if (auto* file = qobject_cast<QFileDevice*>(&m_device))
        file->flush();
}

QByteArray transcriptLine(const TranscriptEvent& event)
{
    const QByteArray seconds = QByteArray::number(event.time / NanosecondsPerSecond);
    const QByteArray fraction = QByteArray::number(event.time % NanosecondsPerSecond);
    return seconds + '.' + fraction.rightJustified(9, '0') + ' ' +
           QByteArray::number(event.client) + ' ' + char(event.mark) + ' ' + escaped(event.bytes);
}

bool parseTranscriptLine(const QByteArray& line, TranscriptEvent& event)
{
    const int client = line.indexOf(' ') + 1;
    const int mark = line.indexOf(' ', client) + 1;
    if (client == 0 || mark == 0 || mark + 1 >= line.size() || line.at(mark + 1) != ' ' ||
        !QByteArray(Marks).contains(line.at(mark)))
        return false;
    TranscriptEvent read;
    bool isNumber = false;
    read.client = line.mid(client, mark - client - 1).toInt(&isNumber);
    read.mark = static_cast<TranscriptEvent::Mark>(line.at(mark));
    if (!isNumber || read.client < 1 || !parseTime(line.left(client - 1), read.time) ||
        !unescape(line.mid(mark + 2), read.bytes))
        return false;
    event = read;
    return true;
}

QString readTranscript(QIODevice& device, QVector<TranscriptEvent>& events)
{
    if (device.readLine().trimmed() != TranscriptTitle)
        return QStringLiteral("line 1: not a transcript");
    for (int number = 2; !device.atEnd(); ++number) {
        QByteArray line = device.readLine();
        if (line.endsWith('\n'))
            line.chop(1);
        TranscriptEvent event;
        if (!parseTranscriptLine(line, event))
            return QStringLiteral("line %1: not an event of a transcript").arg(number);
        events.append(event);
    }
    return QString();
}

QString compareTranscripts(const QVector<TranscriptEvent>& first,
                           const QVector<TranscriptEvent>& second)
{
    const QVector<TranscriptEvent> a = talkOf(first);
    const QVector<TranscriptEvent> b = talkOf(second);
    int index = 0;
    while (index < a.size() && index < b.size() && isSame(a.at(index), b.at(index)))
        ++index;
    if (index == a.size() && index == b.size())
        return QString();
    return QStringLiteral("event %1 differs:\n  %2\n  %3")
        .arg(index + 1)
        .arg(describe(a, index), describe(b, index));
}
