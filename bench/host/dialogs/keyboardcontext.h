// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointer>
#include <QRect>

#include <qpa/qplatforminputcontext.h>

class QWidget;

namespace HostDialogs {

class ScreenKeyboard;

/// The on-screen keyboard as the platform's input method. A finger on a field that can be edited
/// brings it up, also on one that opens under the finger; a field that has the focus for another
/// reason does not. It goes when the field loses the focus, when the program asks for it
/// (QInputMethod::hide()) and by its own key.
///
/// What is tapped arrives at the field as presses and releases of keys, those of the instrument's
/// front panel among them: for the field there is no difference between glass and panel.
class KeyboardContext : public QPlatformInputContext
{
    Q_OBJECT

public:
    KeyboardContext();
    ~KeyboardContext() override;

    bool isValid() const override;
    void setFocusObject(QObject* object) override;
    void update(Qt::InputMethodQueries queries) override;

    void showInputPanel() override;
    void hideInputPanel() override;
    bool isInputPanelVisible() const override;
    bool isAnimating() const override;
    QRectF keyboardRect() const override;
    QLocale locale() const override;
    Qt::LayoutDirection inputDirection() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void touched(QWidget* widget, const QPoint& globalPoint);
    void showIfTouched();
    bool isTouched(const QWidget* field) const;
    bool isEditable(QObject* object) const;
    ScreenKeyboard* keyboard();
    void typeKey(int code, const QString& text);
    void attach(const QWidget* field);
    QRect fieldPlace(const QWidget* field) const;

    QPointer<QObject> m_focus;
    QPointer<QWidget> m_touchedWidget;
    QPoint m_touchedPoint;
    bool m_bWatching = false;
};

} // namespace HostDialogs
