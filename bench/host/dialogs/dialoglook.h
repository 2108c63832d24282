// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QFont>
#include <QString>

namespace HostDialogs {

/// Colours, fonts and sheets that boxes, browsers and keyboard share with the plug-ins' windows.
namespace DialogLook {

const QColor Text(255, 255, 255);          ///< texts and lines
const QColor Faint(146, 146, 146);         ///< what is disabled or of second rank
const QColor Focus(52, 120, 247);          ///< the focus, and what is being pressed
const QColor Background(0x1e, 0x1e, 0x1e); ///< behind everything
const QColor Panel(0x2e, 0x2e, 0x2e);      ///< behind lists, fields and keys
const QColor Line(96, 96, 96);             ///< between rows
const QColor Dim(0, 0, 0, 150);            ///< over the screen behind a dialog

/// The text of everything that is read, bold where it names something to press.
QFont textFont(int pixelSize = 16, bool bold = false);

/// Lines of text, scroll bars and lists inside a dialog.
QString sheet();

} // namespace DialogLook
} // namespace HostDialogs
