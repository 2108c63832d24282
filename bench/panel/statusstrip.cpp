// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "statusstrip.h"

#include "barbutton.h"
#include "panellook.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

const char* const LinkTexts[] = {"PANELID_LINK_SCREEN", "PANELID_LINK_KEYPAD",
                                 "PANELID_LINK_INSTRUMENT"};
const char* const AreaTexts[] = {"PANELID_AREA_KEYS", "PANELID_AREA_SCREEN", "PANELID_AREA_TRACE"};
const char* const AreaHelps[] = {"PANELID_AREA_KEYS_HELP", "PANELID_AREA_SCREEN_HELP",
                                 "PANELID_AREA_TRACE_HELP"};
const char* const AreaNames[] = {"areaKeys", "areaScreen", "areaTrace"};

QLabel* makeLabel(QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setFont(PanelLook::font(13));
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, PanelLook::DimText);
    label->setPalette(palette);
    return label;
}

} // namespace

StatusStrip::StatusStrip(QWidget* parent)
    : QWidget(parent)
    , m_keyboard(makeLabel(this))
    , m_hint(makeLabel(this))
    , m_menu(new BarButton(QStringLiteral("menu"), this))
{
    setObjectName(QStringLiteral("strip"));
    auto* const bar = new QHBoxLayout(this);
    bar->setContentsMargins(14, 2, 14, 6);
    bar->setSpacing(6);
    addLinks(*bar);
    bar->addStretch();
    addAreas(*bar);
    bar->addSpacing(18);
    bar->addWidget(m_menu);
    m_menu->setPopupMode(QToolButton::InstantPopup);
    setArea(KeyboardArea::Keys);
    retranslate();
}

void StatusStrip::addLinks(QHBoxLayout& bar)
{
    for (LinkState& link : m_links) {
        link.label = makeLabel(this);
        link.label->setTextFormat(Qt::RichText);
        bar.addWidget(link.label);
        bar.addSpacing(10);
    }
}

void StatusStrip::addAreas(QHBoxLayout& bar)
{
    bar.addWidget(m_keyboard);
    for (int area = 0; area < 3; ++area) {
        m_areas[area] = new BarButton(QString::fromLatin1(AreaNames[area]), this);
        m_areas[area]->setFocusPolicy(Qt::NoFocus);
        m_areas[area]->setCheckable(true);
        bar.addWidget(m_areas[area]);
        connect(m_areas[area], &BarButton::clicked, this, [this, area] {
            // Where it goes is shown when it has gone there.
            m_areas[area]->setChecked(!m_areas[area]->isChecked());
            Q_EMIT areaWanted(KeyboardArea(area));
        });
    }
    bar.addWidget(m_hint);
}

void StatusStrip::setLink(Link link, bool isUp, const QString& reason)
{
    m_links[link].isUp = isUp;
    m_links[link].reason = reason;
    showLink(link);
}

void StatusStrip::showLink(Link link)
{
    const LinkState& state = m_links[link];
    const QString colour = (state.isUp ? PanelLook::Good : PanelLook::Warning).name();
    state.label->setText(QStringLiteral("<span style=\"color:%1\">%2</span> %3")
                             .arg(colour, state.isUp ? QStringLiteral("●") : QStringLiteral("○"),
                                  qtTrId(LinkTexts[link])));
    const QString help =
        state.isUp ? qtTrId("PANELID_LINK_UP") : qtTrId("PANELID_LINK_DOWN").arg(state.reason);
    state.label->setToolTip(help);
    state.label->setAccessibleName(qtTrId(LinkTexts[link]) + QStringLiteral(": ") + help);
}

void StatusStrip::setArea(KeyboardArea area)
{
    for (int i = 0; i < 3; ++i)
        m_areas[i]->setChecked(i == int(area));
}

void StatusStrip::retranslate()
{
    for (const Link link : {Screen, Keypad, Instrument})
        showLink(link);
    for (int i = 0; i < 3; ++i) {
        m_areas[i]->setText(qtTrId(AreaTexts[i]));
        m_areas[i]->setToolTip(qtTrId(AreaHelps[i]));
        m_areas[i]->setAccessibleName(qtTrId(AreaTexts[i]));
        m_areas[i]->updateGeometry();
    }
    m_keyboard->setText(qtTrId("PANELID_KEYBOARD"));
    m_hint->setText(QStringLiteral("F6"));
    m_menu->setText(qtTrId("PANELID_MENU") + QStringLiteral(" ▾"));
    m_menu->setAccessibleName(qtTrId("PANELID_MENU"));
    m_menu->updateGeometry();
}
