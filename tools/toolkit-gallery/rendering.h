// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QImage>
#include <QString>

class GalleryWindow;
class Languages;

/// Pictures of the pages as files.
namespace Rendering {

/// The picture with a palette of at most 256 colours; near colours fall together where it has more.
QImage withPalette(const QImage& picture);

/// Writes a picture of each page in each language to "PAGE-LANGUAGE.png" in @p folder, which is
/// made. Returns an error text, empty for none.
QString renderAll(GalleryWindow& window, Languages& languages, const QStringList& pages,
                  const QStringList& languageNames, const QString& folder);

} // namespace Rendering
