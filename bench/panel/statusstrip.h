// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "desktopkeyboard.h"

#include <QWidget>

class BarButton;
class QHBoxLayout;
class QLabel;

/// The strip below: which of the three connections stand, where the desktop's keyboard goes, and
/// the menu.
class StatusStrip : public QWidget
{
    Q_OBJECT

public:
    enum Link { Screen, Keypad, Instrument };

    explicit StatusStrip(QWidget* parent = nullptr);

    /// @p reason says why a connection does not stand.
    void setLink(Link link, bool isUp, const QString& reason);
    bool isUp(Link link) const { return m_links[link].isUp; }

    void setArea(KeyboardArea area);

    BarButton* menuButton() const { return m_menu; }

    /// Sets all texts again.
    void retranslate();

Q_SIGNALS:
    void areaWanted(KeyboardArea area);

private:
    struct LinkState
    {
        QLabel* label = nullptr;
        bool isUp = false;
        QString reason;
    };

    void addLinks(QHBoxLayout& bar);
    void addAreas(QHBoxLayout& bar);
    void showLink(Link link);

    LinkState m_links[3];
    QLabel* m_keyboard;
    BarButton* m_areas[3];
    QLabel* m_hint;
    BarButton* m_menu;
};
