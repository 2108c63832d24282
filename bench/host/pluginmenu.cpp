// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pluginmenu.h"

#include "hostlook.h"
#include "hosttext.h"
#include "plugintile.h"
#include "textlabel.h"
#include "translated.h"

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QScroller>

PluginMenu::PluginMenu(QWidget* parent)
    : QScrollArea(parent)
    , m_pEmpty(new TextLabel(15, HostLook::Quiet, this))
{
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setWidgetResizable(true);
    QScroller::grabGesture(viewport(), QScroller::LeftMouseButtonGesture);
    setPlugins({});
}

void PluginMenu::setPlugins(const QVector<PluginFile>& plugins)
{
    auto* row = new QWidget;
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(HostLook::Gap - 2);
    layout->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_tiles.clear();
    m_pPreferred = nullptr;
    for (const PluginFile& plugin : plugins)
        addTile(plugin, row);
    setWidget(row);
    m_pEmpty->setVisible(plugins.isEmpty());
    retranslate();
}

void PluginMenu::addTile(const PluginFile& plugin, QWidget* row)
{
    auto* tile = new PluginTile(plugin, row);
    connect(tile, &PluginTile::clicked, this, [this, tile] { Q_EMIT chosen(tile->plugin()); });
    tile->installEventFilter(this);
    row->layout()->addWidget(tile);
    m_tiles.append(tile);
}

void PluginMenu::setLastOpened(const QString& fileName)
{
    for (PluginTile* tile : qAsConst(m_tiles)) {
        const bool isLast = QFileInfo(tile->plugin().path).fileName() == fileName;
        tile->setLastOpened(isLast);
        if (isLast)
            m_pPreferred = tile;
    }
}

QVector<QWidget*> PluginMenu::inputs() const
{
    QVector<QWidget*> inputs;
    for (PluginTile* tile : m_tiles)
        inputs.append(tile);
    return inputs;
}

QWidget* PluginMenu::preferredInput() const
{
    return m_pPreferred != nullptr ? m_pPreferred : m_tiles.value(0);
}

void PluginMenu::retranslate()
{
    m_pEmpty->setText(appPlugins::translated(HostText::NoApplications));
    m_pEmpty->setGeometry(4, 30, HostLook::ScreenSize.width() - 40, 26);
}

void PluginMenu::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QScrollArea::changeEvent(event);
}

bool PluginMenu::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn)
        ensureWidgetVisible(static_cast<QWidget*>(watched), HostLook::Gap, 0);
    return QScrollArea::eventFilter(watched, event);
}
