// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "parameteredit.h"

#include "toolkitlook.h"

#include <QRegularExpression>
#include <QSignalBlocker>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextLayout>

// How the digits look, and which of them is the cursor digit.

namespace appPlugins {

namespace {

bool holdsNoDigit(QChar character)
{
    return character == QLatin1Char('.') || character == QLatin1Char(' ') ||
           character == QLatin1Char('-');
}

QString withoutSpace(QString text)
{
    static const QRegularExpression space(QStringLiteral("\\s"));
    return text.contains(space) ? text.remove(space) : text;
}

// The new character comes behind the old one, which a cursor in front of both does not notice.
void replaceCharacter(QTextCursor& line, int position, QChar character)
{
    line.setPosition(position + 1);
    line.insertText(character, line.charFormat());
    line.setPosition(position);
    line.deleteChar();
}

// At least one digit stands before the decimals.
QString paddedDigits(long long value, int precision)
{
    const QString digits = QString::number(value);
    if (value < 0)
        return QLatin1Char('-') + digits.mid(1).rightJustified(precision + 1, QLatin1Char('0'));
    return digits.rightJustified(precision + 1, QLatin1Char('0'));
}

} // namespace

const QString ParameterTextEdit::m_strSelfStyleSheet =
    QStringLiteral("QTextEdit{background:transparent;border:none;color:%1;}"
                   "QTextEdit:disabled{background:transparent;border:none;color:%2;}"
                   "QTextEdit:focus{background:%3;border:none;color:%1;}")
        .arg(Look::White, Look::DisabledGrey, Look::FocusBlue);

ParameterTextEdit::ParameterTextEdit(QWidget* parent)
    : QTextEdit(parent)
    , m_strLastText(QStringLiteral("10.000 000 000 000"))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setObjectName(QStringLiteral("ParameterTextEdit"));
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setLineWrapMode(QTextEdit::NoWrap);
    setWordWrapMode(QTextOption::NoWrap);
    setAcceptRichText(false);
    setTabChangesFocus(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFocusPolicy(Qt::ClickFocus);
    setInputMethodHints(Qt::ImhFormattedNumbersOnly);
    setContextMenuPolicy(Qt::NoContextMenu);
    setAcceptDrops(false);
    setUndoRedoEnabled(false);
    setStyleSheet(m_strSelfStyleSheet);
    setFont(Look::textFont());
    setCursorWidth(0);
    // Layout, cursor and painting share the shapes of the digits, which stay in this one block.
    document()->firstBlock().layout()->setCacheEnabled(true);

    caculatePower();
    connect(this, &QTextEdit::cursorPositionChanged, this,
            &ParameterTextEdit::cursorPositionChangedSlots);
    installEventFilter(this);
}

void ParameterTextEdit::updateText(long long value, int precision)
{
    QString text = paddedDigits(value, precision);
    if (precision > 0)
        text.insert(text.size() - precision, QLatin1Char('.'));
    else if (value != 0)
        text.append(QString(-precision, QLatin1Char('0')));

    const bool toFirst = m_unitEnterFlag || m_dbSetValueFlag;
    m_unitEnterFlag = false;
    m_dbSetValueFlag = false;
    const int position = toFirst ? 0 : m_lastCursorPosition + text.size() - m_strLastText.size();

    m_strLastText = text;
    showText(text);
    placeCursor(qBound(0, position, text.size() - 1));
    cursorPositionChangedSlots();
}

// The document lays itself out anew after each change: digits that stay are left alone, and those
// that another takes the place of keep their underline. Every intermediate position of the cursor
// would look like one that the user chose.
void ParameterTextEdit::showText(const QString& text)
{
    const QSignalBlocker blocker(this);
    const QString shown = toPlainText();
    QTextCursor line(document());
    line.beginEditBlock();
    if (shown.size() == text.size()) {
        for (int i = 0; i < text.size(); ++i) {
            if (shown.at(i) != text.at(i))
                replaceCharacter(line, i, text.at(i));
        }
    } else {
        line.select(QTextCursor::Document);
        line.insertText(text, QTextCharFormat());
    }
    line.endEditBlock();
}

void ParameterTextEdit::placeCursor(int position)
{
    m_lastCursorPosition = position;
    QTextCursor cursor = textCursor();
    if (cursor.position() == position && !cursor.hasSelection())
        return;

    const QSignalBlocker blocker(this);
    cursor.setPosition(position);
    setTextCursor(cursor);
}

void ParameterTextEdit::caculatePower()
{
    const QString shown = toPlainText();
    const int cursor = withoutSpace(shown.left(textCursor().position())).size();
    const QString text = withoutSpace(shown);
    const int found = text.indexOf(QLatin1Char('.'));
    const int point = found < 0 ? text.size() : found;
    m_currentCursorPower = point - cursor - (cursor < point ? 1 : 0);
}

int ParameterTextEdit::digitPosition(int position) const
{
    const QString text = toPlainText();
    if (position >= text.size())
        position = text.size() - 1;
    if (position >= 0 && holdsNoDigit(text.at(position)))
        ++position;
    return qMax(position, 0);
}

void ParameterTextEdit::underline(int position, bool underlined)
{
    QTextCursor cursor(document());
    if (position >= document()->characterCount() - 1)
        return;

    cursor.setPosition(position);
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    const bool before = cursor.charFormat().underlineStyle() == QTextCharFormat::SingleUnderline;
    if (before == underlined)
        return;

    const QSignalBlocker blocker(this);
    QTextCharFormat format;
    format.setUnderlineStyle(underlined ? QTextCharFormat::SingleUnderline
                                        : QTextCharFormat::NoUnderline);
    cursor.mergeCharFormat(format);
}

// The position -1 stands for no character.
bool ParameterTextEdit::underlinesOnly(int position) const
{
    bool found = position < 0;
    const QTextBlock line = document()->firstBlock();
    for (auto it = line.begin(); !it.atEnd(); ++it) {
        const QTextFragment part = it.fragment();
        if (part.charFormat().underlineStyle() != QTextCharFormat::SingleUnderline)
            continue;
        if (part.position() != position || part.length() != 1)
            return false;
        found = true;
    }
    return found;
}

void ParameterTextEdit::addUnderscoreToChar()
{
    placeCursor(digitPosition(textCursor().position()));
    underline(m_lastCursorPosition, true);
}

void ParameterTextEdit::removeUnderscoreToChar()
{
    underline(textCursor().position(), false);
}

void ParameterTextEdit::removePreviousCharacterUnderscore()
{
    const int position = m_lastCursorPosition;
    {
        const QSignalBlocker blocker(this);
        if (!underlinesOnly(hasFocus() ? digitPosition(position) : -1)) {
            QTextCursor line(document());
            line.select(QTextCursor::Document);
            line.setCharFormat(QTextCharFormat());
        }
        setCurrentCharFormat(QTextCharFormat());
    }
    placeCursor(position);
    if (hasFocus())
        addUnderscoreToChar();
}

void ParameterTextEdit::cursorPositionChangedSlots()
{
    if (m_bInputting)
        return;

    m_lastCursorPosition = textCursor().position();
    removePreviousCharacterUnderscore();
    caculatePower();
}

void ParameterTextEdit::setDisable(bool disable)
{
    setDisabled(disable);
}

void ParameterTextEdit::focusInEvent(QFocusEvent* event)
{
    QTextEdit::focusInEvent(event);
    Q_EMIT cursorPositionChanged();
}

void ParameterTextEdit::focusOutEvent(QFocusEvent* event)
{
    QTextEdit::focusOutEvent(event);
    removeUnderscoreToChar();
}

// A text document begins at the top; the one line belongs in the middle.
void ParameterTextEdit::resizeEvent(QResizeEvent* event)
{
    QTextEdit::resizeEvent(event);
    const int spare = height() - 2 * frameWidth() - qRound(document()->size().height());
    const int top = qMax(0, spare / 2);
    if (viewportMargins().top() != top)
        setViewportMargins(0, top, 0, 0);
}

} // namespace appPlugins
