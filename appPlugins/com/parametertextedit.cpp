// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "frontpanelkeys.h"
#include "parameteredit.h"
#include "toolkitlook.h"

#include <QCoreApplication>
#include <QDialog>
#include <QKeyEvent>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QTextBlock>

namespace appPlugins {

namespace {

bool isDigit(int key)
{
    return key >= Qt::Key_0 && key <= Qt::Key_9;
}

bool passedByArrows(QChar character)
{
    return character == QLatin1Char('.') || character == QLatin1Char(' ');
}

bool holdsNoDigit(QChar character)
{
    return passedByArrows(character) || character == QLatin1Char('-');
}

QString withoutSpace(QString text)
{
    text.remove(QRegularExpression(QStringLiteral("\\s")));
    return text;
}

// At least one digit stands before the decimals.
QString paddedDigits(long long value, int precision)
{
    const QString digits = QString::number(value);
    if (value < 0)
        return QLatin1Char('-') + digits.mid(1).rightJustified(precision + 1, QLatin1Char('0'));
    return digits.rightJustified(precision + 1, QLatin1Char('0'));
}

QDialog* nearestDialog(const QWidget* widget)
{
    for (QWidget* above = widget->parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (auto* dialog = qobject_cast<QDialog*>(above))
            return dialog;
    }
    return nullptr;
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

// Every intermediate position of the cursor would look like one that the user chose.
void ParameterTextEdit::showText(const QString& text)
{
    const QSignalBlocker blocker(this);
    setPlainText(text);
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void ParameterTextEdit::placeCursor(int position)
{
    const QSignalBlocker blocker(this);
    QTextCursor cursor = textCursor();
    cursor.setPosition(position);
    setTextCursor(cursor);
    m_lastCursorPosition = position;
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

    const QSignalBlocker blocker(this);
    cursor.setPosition(position);
    cursor.movePosition(QTextCursor::NextCharacter, QTextCursor::KeepAnchor);
    QTextCharFormat format;
    format.setUnderlineStyle(underlined ? QTextCharFormat::SingleUnderline
                                        : QTextCharFormat::NoUnderline);
    cursor.mergeCharFormat(format);
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
        QTextCursor line(document());
        line.select(QTextCursor::Document);
        line.setCharFormat(QTextCharFormat());
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

double ParameterTextEdit::convertToDouble(const QString& text) const
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (ok)
        return value;
    return text.startsWith(QLatin1Char('-')) ? -1e12 : 1e12;
}

void ParameterTextEdit::signClicked()
{
    const QString text = toPlainText();
    const double value = convertToDouble(text);
    const bool signedText = text.startsWith(QLatin1Char('-'));
    QTextCursor cursor = textCursor();
    cursor.movePosition(QTextCursor::Start);
    if (value > 0 || (value == 0 && !signedText))
        cursor.insertText(QStringLiteral("-"));
    else
        cursor.deleteChar();
    setTextCursor(cursor);
}

void ParameterTextEdit::pointClicked(QKeyEvent* e)
{
    Q_UNUSED(e)
    if (!toPlainText().contains(QLatin1Char('.')))
        insertDigit(Qt::Key_Period);
}

// The key counts and not its text, which a front-panel key may come without.
void ParameterTextEdit::insertDigit(int key)
{
    textCursor().insertText(QString(QChar(key)));
    ensureCursorVisible();
}

void ParameterTextEdit::followShownText()
{
    m_strLastText = toPlainText();
    cursorPositionChangedSlots();
}

void ParameterTextEdit::leftArrowClicked(QKeyEvent* e)
{
    Q_UNUSED(e)
    const QString text = toPlainText();
    const int position = textCursor().position();
    const int firstDigit = text.startsWith(QLatin1Char('-')) ? 1 : 0;
    if (position == firstDigit) {
        showText(QString(text).insert(firstDigit, QLatin1Char('0')));
        placeCursor(firstDigit);
        return followShownText();
    }

    const int passed = position - 1;
    const bool twice = passed > 0 && passedByArrows(text.at(passed));
    placeCursor(qMax(twice ? passed - 1 : passed, 0));
    cursorPositionChangedSlots();
}

void ParameterTextEdit::rightArrowClicked(QKeyEvent* e)
{
    Q_UNUSED(e)
    const QString text = toPlainText();
    const int position = textCursor().position();
    const int firstDigit = text.startsWith(QLatin1Char('-')) ? 1 : 0;
    const QStringRef digits = text.midRef(firstDigit);
    if (position == firstDigit && digits.startsWith(QLatin1Char('0')) && digits.size() > 1 &&
        !digits.startsWith(QLatin1String("0."))) {
        showText(QString(text).remove(firstDigit, 1));
        placeCursor(firstDigit);
        return followShownText();
    }

    int next = position + 1;
    if (next < text.size() && passedByArrows(text.at(next)))
        ++next;
    placeCursor(qMin(next, text.size() - 1));
    cursorPositionChangedSlots();
}

void ParameterTextEdit::rightArrowClicked(QKeyEvent* e, bool specialDealwith)
{
    qDebug("ParameterTextEdit::rightArrowClicked, e->count()=%d, specialDealWith=%s", e->count(),
           specialDealwith ? "true" : "false");

    QString text = toPlainText();
    const int firstDigit = text.startsWith(QLatin1Char('-')) ? 1 : 0;
    const QString digits = text.mid(firstDigit);
    if (digits.startsWith(QLatin1String("0.000")) && digits.size() > 5)
        text.remove(firstDigit + 2, 3);
    else if (digits.startsWith(QLatin1String("0.")))
        text.remove(firstDigit, 2);
    showText(text);
    placeCursor(firstDigit);
    followShownText();
}

void ParameterTextEdit::setDisable(bool disable)
{
    setDisabled(disable);
}

void ParameterTextEdit::startTyping()
{
    m_bInputting = true;
    removeUnderscoreToChar();
    showText(QString());
    setCurrentCharFormat(QTextCharFormat());
}

void ParameterTextEdit::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Period)
        return pointClicked(event);
    if (isDigit(key))
        return insertDigit(key);
    if (key == Qt::Key_Backspace || key == Qt::Key_Delete)
        return QTextEdit::keyPressEvent(event);
    // One line has no place for the line break that Enter would insert.
    if (key == Qt::Key_Enter)
        return;
    if (key == Qt::Key_Minus || key == QT_KEY_MINUS) {
        if (m_bSupportNegative)
            signClicked();
        return;
    }
    if (key != Qt::Key_Left && key != Qt::Key_Right)
        return repostToDialog(event);
    if (m_bInputting)
        return;
    if (key == Qt::Key_Left)
        leftArrowClicked(event);
    else
        rightArrowClicked(event);
}

void ParameterTextEdit::keyReleaseEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool editing = isDigit(key) || key == Qt::Key_Minus || key == Qt::Key_Period ||
                         key == Qt::Key_Backspace || key == Qt::Key_Delete || key == Qt::Key_Left ||
                         key == Qt::Key_Right || key == QT_KEY_MINUS;
    if (editing)
        return;
    if (key == Qt::Key_Enter)
        return leaveToDialog();
    repostToDialog(event);
}

// Another input that the user has tapped meanwhile keeps the focus that this one lost to it.
void ParameterTextEdit::leaveToDialog()
{
    const QWidget* focus = window()->focusWidget();
    if (focus != nullptr && focus != this)
        return;

    clearFocus();
    if (QDialog* dialog = nearestDialog(this))
        dialog->setFocus(Qt::OtherFocusReason);
}

void ParameterTextEdit::repostToDialog(QKeyEvent* event)
{
    if (QDialog* dialog = nearestDialog(this)) {
        QCoreApplication::postEvent(
            dialog, new QKeyEvent(event->type(), event->key(), event->modifiers(), QString()));
    }
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

// Digits come from keys alone: what is pasted or dropped would pass by the state of typing.
void ParameterTextEdit::insertFromMimeData(const QMimeData* source)
{
    Q_UNUSED(source)
}

// An on-screen keypad commits text where the front panel presses keys; the state of typing begins
// and ends with keys.
void ParameterTextEdit::inputMethodEvent(QInputMethodEvent* event)
{
    const QString typed = event->commitString();
    for (const QChar character : typed) {
        const int key = character.unicode();
        if (!isDigit(key) && key != Qt::Key_Period && key != Qt::Key_Minus)
            continue;
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, character);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, character);
        QCoreApplication::sendEvent(this, &press);
        QCoreApplication::sendEvent(this, &release);
    }
    event->accept();
}

} // namespace appPlugins
