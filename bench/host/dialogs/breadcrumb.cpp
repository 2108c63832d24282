// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "breadcrumb.h"

#include "dialogbutton.h"
#include "dialoglook.h"
#include "filename.h"
#include "glyphs.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>

namespace HostDialogs {

namespace {

const int Spacing = 10;
const int Chevron = 14;
const int WidestCrumb = 190;

} // namespace

Breadcrumb::Breadcrumb(QWidget* parent)
    : QWidget(parent)
    , m_pLayout(new QHBoxLayout(this))
    , m_pHome(new DialogButton(this))
    , m_pUp(new DialogButton(this))
    , m_pCut(new QLabel(QStringLiteral("…"), this))
{
    m_pLayout->setContentsMargins(0, 0, 0, 0);
    m_pLayout->setSpacing(Spacing);
    m_pHome->setGlyph(Glyph::Home);
    m_pHome->setObjectName(QStringLiteral("home"));
    m_pUp->setGlyph(Glyph::UpFolder);
    m_pUp->setObjectName(QStringLiteral("up"));
    connect(m_pHome, &DialogButton::clicked, this, [this] { Q_EMIT depthChosen(0); });
    connect(m_pUp, &DialogButton::clicked, this,
            [this] { Q_EMIT depthChosen(m_crumbs.size() - 2); });
    m_pCut->setFont(DialogLook::textFont());
    m_pLayout->addWidget(m_pHome);
    m_pLayout->addWidget(m_pUp);
    m_pLayout->addWidget(m_pCut);
    m_pLayout->addStretch(1);
    // However long the way is, it takes the room that there is.
    m_pLayout->setSizeConstraint(QLayout::SetNoConstraint);
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    setParts({});
}

DialogButton* Breadcrumb::addButton(int depth)
{
    auto* button = new DialogButton(this);
    button->setFlat(true);
    button->setMaximumWidth(WidestCrumb);
    button->setFocusPolicy(Qt::NoFocus);
    connect(button, &DialogButton::clicked, this, [this, depth] { Q_EMIT depthChosen(depth); });
    m_pLayout->insertWidget(m_pLayout->count() - 1, button);
    button->show();
    return button;
}

// The one that was tapped is among those that go.
void Breadcrumb::setParts(const QStringList& parts)
{
    for (DialogButton* button : m_crumbs) {
        button->hide();
        button->deleteLater();
    }
    m_crumbs = {addButton(0)};
    for (const QString& part : parts) {
        m_crumbs.append(addButton(m_crumbs.size()));
        m_crumbs.last()->setText(shownName(part));
    }
    m_pUp->setEnabled(!parts.isEmpty());
    retranslate();
}

void Breadcrumb::retranslate()
{
    m_pHome->setAccessibleName(qtTrId("HOSTID_DLG_GO_HOME"));
    m_pUp->setAccessibleName(qtTrId("HOSTID_DLG_GO_UP"));
    m_crumbs.first()->setText(qtTrId("HOSTID_DLG_USER_DATA"));
    fit();
}

void Breadcrumb::fit()
{
    int room = width() - m_pHome->sizeHint().width() - m_pUp->sizeHint().width() -
               m_pCut->sizeHint().width() - 3 * Spacing;
    bool cut = false;
    for (int i = m_crumbs.size() - 1; i >= 0; --i) {
        room -= qMin(m_crumbs.at(i)->sizeHint().width(), WidestCrumb) + Spacing;
        cut = cut || (room < 0 && i < m_crumbs.size() - 1);
        m_crumbs.at(i)->setVisible(!cut);
    }
    m_pCut->setVisible(cut);
    update();
}

// An arrow in the gap before each folder but the first on show.
void Breadcrumb::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int i = 1; i < m_crumbs.size(); ++i) {
        if (!m_crumbs.at(i)->isVisible() ||
            (!m_crumbs.at(i - 1)->isVisible() && !m_pCut->isVisible()))
            continue;
        const qreal middle = m_crumbs.at(i)->x() - Spacing / 2.0;
        drawGlyph(painter,
                  QRectF(middle - Chevron / 2.0, (height() - Chevron) / 2.0, Chevron, Chevron),
                  Glyph::Right, DialogLook::Faint);
    }
}

void Breadcrumb::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fit();
}

} // namespace HostDialogs
