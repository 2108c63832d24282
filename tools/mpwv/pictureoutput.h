// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pulseplot.h"

#include <QString>

#include <optional>

/// The format that a file's name asks for: ".svg" or ".png", in any case. Nothing for another name.
std::optional<PictureFormat> formatOfName(const QString& path);

/// The size in a text such as "1200x600". Nothing for another text, or a side outside
/// MinPictureSide ... MaxPictureSide.
std::optional<QSize> parsePictureSize(const QString& text);

/// Size of a picture for which none is asked.
const QSize DefaultPictureSize(1200, 600);
