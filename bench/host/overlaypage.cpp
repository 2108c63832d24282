// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "overlaypage.h"

#include "frontpanelkeys.h"
#include "hostlook.h"
#include "hosttext.h"
#include "keynavigation.h"
#include "textlabel.h"
#include "touchbutton.h"
#include "translated.h"

#include <QKeyEvent>
#include <QPainter>

namespace {

const int HeaderHeight = 64;

} // namespace

OverlayPage::OverlayPage(const char* titleId, int ownKey, QWidget* surface)
    : QDialog(surface, Qt::Dialog | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint)
    , m_titleId(titleId)
    , m_nOwnKey(ownKey)
    , m_pTitle(new TextLabel(21, HostLook::Text, this))
    , m_pClose(new TouchButton(HostText::Close, this))
    , m_pNavigation(new KeyNavigation(this))
{
    setWindowModality(Qt::ApplicationModal);
    m_pTitle->setBold(true);
    m_pClose->setObjectName(QStringLiteral("close"));
    connect(m_pClose, &TouchButton::clicked, this, &OverlayPage::reject);
    setInputs({});
}

void OverlayPage::open()
{
    retranslate();
    setGeometry(QRect(QPoint(), HostLook::ScreenSize));
    show();
    raise();
    activateWindow();
}

void OverlayPage::setInputs(const QVector<QWidget*>& inputs)
{
    m_pNavigation->setInputs(inputs + QVector<QWidget*>{m_pClose});
    (inputs.isEmpty() ? m_pClose : inputs.first())->setFocus(Qt::OtherFocusReason);
}

QRect OverlayPage::contentArea() const
{
    return QRect(QPoint(), HostLook::ScreenSize)
        .adjusted(2 * HostLook::Gap, HeaderHeight, -2 * HostLook::Gap, -HostLook::Gap);
}

void OverlayPage::retranslate()
{
    m_pTitle->setText(appPlugins::translated(m_titleId));
    m_pClose->setText(appPlugins::translated(HostText::Close));
    const int closeWidth = m_pClose->sizeHint().width();
    const int left = HostLook::ScreenSize.width() - HostLook::Gap - closeWidth;
    m_pClose->setGeometry(left, 10, closeWidth, HostLook::TouchSize);
    m_pTitle->setGeometry(2 * HostLook::Gap, 10, left - 3 * HostLook::Gap, HostLook::TouchSize);
}

bool OverlayPage::closes(const QKeyEvent& event) const
{
    switch (event.key()) {
    case Qt::Key_Escape:
    case Qt::Key_Cancel:
    case QT_KEY_BACK:
    case QT_KEY_HOME:
        return true;
    default:
        return event.key() == m_nOwnKey;
    }
}

void OverlayPage::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        retranslate();
    QDialog::changeEvent(event);
}

// The page is opened while the key that opens it comes up: it must go down once more to close it.
void OverlayPage::keyPressEvent(QKeyEvent* event)
{
    m_bKeyDown = closes(*event);
    event->setAccepted(m_bKeyDown);
}

void OverlayPage::keyReleaseEvent(QKeyEvent* event)
{
    const bool isPressed = closes(*event) && m_bKeyDown;
    event->setAccepted(isPressed);
    if (isPressed)
        reject();
    m_bKeyDown = false;
}

void OverlayPage::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.fillRect(rect(), HostLook::Background);
}
