// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "keyboardlayout.h"

#include <QWidget>

namespace HostDialogs {

class KeyButton;

/// The window of the on-screen keyboard: letters, symbols or a number pad. It types nothing itself
/// but tells what was typed, and takes neither focus nor activation from the field that it is for.
class ScreenKeyboard : public QWidget
{
    Q_OBJECT

public:
    /// What a field wants.
    enum Kind {
        Text,          ///< letters first, symbols on the second page
        Number,        ///< digits, sign, point
        NumberWithUnit ///< and the keys that confirm with a prefix
    };

    ScreenKeyboard();

    /// Shows these keys from now on; a text begins with small letters.
    void setKind(Kind kind);
    Kind kind() const { return m_kind; }

    /// The place for the keys of the present kind on @p screen, such that @p field stays in sight:
    /// text below or above the field, numbers at the side that the field is not at.
    QRect placeFor(const QRect& screen, const QRect& field) const;

Q_SIGNALS:
    /// A key was tapped, or goes on being held; @p text is empty for a key without one.
    void keyTyped(int code, const QString& text);
    /// The key that puts the keyboard away was tapped.
    void closeRequested();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    enum ShiftState { Small, OneCapital, Capitals };

    void showPage(bool symbols);
    void rebuild();
    void placeKeys();
    void keyClicked(const KeySpec& key);
    void characterClicked(const KeySpec& key);
    void setShift(ShiftState shift);
    QString cased(const QString& text) const;

    Kind m_kind = Text;
    bool m_bSymbols = false;
    ShiftState m_shift = Small;
    KeyboardLayout m_layout;
    QVector<KeyButton*> m_buttons;
};

} // namespace HostDialogs
