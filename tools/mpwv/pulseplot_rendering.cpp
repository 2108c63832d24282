// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulseplot.h"

#include "pulsepicture.h"

#include <QApplication>
#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSvgGenerator>

namespace {

// The generator writes the size in millimetres at its own resolution, which viewers then turn into
// pixels at theirs.
QByteArray inPixels(QByteArray svg, const QSize& size)
{
    const int begin = svg.indexOf("<svg width=");
    const int end = svg.indexOf("viewBox=", begin);
    if (begin < 0 || end < 0)
        return svg;
    const QByteArray head = "<svg width=\"" + QByteArray::number(size.width()) + "\" height=\"" +
                            QByteArray::number(size.height()) + "\" ";
    return svg.replace(begin, end - begin, head);
}

QByteArray svgOf(PulsePicture& picture, const PulsePlot& plot, const QSize& size)
{
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    generator.setResolution(picture.dotsPerInch());
    // The generator writes these two texts into the file as they are.
    generator.setTitle(plot.title.toHtmlEscaped());
    generator.setDescription(plot.subtitle.toHtmlEscaped());
    QPainter painter(&generator);
    picture.draw(&painter);
    painter.end();
    return inPixels(buffer.data(), size);
}

QByteArray pngOf(PulsePicture& picture, const QSize& size)
{
    QImage image(size, QImage::Format_RGB32);
    // One dot of the image is one unit of the layout.
    image.setDotsPerMeterX(qRound(picture.dotsPerInch() / 0.0254));
    image.setDotsPerMeterY(qRound(picture.dotsPerInch() / 0.0254));
    image.fill(Qt::white);
    QPainter painter(&image);
    picture.draw(&painter);
    painter.end();

    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

} // namespace

QByteArray renderPlot(const PulsePlot& plot, PictureFormat format, const QSize& size)
{
    Q_ASSERT(qobject_cast<QApplication*>(QCoreApplication::instance()));
    PulsePicture picture(plot, size);
    return format == PictureFormat::Svg ? svgOf(picture, plot, size) : pngOf(picture, size);
}
