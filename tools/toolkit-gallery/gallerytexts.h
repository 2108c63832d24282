// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

/// Identifiers of the gallery's own texts; the widgets on show use the library's.
namespace GalleryText {

const char* const Units = "GALLERY_UNITS";
const char* const Editor = "GALLERY_EDITOR";
const char* const Small = "GALLERY_SMALL";
const char* const Components = "GALLERY_COMPONENTS";
const char* const States = "GALLERY_STATES";
const char* const Tables = "GALLERY_TABLES";

const char* const Hint = "GALLERY_HINT";

const char* const Live = "GALLERY_LIVE";
const char* const Focused = "GALLERY_FOCUSED";
const char* const Typing = "GALLERY_TYPING";
const char* const Disabled = "GALLERY_DISABLED";
const char* const Both = "GALLERY_BOTH";
const char* const Variant = "GALLERY_VARIANT";
const char* const Pressed = "GALLERY_PRESSED";
const char* const OpenList = "GALLERY_OPEN_LIST";
const char* const OutOfRange = "GALLERY_OUT_OF_RANGE";
const char* const LongTitle = "GALLERY_LONG_TITLE";
const char* const Prefixes = "GALLERY_PREFIXES";
const char* const Confirmed = "GALLERY_CONFIRMED";
const char* const Refused = "GALLERY_REFUSED";

const char* const Frequency = "GALLERY_FREQUENCY";
const char* const Name = "GALLERY_NAME";
const char* const Output = "GALLERY_OUTPUT";

const char* const Editing = "GALLERY_EDITING";
const char* const ColumnDisabled = "GALLERY_COLUMN_DISABLED";
const char* const ReadOnly = "GALLERY_READ_ONLY";
const char* const Insert = "GALLERY_INSERT";
const char* const Remove = "GALLERY_REMOVE";
const char* const Clear = "GALLERY_CLEAR";
const char* const OneGap = "GALLERY_ONE_GAP";

const char* const KeyKnob = "GALLERY_KEY_KNOB";
const char* const KeyKnobPress = "GALLERY_KEY_KNOB_PRESS";
const char* const KeyConfirm = "GALLERY_KEY_CONFIRM";
const char* const KeyCancel = "GALLERY_KEY_CANCEL";
const char* const KeyNext = "GALLERY_KEY_NEXT";
const char* const KeyPage = "GALLERY_KEY_PAGE";
const char* const KeyLanguage = "GALLERY_KEY_LANGUAGE";
const char* const KeyCursor = "GALLERY_KEY_CURSOR";

} // namespace GalleryText
