// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "traceplot.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QRubberBand>
#include <QWheelEvent>

#include <cmath>

namespace {

const double KeyZoom = 1.5;
const double WheelZoom = 1.25; // for one detent
const double WheelDetent = 120;
const int GripPixels = 8;
const int LeastFrame = 6;

} // namespace

double TracePlot::timeAt(double x) const
{
    return m_view.from + m_view.seconds() * x / qMax(1, canvas()->width());
}

// The nearer cursor within reach; -1 where there is none.
int TracePlot::cursorAt(double x) const
{
    int nearest = -1;
    double least = GripPixels;
    for (int i = 0; m_bCursors && i < 2; ++i) {
        const double place = canvasMap(xBottom).transform(m_dbCursors[i]);
        if (std::fabs(place - x) < least) {
            least = std::fabs(place - x);
            nearest = i;
        }
    }
    return nearest;
}

void TracePlot::press(QMouseEvent& event)
{
    setFocus(Qt::MouseFocusReason);
    m_gripPlace = event.pos();
    const int hit = cursorAt(event.pos().x());
    if (event.button() == Qt::MiddleButton) {
        m_grip = Way;
    } else if (event.button() == Qt::LeftButton && hit >= 0) {
        m_grip = Cursor;
        setActiveCursor(hit);
    } else if (event.button() == Qt::LeftButton) {
        m_grip = Frame;
        m_frame->setGeometry(QRect(m_gripPlace, QSize()));
        m_frame->show();
    }
}

void TracePlot::drag(const QPoint& place)
{
    switch (m_grip) {
    case Cursor:
        setCursor(m_nActive, timeAt(qBound(0, place.x(), canvas()->width())));
        break;
    case Frame:
        // The frame takes all levels in: it is times that are looked at closely.
        m_frame->setGeometry(
            QRect(QPoint(m_gripPlace.x(), 0), QPoint(place.x(), canvas()->height() - 1))
                .normalized());
        break;
    case Way: {
        TraceView view = m_view;
        view.pan(double(m_gripPlace.x() - place.x()) / qMax(1, canvas()->width()), m_whole);
        m_gripPlace = place;
        setView(view);
        break;
    }
    case None:
        break;
    }
}

void TracePlot::release(const QPoint& place)
{
    const Grip grip = m_grip;
    m_grip = None;
    m_frame->hide();
    if (grip != Frame || std::abs(place.x() - m_gripPlace.x()) < LeastFrame)
        return;
    TraceView view = m_view;
    view.from = timeAt(qMin(place.x(), m_gripPlace.x()));
    view.to = timeAt(qMax(place.x(), m_gripPlace.x()));
    view.zoomTime(1, (view.from + view.to) / 2, m_whole);
    setView(view);
}

void TracePlot::turnWheel(QWheelEvent& event)
{
    const double detents = event.angleDelta().y() / WheelDetent;
    const double factor = std::pow(WheelZoom, -detents);
    TraceView view = m_view;
    if (event.modifiers() & Qt::ShiftModifier)
        view.pan(-detents / 10, m_whole);
    else if (event.modifiers() & Qt::ControlModifier)
        view.zoomVolts(factor, invTransform(yLeft, event.position().y()), m_whole);
    else
        view.zoomTime(factor, timeAt(event.position().x()), m_whole);
    setView(view);
    event.accept();
}

bool TracePlot::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != canvas())
        return QwtPlot::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        press(*static_cast<QMouseEvent*>(event));
        return true;
    case QEvent::MouseMove:
        drag(static_cast<QMouseEvent*>(event)->pos());
        return true;
    case QEvent::MouseButtonRelease:
        release(static_cast<QMouseEvent*>(event)->pos());
        return true;
    case QEvent::MouseButtonDblClick:
        showAll();
        return true;
    case QEvent::Wheel:
        turnWheel(*static_cast<QWheelEvent*>(event));
        return true;
    default:
        return QwtPlot::eventFilter(watched, event);
    }
}

bool TracePlot::cursorKey(int key, int step)
{
    switch (key) {
    case Qt::Key_Left:
    case Qt::Key_Right: {
        const double pixel = m_view.seconds() / qMax(1, canvas()->width());
        const int direction = key == Qt::Key_Left ? -1 : 1;
        setCursor(m_nActive, qBound(m_view.from, m_dbCursors[m_nActive] + direction * step * pixel,
                                    m_view.to));
        return true;
    }
    case Qt::Key_1:
    case Qt::Key_2:
        setActiveCursor(key - Qt::Key_1);
        return true;
    default:
        return false;
    }
}

bool TracePlot::viewKey(int key)
{
    TraceView view = m_view;
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Equal: // plus without Shift on many keyboards
        zoom(1 / KeyZoom);
        return true;
    case Qt::Key_Minus:
        zoom(KeyZoom);
        return true;
    case Qt::Key_Home:
        showAll();
        return true;
    case Qt::Key_Up:
    case Qt::Key_Down:
        view.zoomVolts(key == Qt::Key_Up ? 1 / KeyZoom : KeyZoom, (view.low + view.high) / 2,
                       m_whole);
        break;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
        view.pan(key == Qt::Key_PageUp ? -0.5 : 0.5, m_whole);
        break;
    default:
        return false;
    }
    setView(view);
    return true;
}

void TracePlot::keyPressEvent(QKeyEvent* event)
{
    const int step = event->modifiers() & Qt::ShiftModifier ? 10 : 1;
    if (!cursorKey(event->key(), step) && !viewKey(event->key()))
        QwtPlot::keyPressEvent(event);
}

void TracePlot::focusInEvent(QFocusEvent* event)
{
    QwtPlot::focusInEvent(event);
    showCursors();
    replot();
}

void TracePlot::focusOutEvent(QFocusEvent* event)
{
    QwtPlot::focusOutEvent(event);
    showCursors();
    replot();
}
