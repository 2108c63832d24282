// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "rendering.h"

#include "gallerywindow.h"
#include "languages.h"

#include <QCoreApplication>
#include <QDir>
#include <QHash>

namespace {

const int PaletteSize = 256;

QRgb coarser(QRgb colour, int bits)
{
    const auto channel = [bits](int value) { return qMin(255, ((value >> bits) << bits)); };
    return qRgb(channel(qRed(colour)), channel(qGreen(colour)), channel(qBlue(colour)));
}

// A line of a picture with 32 bits for each pixel. QImage aligns it for them, which its type hides.
const QRgb* pixelsOf(const QImage& picture, int y)
{
    return static_cast<const QRgb*>(static_cast<const void*>(picture.constScanLine(y)));
}

// The picture with every channel's lowest bits cleared; a null picture for too many colours.
QImage indexed(const QImage& picture, int bits)
{
    QImage result(picture.size(), QImage::Format_Indexed8);
    QVector<QRgb> palette;
    QHash<QRgb, int> indices;
    for (int y = 0; y < picture.height(); ++y) {
        const QRgb* line = pixelsOf(picture, y);
        uchar* target = result.scanLine(y);
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb colour = coarser(line[x], bits);
            auto found = indices.find(colour);
            if (found == indices.end()) {
                if (palette.size() == PaletteSize)
                    return {};
                found = indices.insert(colour, palette.size());
                palette.append(colour);
            }
            target[x] = static_cast<uchar>(*found);
        }
    }
    result.setColorTable(palette);
    return result;
}

// The photographs on the page wait for the event queue, and so does the page for them.
void settle()
{
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents();
    }
}

} // namespace

QImage Rendering::withPalette(const QImage& picture)
{
    const QImage colours = picture.convertToFormat(QImage::Format_RGB32);
    for (int bits = 0; bits < 7; ++bits) {
        const QImage result = indexed(colours, bits);
        if (!result.isNull())
            return result;
    }
    return colours;
}

QString Rendering::renderAll(GalleryWindow& window, Languages& languages, const QStringList& pages,
                             const QStringList& languageNames, const QString& folder)
{
    if (!QDir().mkpath(folder))
        return folder + QStringLiteral(": cannot be made");

    for (const QString& language : languageNames) {
        languages.install(language);
        for (const QString& page : pages) {
            window.showPage(page);
            settle();
            const QString file = QStringLiteral("%1/%2-%3.png").arg(folder, page, language);
            if (!withPalette(window.grab().toImage()).save(file, "PNG", 0))
                return file + QStringLiteral(": cannot be written");
        }
    }
    return {};
}
