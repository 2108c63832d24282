// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "tracesaving.h"

#include "outputtrace.h"
#include "panellook.h"
#include "traceplot.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QSaveFile>
#include <QSvgGenerator>

#include <qwt_plot_renderer.h>

namespace {

const int PngScale = 2; // pixels for one of the desktop's, for print

void draw(TracePlot& plot, QPainter& painter)
{
    painter.fillRect(QRectF(QPointF(0, 0), plot.size()), PanelLook::Window);
    QwtPlotRenderer renderer;
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
    renderer.setLayoutFlag(QwtPlotRenderer::FrameWithScales, false);
    renderer.render(&plot, &painter, QRectF(QPointF(0, 0), plot.size()));
}

QByteArray svgOf(TracePlot& plot)
{
    QBuffer buffer;
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(plot.size());
    generator.setViewBox(plot.rect());
    generator.setResolution(plot.logicalDpiX());
    QPainter painter(&generator);
    draw(plot, painter);
    painter.end();
    return buffer.data();
}

QByteArray pngOf(TracePlot& plot)
{
    QImage image(plot.size() * PngScale, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.scale(PngScale, PngScale);
    painter.setRenderHint(QPainter::Antialiasing);
    draw(plot, painter);
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

QString write(const QByteArray& bytes, const QString& path)
{
    QSaveFile file(path);
    const bool isWritten =
        file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
    return isWritten ? QString() : file.errorString();
}

} // namespace

QString savePicture(TracePlot& plot, const QString& path)
{
    const bool isSvg = path.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive);
    return write(isSvg ? svgOf(plot) : pngOf(plot), path);
}

QString saveCsv(const OutputTrace& trace, const QString& path)
{
    return write(csvOf(trace), path);
}
