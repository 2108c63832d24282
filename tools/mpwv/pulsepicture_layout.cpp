// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pulsepicture.h"

#include "dimensionitem.h"
#include "picturestyle.h"

#include <QFontMetricsF>
#include <QPainter>

#include <qwt_plot_layout.h>
#include <qwt_plot_renderer.h>
#include <qwt_scale_div.h>
#include <qwt_scale_engine.h>

#include <algorithm>
#include <cmath>

namespace {

// Most of the picture's height that the table may take.
const double TableShare = 0.4;

} // namespace

double PulsePicture::margin() const
{
    return 20 * m_dbScale;
}

QFont PulsePicture::titleFont() const
{
    return PictureStyle::fontOf(20, m_dbScale, true);
}

QFont PulsePicture::subtitleFont() const
{
    return PictureStyle::fontOf(14, m_dbScale);
}

double PulsePicture::titleHeight() const
{
    return QFontMetricsF(titleFont()).height() + QFontMetricsF(subtitleFont()).height() * 1.3;
}

void PulsePicture::placeAxes(double tableHeight)
{
    const double top = margin() + titleHeight() + margin() * 0.5;
    const double space = tableHeight > 0 ? margin() * 0.5 : 0;
    const double width = m_size.width() - 2 * margin();
    const double bottom = m_size.height() - margin() * 0.8 - tableHeight;
    m_axesBox = {margin(), top, width, bottom - space - top};
    m_tableBox = {margin(), bottom, width, tableHeight};
    m_axes.resize(m_axesBox.size().toSize());
    m_axes.updateAxes();
    m_axes.updateLayout();
}

void PulsePicture::layOut()
{
    placeAxes(0);
    m_pDimensions->arrange(m_axes.canvasMap(QwtPlot::xBottom));
    setOrdinate();
    if (m_pDimensions->isNumbered())
        placeAxes(m_table.heightFor(m_size.width() - 2 * margin(), m_size.height() * TableShare));
    setOrdinate();
    placeAxes(m_tableBox.height());
}

// The scale is stretched upward, so that the trace ends below the band of dimension lines.
void PulsePicture::setOrdinate()
{
    const double low = m_volts.low / m_voltPrefix.factor;
    const double high = m_volts.high / m_voltPrefix.factor;
    const double span = high > low ? high - low : std::max(1e-3, std::fabs(high) * 0.2);
    const double canvas = m_axes.plotLayout()->canvasRect().height();
    const double pad = 10 * m_dbScale;
    const double room = std::max(canvas * 0.2, canvas - m_pDimensions->bandHeight() - 2 * pad);
    const double unitsPerPixel = span / room;
    const double bottom = low - (high > low ? 0 : span * 0.5) - pad * unitsPerPixel;
    const double top = bottom + canvas * unitsPerPixel;

    QwtScaleDiv volts = QwtLinearScaleEngine().divideScale(low, high, 6, 5);
    volts.setInterval(bottom, top);
    m_axes.setAxisScaleDiv(QwtPlot::yLeft, volts);
    QwtScaleDiv levels(bottom, top);
    levels.setTicks(QwtScaleDiv::MajorTick, {m_plot.waveform.low / m_voltPrefix.factor,
                                             m_plot.waveform.high / m_voltPrefix.factor});
    m_axes.setAxisScaleDiv(QwtPlot::yRight, levels);
}

void PulsePicture::drawTitle(QPainter* painter) const
{
    const double width = m_size.width() - 2 * margin();
    const QFontMetricsF title(titleFont());
    const QFontMetricsF subtitle(subtitleFont());
    QRectF box(margin(), margin(), width, title.height());
    painter->setFont(titleFont());
    painter->setPen(PictureStyle::Ink);
    painter->drawText(box, Qt::AlignLeft | Qt::AlignVCenter,
                      title.elidedText(m_plot.title, Qt::ElideMiddle, width));
    box = {margin(), box.bottom(), width, subtitle.height() * 1.3};
    painter->setFont(subtitleFont());
    painter->setPen(PictureStyle::QuietInk);
    painter->drawText(box, Qt::AlignLeft | Qt::AlignVCenter,
                      subtitle.elidedText(m_plot.subtitle, Qt::ElideRight, width));
}

void PulsePicture::draw(QPainter* painter)
{
    painter->setRenderHint(QPainter::Antialiasing);
    painter->fillRect(QRectF(QPointF(0, 0), QSizeF(m_size)), Qt::white);
    drawTitle(painter);

    QwtPlotRenderer renderer;
    renderer.setDiscardFlag(QwtPlotRenderer::DiscardBackground);
    renderer.render(&m_axes, painter, m_axesBox);
    if (m_pDimensions->isNumbered())
        m_table.draw(painter, m_tableBox);
}
