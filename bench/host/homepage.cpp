// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "homepage.h"

#include "channelcard.h"
#include "hostlook.h"
#include "hosttext.h"
#include "keynavigation.h"
#include "pluginmenu.h"
#include "textlabel.h"
#include "touchbutton.h"
#include "translated.h"

#include <QEvent>
#include <QPainter>

using appPlugins::translated;

namespace {

const int CardsTop = 64;
const int CardHeight = 246;
const int MenuTop = 346;
const int MenuHeight = 94;
const int StatusTop = 450;
const int DotSize = 10;

} // namespace

HomePage::HomePage(QWidget* parent)
    : QWidget(parent)
    , m_pTitle(new TextLabel(21, HostLook::Text, this))
    , m_pApplications(new TextLabel(15, HostLook::Quiet, this))
    , m_pLink(new TextLabel(14, HostLook::Quiet, this))
    , m_pSettings(new TouchButton(HostText::Settings, this))
    , m_pHelp(new TouchButton(HostText::Help, this))
    , m_cards{new ChannelCard(1, this), new ChannelCard(2, this)}
    , m_pMenu(new PluginMenu(this))
    , m_pNavigation(new KeyNavigation(this))
{
    setObjectName(QStringLiteral("home"));
    m_pSettings->setObjectName(QStringLiteral("settings"));
    m_pHelp->setObjectName(QStringLiteral("help"));
    m_pTitle->setBold(true);
    resize(HostLook::ScreenSize);
    connect(m_pSettings, &TouchButton::clicked, this, &HomePage::settingsWanted);
    connect(m_pHelp, &TouchButton::clicked, this, &HomePage::helpWanted);
    connect(m_pMenu, &PluginMenu::chosen, this, &HomePage::pluginChosen);
    setPlugins({}, QString());
    retranslate();
}

void HomePage::place()
{
    const int gap = HostLook::Gap;
    const int right = width() - gap;
    const QSize settings = m_pSettings->sizeHint();
    const QSize help = m_pHelp->sizeHint();
    m_pHelp->setGeometry(right - help.width(), 10, help.width(), HostLook::TouchSize);
    m_pSettings->setGeometry(m_pHelp->x() - gap - settings.width(), 10, settings.width(),
                             HostLook::TouchSize);
    m_pTitle->setGeometry(gap + 4, 10, m_pSettings->x() - 3 * gap, HostLook::TouchSize);
    const int cardWidth = (width() - 3 * gap) / 2;
    for (int i = 0; i < m_cards.size(); ++i)
        m_cards.at(i)->setGeometry(gap + i * (cardWidth + gap), CardsTop, cardWidth, CardHeight);
    m_pApplications->setGeometry(gap + 4, MenuTop - 28, width() - 2 * gap, 22);
    m_pMenu->setGeometry(gap, MenuTop, width() - 2 * gap, MenuHeight);
    m_pLink->setGeometry(gap + 4 + DotSize + 8, StatusTop, right - gap - DotSize - 12, 22);
}

void HomePage::setInstrument(const InstrumentState& state)
{
    m_state = state;
    for (ChannelCard* card : qAsConst(m_cards))
        card->setState(state);
    showLink();
    update();
}

void HomePage::setPlugins(const QVector<PluginFile>& plugins, const QString& lastOpened)
{
    m_pMenu->setPlugins(plugins);
    m_pMenu->setLastOpened(lastOpened);
    m_pNavigation->setInputs(m_pMenu->inputs() + QVector<QWidget*>{m_pSettings, m_pHelp});
}

void HomePage::focusMenu()
{
    QWidget* input = m_pMenu->preferredInput();
    (input != nullptr ? input : m_pSettings)->setFocus(Qt::OtherFocusReason);
}

void HomePage::retranslate()
{
    m_pApplications->setText(translated(HostText::Applications));
    showLink();
    place();
}

void HomePage::showLink()
{
    const bool isKnown = m_state.link == InstrumentState::Answering;
    m_pTitle->setText(isKnown ? m_state.model : translated(HostText::Instrument));
    switch (m_state.link) {
    case InstrumentState::Connecting:
        return m_pLink->setText(translated(HostText::Connecting));
    case InstrumentState::Answering:
        return m_pLink->setText(translated(HostText::Answering).arg(m_state.model));
    case InstrumentState::Silent:
        return m_pLink->setText(translated(HostText::Silent).arg(m_state.reason));
    }
}

QColor HomePage::linkColor() const
{
    switch (m_state.link) {
    case InstrumentState::Answering:
        return HostLook::Good;
    case InstrumentState::Silent:
        return HostLook::Bad;
    case InstrumentState::Connecting:
        break;
    }
    return HostLook::Quiet;
}

void HomePage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange) {
        // The buttons are children: they follow later, and their sizes with them.
        QMetaObject::invokeMethod(this, &HomePage::retranslate, Qt::QueuedConnection);
    }
    QWidget::changeEvent(event);
}

void HomePage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), HostLook::Background);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(linkColor());
    const int top = m_pLink->geometry().center().y() - DotSize / 2 + 1;
    painter.drawEllipse(HostLook::Gap + 4, top, DotSize, DotSize);
}
