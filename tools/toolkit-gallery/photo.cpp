// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "photo.h"

#include "stage.h"

#include <QEvent>
#include <QPainter>
#include <QPointer>

namespace {

QVector<QPointer<Photo>>& waitingPhotos()
{
    static QVector<QPointer<Photo>> photos;
    return photos;
}

} // namespace

Photo::Photo(QWidget* parent, Make make, Pose pose, Shoot shoot)
    : QWidget(parent)
    , m_make(std::move(make))
    , m_pose(std::move(pose))
    , m_shoot(std::move(shoot))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

// The stage changes the active window, for which neither a layout nor a change of language that is
// under way is the time.
void Photo::takeLater()
{
    if (m_bWanted)
        return;
    m_bWanted = true;
    waitingPhotos().append(this);
    QMetaObject::invokeMethod(this, &Photo::takeWaiting, Qt::QueuedConnection);
}

// A pose lets events happen, among them those that the other photographs wait for; there is one
// focus, and so one stage at a time.
void Photo::takeWaiting()
{
    static bool busy = false;
    if (busy)
        return;
    busy = true;
    while (!waitingPhotos().isEmpty()) {
        if (Photo* photo = waitingPhotos().takeFirst())
            photo->take();
    }
    busy = false;
}

void Photo::take()
{
    m_bWanted = false;
    Stage stage(size());
    QWidget* widget = m_make(&stage);
    stage.show(widget);
    m_pose(stage, widget);
    m_picture = m_shoot ? m_shoot(stage, widget) : stage.photograph();
    update();
}

void Photo::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::LanguageChange)
        takeLater();
    QWidget::changeEvent(event);
}

void Photo::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    takeLater();
}

void Photo::paintEvent(QPaintEvent*)
{
    QPainter(this).drawPixmap(0, 0, m_picture);
}
