// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QIODevice>
#include <QString>
#include <QVector>

/// One line of a transcript: what passed between a client and the instrument.
struct TranscriptEvent
{
    enum Mark : char {
        Connected = '+',
        Disconnected = '-',
        Command = '>', ///< a message, line feed included, when the instrument began with it
        Overrun = '!', ///< a message that was dropped because it was too long
        Reply = '<',   ///< what was sent, or was about to be, for the command before it
    };

    qint64 time = 0; ///< nanoseconds since the server's start
    int client = 0;  ///< connections are numbered from 1
    Mark mark = Command;
    QByteArray bytes;
};

/// Writes events as text, a line each: seconds with nine decimals, client, mark and bytes, between
/// single blanks. Bytes that cannot be printed are written \n, \r, \t or \xHH, a backslash twice.
class TranscriptWriter
{
public:
    /// @p device is open for writing and outlives the writer.
    explicit TranscriptWriter(QIODevice& device);

    /// Writes the event through to the file, so that nothing is lost with the process.
    void write(const TranscriptEvent& event);

private:
    QIODevice& m_device;
};

/// The line that a transcript begins with.
extern const char TranscriptTitle[];

/// An event as its line, without line feed, and back; false for a line that is no event.
QByteArray transcriptLine(const TranscriptEvent& event);
bool parseTranscriptLine(const QByteArray& line, TranscriptEvent& event);

/// Reads a transcript from its title on. Returns what is wrong, with the line's number, or an empty
/// text.
QString readTranscript(QIODevice& device, QVector<TranscriptEvent>& events);

/// Compares what was commanded and replied, in order; times, client numbers and the comings and
/// goings of clients do not count. Returns the first difference, or an empty text.
QString compareTranscripts(const QVector<TranscriptEvent>& first,
                           const QVector<TranscriptEvent>& second);
