// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "frontpanelkeys.h"
#include "parameteredit.h"

#include <QCoreApplication>
#include <QDialog>
#include <QKeyEvent>

// The keys of the digits: typing, the arrows, and what is left to the dialog.

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

QDialog* nearestDialog(const QWidget* widget)
{
    for (QWidget* above = widget->parentWidget(); above != nullptr; above = above->parentWidget()) {
        if (auto* dialog = qobject_cast<QDialog*>(above))
            return dialog;
    }
    return nullptr;
}

} // namespace

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

void ParameterTextEdit::startTyping()
{
    m_bInputting = true;
    showText(QString());
    setCurrentCharFormat(QTextCharFormat());
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

double ParameterTextEdit::convertToDouble(const QString& text) const
{
    bool ok = false;
    const double value = text.toDouble(&ok);
    if (ok)
        return value;
    return text.startsWith(QLatin1Char('-')) ? -1e12 : 1e12;
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

void ParameterTextEdit::followShownText()
{
    m_strLastText = toPlainText();
    cursorPositionChangedSlots();
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
