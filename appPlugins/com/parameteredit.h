// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"
#include "apptypes.h"
#include "unit.h"

#include <QLabel>
#include <QString>
#include <QTextEdit>

class QHBoxLayout;
class QVBoxLayout;

namespace appPlugins {

/// The digits of a numeric editor: one line of text, a cursor digit that is underlined while the
/// editor has the focus, and the state of typing.
///
/// Keys that it does not use are posted to the nearest dialog above it, so that front-panel keys
/// reach the plug-in's window. Digits come from keys alone: nothing can be pasted or dropped, and
/// the text of an input method is taken as keys. A disabled editor receives none.
///
/// It is a part of ParameterTextWithOrderOfMagnitude, which holds the value; a form uses that.
class APPPLUGINS_EXPORT ParameterTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    /// Empty until updateText().
    explicit ParameterTextEdit(QWidget* parent);

    /// Shows @p value (resolution steps) with @p precision decimals and at least one digit before
    /// them; a negative precision shows that many zeros behind the steps. The cursor keeps its
    /// distance from the right end, or goes to the first digit after a change of prefix and after a
    /// value that a program set without the focus.
    void updateText(long long value, int precision);

    /// The value's text as last shown, not what is being typed.
    QString lastText() const { return m_strLastText; }

    /// Power of ten of the cursor digit in the number on show: 0 for the units, -1 for the first
    /// decimal.
    int cursorPower() const { return m_currentCursorPower; }

    /// Works out the cursor digit's power from the text and the cursor.
    void caculatePower();

    /// Underlines the digit to the right of the cursor, which is moved onto a digit first.
    void addUnderscoreToChar();
    /// Clears the underline of the character to the right of the cursor.
    void removeUnderscoreToChar();
    /// Clears every underline, puts the cursor back and underlines its digit while focused.
    void removePreviousCharacterUnderscore();

    /// The text as a number; 1e12 for text that is none, -1e12 where it begins with "-".
    double convertToDouble(const QString& text) const;

    /// Adds or takes away the sign of what is being typed.
    void signClicked();
    /// Inserts a point unless there is one.
    void pointClicked(QKeyEvent* e);
    /// Moves the cursor one digit to the left; on the first digit puts a zero in front of it.
    void leftArrowClicked(QKeyEvent* e);
    /// Moves the cursor one digit to the right; on a first digit that is a needless zero takes that
    /// away instead.
    void rightArrowClicked(QKeyEvent* e);
    /// Takes zeros away from the text of a value below one: the three behind the point of
    /// "0.000...", "0." otherwise. @p specialDealwith goes into the log alone.
    void rightArrowClicked(QKeyEvent* e, bool specialDealwith);

    /// Disables or enables the digits. Disabled ones are grey and take no keys.
    void setDisable(bool disable);

public Q_SLOTS:
    /// Follows the cursor with power and underline; does nothing while typing.
    void cursorPositionChangedSlots();

protected:
    /// Edits with digits, point, sign (where there are negative values), Backspace, Delete and the
    /// arrows; posts any other key but Enter to the nearest dialog.
    void keyPressEvent(QKeyEvent* event) override;
    /// Enter gives the focus to the nearest dialog, unless another input has it already; releases
    /// of editing keys end here, others are posted to the dialog.
    void keyReleaseEvent(QKeyEvent* event) override;
    /// Underlines the cursor digit.
    void focusInEvent(QFocusEvent* event) override;
    /// Takes the underline away.
    void focusOutEvent(QFocusEvent* event) override;
    /// Keeps the line in the middle.
    void resizeEvent(QResizeEvent* event) override;
    /// Takes nothing.
    void insertFromMimeData(const QMimeData* source) override;
    /// Takes the digits, points and signs of a committed text as key presses.
    void inputMethodEvent(QInputMethodEvent* event) override;

private:
    friend class ParameterTextWithOrderOfMagnitude;

    void startTyping();
    void insertDigit(int key);
    void showText(const QString& text);
    void placeCursor(int position);
    void followShownText();
    int digitPosition(int position) const;
    void underline(int position, bool underlined);
    bool underlinesOnly(int position) const;
    void repostToDialog(QKeyEvent* event);
    void leaveToDialog();

    int m_currentCursorPower = 0;
    bool m_unitChangeFlag = false;
    bool m_unitEnterFlag = false;
    bool m_dbSetValueFlag = false;
    int m_lastCursorPosition = 0;
    bool m_bInputting = false;
    QString m_strLastText;
    bool m_bSupportNegative = false;
    [[maybe_unused]] bool m_bLeftArrowClicked = false;
    [[maybe_unused]] bool m_bRightArrowClicked = false;

    static const QString m_strSelfStyleSheet;
};

