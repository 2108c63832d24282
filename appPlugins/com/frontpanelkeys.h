// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

/// @file
/// The keys of the instrument's front panel.

/// Key codes that the instrument's front panel delivers as key events beside the ordinary keys.
/// Knob rotation arrives as Up (clockwise) and Down (counter-clockwise) key presses.
enum ENUM_FRONT_PANEL_KEY_VALUE {
    QT_KEY_GN = 705,      ///< giga or nano
    QT_KEY_MU = 709,      ///< mega or micro
    QT_KEY_KM = 713,      ///< kilo or milli
    QT_KEY_CH1ON = 725,   ///< output of channel 1
    QT_KEY_DEFAULT = 729, ///< default setup
    QT_KEY_UTLITY = 730,  ///< utility menu
    QT_KEY_MANUAL = 731,  ///< manual trigger
    QT_KEY_KNOB = 732,    ///< knob pressed
    QT_KEY_X1 = 734,      ///< base unit
    QT_KEY_HOME = 735,    ///< home screen
    QT_KEY_BACK = 736,    ///< one screen back
    QT_KEY_MINUS = 737,   ///< sign of a number
    QT_KEY_HELP = 738     ///< help page
};
