// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "keyboardcontext.h"

#include "hostscreen.h"
#include "screenkeyboard.h"

#include <QApplication>
#include <QInputMethodQueryEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

namespace HostDialogs {

namespace {

// The toolkit's numeric editor, which alone knows what the keys with the prefixes mean.
const char NumericEditorClass[] = "appPlugins::ParameterTextEdit";

const Qt::InputMethodHints NumberHints =
    Qt::ImhDigitsOnly | Qt::ImhFormattedNumbersOnly | Qt::ImhDialableCharactersOnly;

// A widget has to be gone before the application that it is shown by is.
QPointer<ScreenKeyboard>& window()
{
    static QPointer<ScreenKeyboard> keyboard;
    return keyboard;
}

void deleteWindow()
{
    const ScreenKeyboard* const keyboard = window();
    window().clear();
    delete keyboard;
}

ScreenKeyboard::Kind kindFor(QObject* field)
{
    if (field->inherits(NumericEditorClass))
        return ScreenKeyboard::NumberWithUnit;
    QInputMethodQueryEvent query(Qt::ImHints);
    QCoreApplication::sendEvent(field, &query);
    const Qt::InputMethodHints hints(query.value(Qt::ImHints).toInt());
    return hints & NumberHints ? ScreenKeyboard::Number : ScreenKeyboard::Text;
}

const QWidget* endOfProxies(const QWidget* widget)
{
    while (widget->focusProxy() != nullptr)
        widget = widget->focusProxy();
    return widget;
}

bool holds(const QWidget* field, const QPoint& globalPoint)
{
    return field->rect().contains(field->mapFromGlobal(globalPoint));
}

} // namespace

KeyboardContext::KeyboardContext() = default;

KeyboardContext::~KeyboardContext() = default;

bool KeyboardContext::isValid() const
{
    return true;
}

void KeyboardContext::setFocusObject(QObject* object)
{
    // The context comes into being before the application that it watches is complete.
    if (!m_bWatching) {
        m_bWatching = true;
        qApp->installEventFilter(this);
    }
    if (m_focus == object)
        return;
    m_focus = object;
    hideInputPanel();
    showIfTouched();
}

void KeyboardContext::update(Qt::InputMethodQueries queries)
{
    if (!isInputPanelVisible() || !queries.testFlag(Qt::ImEnabled))
        return;
    if (!isEditable(m_focus))
        hideInputPanel();
}

bool KeyboardContext::isEditable(QObject* object) const
{
    if (object == nullptr)
        return false;
    QInputMethodQueryEvent query(Qt::ImEnabled);
    QCoreApplication::sendEvent(object, &query);
    return query.value(Qt::ImEnabled).toBool();
}

bool KeyboardContext::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
        m_touchedWidget = nullptr;
        break;
    case QEvent::MouseButtonRelease:
        if (auto* const widget = qobject_cast<QWidget*>(watched))
            touched(widget, static_cast<QMouseEvent*>(event)->globalPos());
        break;
    default:
        break;
    }
    return false;
}

// The keyboard's own keys say nothing about fields.
void KeyboardContext::touched(QWidget* widget, const QPoint& globalPoint)
{
    if (widget->window() == window())
        return;
    m_touchedWidget = widget;
    m_touchedPoint = globalPoint;
    // Later, as what a widget does with the release may hide the keyboard: a table does when its
    // selection changes.
    QMetaObject::invokeMethod(
        this, [this] { showIfTouched(); }, Qt::QueuedConnection);
}

void KeyboardContext::showIfTouched()
{
    const auto* field = qobject_cast<const QWidget*>(m_focus);
    if (field != nullptr && isTouched(field))
        showInputPanel();
}

// The finger was on the field, on what lends it its focus (a number's prefix), or on what the field
// has just been opened in (a table's cell).
bool KeyboardContext::isTouched(const QWidget* field) const
{
    if (m_touchedWidget == nullptr || m_touchedWidget->window() != field->window())
        return false;
    if (m_touchedWidget == field || field->isAncestorOf(m_touchedWidget) ||
        m_touchedWidget->isAncestorOf(field))
        return holds(field, m_touchedPoint);
    for (const QWidget* part = m_touchedWidget; !part->isWindow(); part = part->parentWidget()) {
        if (part->focusProxy() != nullptr && endOfProxies(part) == field)
            return true;
    }
    return false;
}

ScreenKeyboard* KeyboardContext::keyboard()
{
    if (window() == nullptr) {
        window() = new ScreenKeyboard;
        qAddPostRoutine(deleteWindow);
        connect(window(), &ScreenKeyboard::keyTyped, this, &KeyboardContext::typeKey);
        connect(window(), &ScreenKeyboard::closeRequested, this, &KeyboardContext::hideInputPanel);
    }
    return window();
}

void KeyboardContext::showInputPanel()
{
    const auto* field = qobject_cast<const QWidget*>(m_focus);
    if (field == nullptr || isInputPanelVisible() || !isEditable(m_focus))
        return;

    keyboard()->setKind(kindFor(m_focus));
    keyboard()->setGeometry(keyboard()->placeFor(screenPlace(), fieldPlace(field)));
    attach(field);
    keyboard()->show();
    keyboard()->raise();
    emitInputPanelVisibleChanged();
    emitKeyboardRectChanged();
}

// A window that belongs to the field's window is not blocked by it when it is modal.
void KeyboardContext::attach(const QWidget* field)
{
    keyboard()->winId();
    keyboard()->windowHandle()->setTransientParent(field->window()->windowHandle());
}

// What a number's digits and prefix share is one field for the eye.
QRect KeyboardContext::fieldPlace(const QWidget* field) const
{
    if (field->parentWidget() != nullptr && field->parentWidget()->focusProxy() == field)
        field = field->parentWidget();
    return {field->mapToGlobal(QPoint()), field->size()};
}

void KeyboardContext::hideInputPanel()
{
    if (!isInputPanelVisible())
        return;
    window()->hide();
    emitInputPanelVisibleChanged();
    emitKeyboardRectChanged();
}

bool KeyboardContext::isInputPanelVisible() const
{
    return window() != nullptr && window()->isVisible();
}

bool KeyboardContext::isAnimating() const
{
    return false;
}

QRectF KeyboardContext::keyboardRect() const
{
    return isInputPanelVisible() ? QRectF(window()->geometry()) : QRectF();
}

QLocale KeyboardContext::locale() const
{
    return QLocale(qtTrId("HOSTID_DLG_LOCALE"));
}

Qt::LayoutDirection KeyboardContext::inputDirection() const
{
    return Qt::LeftToRight;
}

// Through the event queue, as from the keypad's driver, and both to the same field: what a press
// brings up must not get its release.
void KeyboardContext::typeKey(int code, const QString& text)
{
    if (m_focus == nullptr)
        return;
    for (QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease})
        QCoreApplication::postEvent(m_focus, new QKeyEvent(type, code, Qt::NoModifier, text));
}

} // namespace HostDialogs
