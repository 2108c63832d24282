// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/// What the command line asks for.
struct PanelOptions
{
    quint16 screenPort = 5900;
    QString keypadPath; ///< the keypad's usual one where it was not given
    quint16 instrumentPort = 30000;
    QString language;     ///< empty: the one used last, or the locale's
    QString translations; ///< folder; empty: the usual one
    QString picture;      ///< file for a picture of the front; empty: none
    bool keepsSettings = true;
    QString text; ///< where it is not empty, to be printed instead of running
};

/// Reads the command line, the program's name first. Returns an empty text and fills @p options, or
/// what is wrong.
QString readPanelOptions(const QStringList& arguments, PanelOptions& options);
