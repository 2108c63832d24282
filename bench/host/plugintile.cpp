// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "plugintile.h"

#include "hostlook.h"
#include "hosttext.h"
#include "textlabel.h"
#include "translated.h"

#include <QEvent>
#include <QPainter>

using appPlugins::translated;

namespace {

const QSize TileSize(252, 92);
const QRect SignPlace(14, 20, 52, 52);
const int TextLeft = 80;

QPolygonF pulses(const QRectF& area)
{
    const QVector<QPointF> shape{{0, 1},   {.1, 1},  {.1, 0}, {.45, 0}, {.45, 1},
                                 {.65, 1}, {.65, 0}, {.8, 0}, {.8, 1},  {1, 1}};
    QPolygonF line;
    for (const QPointF& point : shape)
        line.append(area.topLeft() + QPointF(point.x() * area.width(), point.y() * area.height()));
    return line;
}

} // namespace

PluginTile::PluginTile(const PluginFile& plugin, QWidget* parent)
    : TouchButton(nullptr, parent)
    , m_plugin(plugin)
    , m_pNote(new TextLabel(13, HostLook::Quiet, this))
{
    setObjectName(plugin.baseName());
    setFont(HostLook::font(16, true));
    setFixedSize(TileSize);
    retranslate();
}

QSize PluginTile::sizeHint() const
{
    return TileSize;
}

QString PluginTile::titleOf(const PluginFile& plugin)
{
    const QByteArray textId = "HOSTID_PLUGIN_" + plugin.baseName().toUtf8();
    const QString title = translated(textId.constData());
    return title == QString::fromUtf8(textId) ? plugin.name : title;
}

void PluginTile::setLastOpened(bool isLast)
{
    if (isLast == m_bLastOpened)
        return;
    m_bLastOpened = isLast;
    retranslate();
}

void PluginTile::retranslate()
{
    setText(titleOf(m_plugin));
    const char* note = m_bLastOpened ? HostText::LastOpened : HostText::TouchToOpen;
    m_pNote->setText(translated(m_plugin.isUsable ? note : HostText::NotUsable));
    m_pNote->setColor(m_plugin.isUsable ? HostLook::Quiet : HostLook::Bad);
}

void PluginTile::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    TouchButton::changeEvent(event);
}

void PluginTile::resizeEvent(QResizeEvent* event)
{
    TouchButton::resizeEvent(event);
    m_pNote->setGeometry(TextLeft, 50, width() - TextLeft - 10, 20);
}

void PluginTile::paintSign(QPainter& painter) const
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(HostLook::Well);
    painter.drawRoundedRect(SignPlace, 10, 10);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(m_plugin.isUsable ? HostLook::Channel1 : HostLook::Bad, 2.5, Qt::SolidLine,
                        Qt::RoundCap, Qt::RoundJoin));
    const QRectF area = QRectF(SignPlace).adjusted(9, 16, -9, -16);
    if (m_plugin.isUsable) {
        painter.drawPolyline(pulses(area));
        return;
    }
    painter.setFont(HostLook::font(28, true));
    painter.drawText(SignPlace, Qt::AlignCenter, QStringLiteral("!"));
}

void PluginTile::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintFace(painter);
    paintSign(painter);
    painter.setPen(HostLook::Text);
    painter.setFont(font());
    const QRect place(TextLeft, 22, width() - TextLeft - 10, 26);
    painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter,
                     fontMetrics().elidedText(text(), Qt::ElideRight, place.width()));
}