/// A real value as digits and engineering prefix, changed by typing, by the arrow keys and by the
/// knob. The value is a whole number of resolution steps, so that no floating-point rounding
/// reaches the digits. It knows no limits: they belong to the component that owns it.
///
/// The prefix is the largest that leaves one to three digits before the point. Typing begins with a
/// digit, sign, point, Backspace or Delete; a unit key, Return or the pressed knob confirms, Cancel
/// or the loss of the focus drops what is typed. Typed digits finer than a step are cut off. A
/// detent of the knob changes the digit under the cursor by one; Left and Right move the cursor
/// and, at the edge of the three digits before the point, change the prefix.
///
/// parameterChanged() is for changes that the user made. A value set by program while the digits
/// have no focus is shown silently.
class APPPLUGINS_EXPORT ParameterTextWithOrderOfMagnitude : public QLabel
{
    Q_OBJECT

public:
    /// @p defaultValue and @p resolution are in the base unit of @p unitType, which chooses the
    /// prefixes; the value starts at the nearest step, the resolution is a power of ten. A sign can
    /// be typed for UNIT_VOLTAGE alone.
    ParameterTextWithOrderOfMagnitude(QWidget* parent, double defaultValue, ENUM_UNIT_TYPE unitType,
                                      double resolution);

    /// Sets and shows the value, in resolution steps; nothing for the current one. Ends typing and
    /// emits valueChanged(); with the focus in the digits of an enabled editor parameterChanged(),
    /// too.
    void setValue(long long value);
    /// The value in resolution steps, without what is being typed.
    long long getValue() const { return m_valueLL; }
    /// The value's text as last shown with its prefix: "1.000000m".
    QString getStringValue() const;
    /// Characters of the value's text as last shown, without the prefix.
    int getTextLength() const;

    /// Base units of one step, a power of ten. Nothing is drawn again: the count of steps stays.
    void setResolution(double resolution) { m_paramResolution = resolution; }
    /// Base units of one step.
    double getResolution() const { return m_paramResolution; }

    /// Disables or enables digits, prefix and the whole. A disabled editor takes no keys;
    /// setValue() still works.
    void setDisable(bool disable);

    /// Chooses the prefix of the current value and shows it. Emits nothing.
    void initialize();

    /// The digits.
    ParameterTextEdit* textEdit() const { return m_pParameterText; }
    /// The prefix.
    CUnit* unitLabel() const { return m_pUnitLabel; }

    /// True from the first key of a new number to its commit or cancel.
    bool isTyping() const { return m_bInputting; }
    /// Works off the keys that the digits have handed over and that still wait in the event queue.
    void takeHandedOverKeys();
    /// Takes away what is typed and not confirmed and shows the value in the current prefix. Emits
    /// nothing.
    void redraw();

    /// Shares of the width; 133 and 23 at first.
    void setDigitsLayout(int digits, int prefix);

public Q_SLOTS:
    /// Takes over what was typed when the unit selector asks for it, then chooses the prefix and
    /// shows the value. A text that is no number leaves the value, one too long for 64 bits gives
    /// the largest. Emits parameterChanged() for a new value of the user's.
    virtual void normalize();

Q_SIGNALS:
    /// setValue() or the knob gave another value.
    void valueChanged();
    /// The user changed the value; in resolution steps. Follows each detent of the knob and each
    /// confirmed number that is another than before.
    void parameterChanged(long long value);
    /// The digits got the focus.
    void sgn_editorFocusIn();
    /// The digits lost the focus.
    void sgn_editorFocusOut();

protected:
    /// One detent: the cursor digit up by one. Nothing with the cursor on the sign.
    virtual void knobRotateClockwise(QKeyEvent* e);
    /// One detent: the cursor digit down by one. Nothing with the cursor on the sign.
    virtual void knobRotateCouterClockwise(QKeyEvent* e);
    /// Shows the value in the next larger (Left) or smaller (Right) prefix. Beyond the largest
    /// there is nothing, beyond the smallest the cursor goes one digit to the right.
    virtual void arrowChangeUnit(QKeyEvent* e);

    /// Reports a focus of its own like that of the digits.
    bool event(QEvent* event) override;
    /// Sees the keys of the digits first: begins, confirms and cancels typing, hands knob and edge
    /// arrows over.
    bool eventFilter(QObject* watched, QEvent* event) override;
    /// The keys that the digits hand over: knob, arrows, Cancel.
    void keyPressEvent(QKeyEvent* event) override;

private:
    CUnit* createUnit(ENUM_UNIT_TYPE unitType);
    void buildLayout();
    int decimals() const;
    /// Number that a magnitude (steps) shows in a prefix of the given factor.
    using ShownNumber = double (*)(double magnitude, double times, double resolution);
    int chooseUnit(ShownNumber shown) const;
    void showInUnit(int index);
    void takeTypedText();
    void turnKnob(int direction);
    void takeValue(long long value);

    bool filterKeyPress(QKeyEvent* event);
    bool filterKeyRelease(QKeyEvent* event);
    bool filterArrow(QKeyEvent* event);
    bool arrowChangesUnit(int key) const;
    void startTyping();
    void endTyping();
    void cancelTyping();
    void commitTyping(int key);
    void focusCame();
    void focusWent(Qt::FocusReason reason);

    CUnit* m_pUnitLabel;
    ParameterTextEdit* m_pParameterText;
    long long m_valueLL;
    bool m_bInputting = false;
    double m_paramResolution;
    /// For an acceleration of the knob that there deliberately is not.
    [[maybe_unused]] int knobRotateCounter = 0;
    int m_nMaxUnitIndex;
    ENUM_UNIT_TYPE m_typeProperty;
    bool m_disabled = false;
    QHBoxLayout* m_hLayout;
    QVBoxLayout* m_vLayout;
    long long m_lastValueLL;

    static const QString m_strSelfStyleSheet;
};

} // namespace appPlugins
