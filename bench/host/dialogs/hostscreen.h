// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPixmap>
#include <QRect>

class QWidget;

namespace HostDialogs {

/// Dialogs and keyboard cover the place of @p surface from now on, as long as it lives.
void setScreenSurface(QWidget* surface);

/// What dialogs and keyboard cover, in global pixels: the surface, without one the first screen.
QRect screenPlace();

/// What can be seen of @p window and of all that lies below it, as large as screenPlace(): the
/// surface, and each window that belongs to it up to this one. Null stands for the surface alone.
QPixmap pictureBelow(QWidget* window);

} // namespace HostDialogs
