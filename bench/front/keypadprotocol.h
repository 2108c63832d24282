// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QMetaType>
#include <QRect>
#include <QString>
#include <QVector>

/// The lines that the keypad socket carries: what the front and scripts ask of the host, and what
/// it answers. Writing and reading them alone; sockets are elsewhere.
namespace Keypad {

/// A longest line from a client, without its line feed.
const int MaxCommandBytes = 256;

/// A longest line from the host: a screen full of texts, with much to spare.
const int MaxReplyBytes = 1024 * 1024;

/// Most detents that one command turns the knob.
const int MaxTurn = 100;

struct Command
{
    enum Kind {
        Press,   ///< key `value` goes down
        Release, ///< key `value` comes up
        Turn,    ///< the knob turns by `value` detents, clockwise positive
        Describe ///< what is on the screen?
    };

    Kind kind = Describe;
    int value = 0; ///< key code from 1, or detents from -MaxTurn to MaxTurn but 0
};

/// A text that a person can see on the screen.
struct ScreenItem
{
    QString text;
    QRect rect; ///< pixels of the screen
    bool enabled = true;
    bool focus = false;
    bool checked = false;
    QString role; ///< a lower-case word: "button"
};

struct ScreenDescription
{
    QString language; ///< "en", "de", "zh_CN" or "ja"
    bool busy = false;
    QVector<ScreenItem> items; ///< in reading order
};

struct Reply
{
    enum Kind { Hello, Screen, Error };

    Kind kind = Error;
    QString text;             ///< who greets, or what is wrong
    ScreenDescription screen; ///< of a Screen
};

/// Reads @p line, which may end in a line feed. Returns an empty text and fills @p command, or what
/// is wrong.
QString parseCommand(const QByteArray& line, Command& command);

/// Likewise for a line from the host.
QString parseReply(const QByteArray& line, Reply& reply);

/// Lines with their line feed. Line ends inside a text become blanks.
QByteArray commandLine(const Command& command);
QByteArray helloLine(const QString& version);
QByteArray screenLine(const ScreenDescription& screen);
QByteArray errorLine(const QString& text);

/// Takes bytes as they come and gives whole lines.
class LineBuffer
{
public:
    explicit LineBuffer(int maxLineBytes)
        : m_nMaxLineBytes(maxLineBytes)
    {}

    void append(const QByteArray& bytes) { m_bytes += bytes; }
    void clear() { m_bytes.clear(); }

    /// Takes the next line, without its line feed. False where none is whole.
    bool takeLine(QByteArray& line);

    /// Whether the line that comes next is too long, whole or not. Takes nothing.
    bool isOverlong() const;

private:
    int m_nMaxLineBytes;
    QByteArray m_bytes;
};

/// Where the host listens unless told otherwise: in the folder of the user's running programs.
QString defaultSocketPath();

} // namespace Keypad

Q_DECLARE_METATYPE(Keypad::ScreenDescription)
