// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>
#include <QString>

/// Where everything is on the face, in units of the face: at its natural size one unit is one pixel
/// and the screen has its own size.
namespace FaceLayout {

const double Width = 1400;
const double Height = 572;

/// The glass round the screen, and the screen in it.
QRectF glass();
QRectF screen();

/// The scale round the knob included.
QRectF knob();

/// The place of a key of frontKeys(); empty for the press of the knob, which has no key.
QRectF key(const QString& name);

/// A channel's connector, 1 or 2, and the one for triggers.
QRectF connector(int channel);
QRectF triggerInput();

/// The two columns of the face beside the glass, and the line of text above it.
QRectF operation();
QRectF outputs();
QRectF title();

} // namespace FaceLayout
