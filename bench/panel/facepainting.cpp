// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "facepainting.h"

#include "facelayout.h"
#include "panellook.h"
#include "paneltexts.h"

#include <QPainter>

namespace {

void paintPlate(QPainter& painter)
{
    const QRectF plate(2, 2, FaceLayout::Width - 4, FaceLayout::Height - 4);
    QLinearGradient shade(plate.topLeft(), plate.bottomLeft());
    shade.setColorAt(0, QColor(0x36, 0x38, 0x3c));
    shade.setColorAt(0.06, QColor(0x2c, 0x2e, 0x32));
    shade.setColorAt(1, QColor(0x22, 0x24, 0x27));
    painter.setPen(QPen(QColor(0x0e, 0x0f, 0x10), 2));
    painter.setBrush(shade);
    painter.drawRoundedRect(plate, 14, 14);
    painter.setPen(QPen(QColor(255, 255, 255, 24), 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawRoundedRect(plate.adjusted(1.5, 1.5, -1.5, -1.5), 13, 13);
}

void paintGlass(QPainter& painter)
{
    const QRectF glass = FaceLayout::glass();
    painter.setPen(QPen(QColor(255, 255, 255, 26), 1));
    painter.setBrush(PanelLook::Glass);
    painter.drawRoundedRect(glass.adjusted(0, 0.5, 0, 1.5), 11, 11);
    painter.setPen(QPen(QColor(0, 0, 0, 200), 2));
    painter.drawRoundedRect(glass, 10, 10);
}

void paintTitle(QPainter& painter, const QString& model)
{
    const QRectF place = FaceLayout::title().adjusted(8, 0, -8, 0);
    painter.setFont(PanelLook::font(19, true));
    painter.setPen(PanelLook::Text);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter, model);
    painter.setFont(PanelLook::font(14));
    painter.setPen(PanelLook::DimText);
    painter.drawText(place, Qt::AlignRight | Qt::AlignVCenter, qtTrId("PANELID_INSTRUMENT"));
}

void paintFrames(QPainter& painter)
{
    painter.setPen(QPen(QColor(255, 255, 255, 20), 1));
    for (const double x : {1272.5}) {
        painter.drawLine(QPointF(x, FaceLayout::outputs().top()),
                         QPointF(x, FaceLayout::outputs().bottom()));
    }
    const double between = 324 - 10;
    painter.drawLine(QPointF(FaceLayout::operation().left() + 14, between),
                     QPointF(FaceLayout::operation().right() - 14, between));
}

// A coaxial connector seen from the front: flange, sleeve with its two lugs, insulator, contact.
void paintConnector(QPainter& painter, const QRectF& place, const QColor& colour)
{
    const QPointF centre = place.center();
    const double size = place.width() / 2;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, 2.5));
    painter.drawEllipse(centre, size, size);

    QLinearGradient metal(place.topLeft(), place.bottomRight());
    metal.setColorAt(0, QColor(0xb9, 0xbd, 0xc3));
    metal.setColorAt(0.5, QColor(0x77, 0x7c, 0x83));
    metal.setColorAt(1, QColor(0x4a, 0x4e, 0x54));
    painter.setPen(QPen(QColor(0x16, 0x17, 0x19), 1.5));
    painter.setBrush(metal);
    for (const double side : {-1.0, 1.0})
        painter.drawRoundedRect(QRectF(centre.x() - 4, centre.y() + side * size * 0.74 - 5, 8, 10),
                                2, 2);
    painter.drawEllipse(centre, size * 0.72, size * 0.72);
    painter.setBrush(QColor(0x18, 0x19, 0x1b));
    painter.drawEllipse(centre, size * 0.54, size * 0.54);
    painter.setBrush(QColor(0xd9, 0xd6, 0xcc));
    painter.drawEllipse(centre, size * 0.34, size * 0.34);
    painter.setBrush(QColor(0xb8, 0x95, 0x3a));
    painter.drawEllipse(centre, size * 0.12, size * 0.12);
}

void paintSocket(QPainter& painter, const QRectF& place, const QString& name, const QString& detail,
                 const QColor& colour)
{
    paintConnector(painter, place, colour);
    const QRectF line(FaceLayout::outputs().left(), place.bottom() + 5,
                      FaceLayout::outputs().width(), 20);
    painter.setPen(colour);
    painter.setFont(PanelLook::font(15, true));
    painter.drawText(line, Qt::AlignCenter, name);
    painter.setPen(PanelLook::DimText);
    painter.setFont(PanelLook::font(12));
    painter.drawText(line.translated(0, 17), Qt::AlignCenter, detail);
}

void paintSockets(QPainter& painter)
{
    const QString ohms = QStringLiteral("50 Ω");
    paintSocket(painter, FaceLayout::connector(1), QStringLiteral("CH1"), ohms,
                PanelLook::Channel1);
    paintSocket(painter, FaceLayout::connector(2), QStringLiteral("CH2"), ohms,
                PanelLook::Channel2);
    paintSocket(painter, FaceLayout::triggerInput(), QStringLiteral("TRIG IN"), QString(),
                PanelLook::DimText);
}

} // namespace

void paintFace(QPainter& painter, const QString& model)
{
    paintPlate(painter);
    paintGlass(painter);
    paintTitle(painter, model);
    paintFrames(painter);
    paintSockets(painter);
}
