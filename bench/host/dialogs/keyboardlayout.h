// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "glyphs.h"

#include <QLocale>
#include <QString>
#include <QVector>

namespace HostDialogs {

/// One key of the on-screen keyboard.
struct KeySpec
{
    enum Action {
        Character, ///< types its text
        Code,      ///< presses a key without a text
        Shift,     ///< the other case for one letter, for all, for none
        Page,      ///< letters or symbols
        Cancel,    ///< presses Cancel and closes the keyboard
        Close      ///< closes the keyboard
    };

    Action action = Character;
    QString text;                 ///< what is typed, or the caption
    int code = 0;                 ///< Qt key code
    Glyph glyph = Glyph::None;    ///< instead of a caption
    const char* nameId = nullptr; ///< identifier of its name, for a key with a picture
    int column = 0;               ///< left edge, in halves of a key
    int row = 0;
    int columns = 2;      ///< width, in halves of a key
    bool repeats = false; ///< goes on while it is held
    bool strong = false;  ///< stands out from the others
};

/// The keys that are on show together.
struct KeyboardLayout
{
    QVector<KeySpec> keys;
    int columns = 0; ///< in halves of a key
    int rows = 0;
};

/// Letters as the language's typewriters have them: QWERTZ with umlauts for German, QWERTY for all
/// others. Digits and what else belongs into the name of a file are always there.
KeyboardLayout letterLayout(QLocale::Language language);

/// What is left of ASCII.
KeyboardLayout symbolLayout();

/// Digits, sign, point, cursor and steps; with @p unitKeys also the front panel's G/n, M/u, k/m and
/// x1, which confirm a number with a prefix.
KeyboardLayout numberLayout(bool unitKeys);

} // namespace HostDialogs
