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
/// reach the plug-in's window. A disabled editor receives no keys.
class APPPLUGINS_EXPORT ParameterTextEdit : public QTextEdit
{
    Q_OBJECT

public:
    explicit ParameterTextEdit(QWidget* parent);

    /// Shows @p value (resolution steps) with @p precision decimals; a negative precision shows
    /// that many zeros behind the steps.
    void updateText(long long value, int precision);

    /// The text last shown.
    QString lastText() const { return m_strLastText; }

    /// Power of ten of the cursor digit relative to the point: 0 for the units, -1 for the first
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
    /// Inserts the point of @p e unless there is one.
    void pointClicked(QKeyEvent* e);
    /// Moves the cursor one digit to the left, growing the integer part at its edge.
    void leftArrowClicked(QKeyEvent* e);
    /// Moves the cursor one digit to the right, taking a grown leading zero away first.
    void rightArrowClicked(QKeyEvent* e);
    /// Shows a value below one three decimals smaller, without its leading zeros.
    void rightArrowClicked(QKeyEvent* e, bool specialDealwith);

    void setDisable(bool disable);

public Q_SLOTS:
    /// Follows the cursor with power and underline; does nothing while typing.
    void cursorPositionChangedSlots();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;
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
/// parameterChanged() is for changes that the user made. A value set by program while the digits
/// have no focus is shown silently.
class APPPLUGINS_EXPORT ParameterTextWithOrderOfMagnitude : public QLabel
{
    Q_OBJECT

public:
    /// @p defaultValue and @p resolution are in the base unit of @p unitType; the resolution is a
    /// power of ten. Negative values are taken for UNIT_VOLTAGE alone.
    ParameterTextWithOrderOfMagnitude(QWidget* parent, double defaultValue, ENUM_UNIT_TYPE unitType,
                                      double resolution);

    /// Sets and shows the value, in resolution steps. A new value ends typing.
    void setValue(long long value);
    /// Resolution steps.
    long long getValue() const { return m_valueLL; }
    /// The text on show with its prefix: "1.000000m".
    QString getStringValue() const;
    /// Characters of the digits on show.
    int getTextLength() const;

    /// Base units of one step. Nothing is drawn again.
    void setResolution(double resolution) { m_paramResolution = resolution; }
    double getResolution() const { return m_paramResolution; }

    /// Disables or enables digits, prefix and the whole. A disabled editor takes no keys;
    /// setValue() still works.
    void setDisable(bool disable);

    /// Chooses the prefix of the current value and shows it. Emits nothing.
    void initialize();

    ParameterTextEdit* textEdit() const { return m_pParameterText; }
    CUnit* unitLabel() const { return m_pUnitLabel; }

    /// True from the first key of a new number to its commit or cancel.
    bool isTyping() const { return m_bInputting; }
    /// Works off the keys that the digits have handed over and that still wait in the event queue.
    void takeHandedOverKeys();
    /// Takes away what is typed and not confirmed and shows the value in the current prefix. Emits
    /// nothing.
    void redraw();

    /// Stretch of digits and prefix.
    void setDigitsLayout(int digits, int prefix);

public Q_SLOTS:
    /// Takes over what was typed when a unit key asks for it, then chooses the prefix and shows the
    /// value.
    virtual void normalize();

Q_SIGNALS:
    /// The value was set.
    void valueChanged();
    /// The user changed the value; in resolution steps.
    void parameterChanged(long long value);
    void sgn_editorFocusIn();
    void sgn_editorFocusOut();

protected:
    /// One detent: the cursor digit up by one.
    virtual void knobRotateClockwise(QKeyEvent* e);
    /// One detent: the cursor digit down by one.
    virtual void knobRotateCouterClockwise(QKeyEvent* e);
    /// Shows the value in the next larger (Left) or smaller (Right) prefix.
    virtual void arrowChangeUnit(QKeyEvent* e);

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
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
