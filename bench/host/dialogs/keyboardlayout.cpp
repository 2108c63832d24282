// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keyboardlayout.h"

#include "frontpanelkeys.h"

namespace HostDialogs {

namespace {

const int LetterColumns = 24;
const int LetterRows = 5;

int codeOf(QChar character)
{
    return character.toUpper().unicode();
}

KeySpec character(QChar text, int column, int row, int columns = 2)
{
    KeySpec key;
    key.text = text;
    key.code = codeOf(text);
    key.column = column;
    key.row = row;
    key.columns = columns;
    return key;
}

KeySpec special(KeySpec::Action action, Glyph glyph, const char* nameId, int code, int column,
                int row, int columns = 2)
{
    KeySpec key;
    key.action = action;
    key.glyph = glyph;
    key.nameId = nameId;
    key.code = code;
    key.column = column;
    key.row = row;
    key.columns = columns;
    key.repeats = action == KeySpec::Code && code != Qt::Key_Return;
    key.strong = code == Qt::Key_Return;
    return key;
}

KeySpec captioned(KeySpec::Action action, const QString& caption, int code, int column, int row,
                  int columns = 2)
{
    KeySpec key;
    key.action = action;
    key.text = caption;
    key.code = code;
    key.column = column;
    key.row = row;
    key.columns = columns;
    return key;
}

// A row of characters in the middle of the columns that are free for it.
void addRow(KeyboardLayout& layout, const QString& characters, int row, int from, int to)
{
    int column = from + (to - from - 2 * characters.size()) / 2;
    for (const QChar& text : characters) {
        layout.keys.append(character(text, column, row));
        column += 2;
    }
}

// The keys that letters and symbols have in common: around three rows of characters.
void addFrame(KeyboardLayout& layout, const QString& pageCaption)
{
    layout.columns = LetterColumns;
    layout.rows = LetterRows;
    addRow(layout, QStringLiteral("1234567890"), 0, 0, 20);
    layout.keys +=
        {special(KeySpec::Code, Glyph::Backspace, "HOSTID_DLG_KEY_BACKSPACE", Qt::Key_Backspace, 20,
                 0, 4),
         captioned(KeySpec::Page, pageCaption, 0, 0, 4, 3),
         special(KeySpec::Close, Glyph::HideKeyboard, "HOSTID_DLG_KEY_CLOSE", 0, 3, 4, 3),
         special(KeySpec::Character, Glyph::Space, "HOSTID_DLG_KEY_SPACE", Qt::Key_Space, 6, 4, 8),
         character(QLatin1Char('.'), 14, 4),
         special(KeySpec::Code, Glyph::Left, "HOSTID_DLG_KEY_LEFT", Qt::Key_Left, 16, 4, 2),
         special(KeySpec::Code, Glyph::Right, "HOSTID_DLG_KEY_RIGHT", Qt::Key_Right, 18, 4, 2),
         special(KeySpec::Code, Glyph::Enter, "HOSTID_DLG_KEY_ENTER", Qt::Key_Return, 20, 4, 4)};
    for (KeySpec& key : layout.keys) {
        if (key.glyph == Glyph::Space)
            key.text = QStringLiteral(" ");
    }
}

void addNumberBlock(KeyboardLayout& layout)
{
    addRow(layout, QStringLiteral("789"), 0, 0, 6);
    addRow(layout, QStringLiteral("456"), 1, 0, 6);
    addRow(layout, QStringLiteral("123"), 2, 0, 6);
    layout.keys += {captioned(KeySpec::Code, QStringLiteral("−"), QT_KEY_MINUS, 0, 3),
                    character(QLatin1Char('0'), 2, 3), character(QLatin1Char('.'), 4, 3)};
}

void addUnitKeys(KeyboardLayout& layout)
{
    layout.keys += {captioned(KeySpec::Code, QStringLiteral("G/n"), QT_KEY_GN, 6, 0),
                    captioned(KeySpec::Code, QStringLiteral("M/u"), QT_KEY_MU, 6, 1),
                    captioned(KeySpec::Code, QStringLiteral("k/m"), QT_KEY_KM, 6, 2),
                    captioned(KeySpec::Code, QStringLiteral("x1"), QT_KEY_X1, 6, 3)};
}

// Fields of other programs do not know the front panel's own code of the sign.
void useOrdinaryMinus(KeyboardLayout& layout)
{
    for (KeySpec& key : layout.keys) {
        if (key.code == QT_KEY_MINUS)
            key = character(QLatin1Char('-'), key.column, key.row);
    }
}

} // namespace

KeyboardLayout letterLayout(QLocale::Language language)
{
    const bool german = language == QLocale::German;
    KeyboardLayout layout;
    addRow(layout, german ? QStringLiteral("qwertzuiopü") : QStringLiteral("qwertyuiop"), 1, 0, 24);
    addRow(layout, german ? QStringLiteral("asdfghjklöä") : QStringLiteral("asdfghjkl"), 2, 0, 24);
    layout.keys.append(special(KeySpec::Shift, Glyph::Shift, "HOSTID_DLG_KEY_SHIFT", 0, 0, 3, 3));
    addRow(layout, german ? QStringLiteral("yxcvbnmß-_") : QStringLiteral("zxcvbnm-_"), 3, 3, 24);
    addFrame(layout, QStringLiteral("#+="));
    return layout;
}

KeyboardLayout symbolLayout()
{
    KeyboardLayout layout;
    addRow(layout, QStringLiteral("!\"#$%&'()*+"), 1, 0, 24);
    addRow(layout, QStringLiteral(",-/:;<=>?@€"), 2, 0, 24);
    addRow(layout, QStringLiteral("[\\]^_`{|}~"), 3, 0, 24);
    addFrame(layout, QStringLiteral("abc"));
    return layout;
}

KeyboardLayout numberLayout(bool unitKeys)
{
    KeyboardLayout layout;
    layout.rows = 4;
    addNumberBlock(layout);
    const int left = unitKeys ? 8 : 6;
    layout.columns = left + 4;
    if (unitKeys)
        addUnitKeys(layout);
    else
        useOrdinaryMinus(layout);
    layout.keys +=
        {special(KeySpec::Code, Glyph::Backspace, "HOSTID_DLG_KEY_BACKSPACE", Qt::Key_Backspace,
                 left, 0),
         special(unitKeys ? KeySpec::Cancel : KeySpec::Close, Glyph::Cross,
                 unitKeys ? "HOSTID_DLG_KEY_CANCEL" : "HOSTID_DLG_KEY_CLOSE", Qt::Key_Cancel,
                 left + 2, 0),
         special(KeySpec::Code, Glyph::Left, "HOSTID_DLG_KEY_LEFT", Qt::Key_Left, left, 1),
         special(KeySpec::Code, Glyph::Right, "HOSTID_DLG_KEY_RIGHT", Qt::Key_Right, left + 2, 1),
         special(KeySpec::Code, Glyph::StepDown, "HOSTID_DLG_KEY_STEP_DOWN", Qt::Key_Down, left, 2),
         special(KeySpec::Code, Glyph::StepUp, "HOSTID_DLG_KEY_STEP_UP", Qt::Key_Up, left + 2, 2),
         special(KeySpec::Code, Glyph::Enter, "HOSTID_DLG_KEY_ENTER", Qt::Key_Return, left, 3, 4)};
    return layout;
}

} // namespace HostDialogs
