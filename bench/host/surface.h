// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

class HomePage;

/// The instrument's screen: what plug-ins and dialogs get as their parent. It stands at the
/// screen's origin without a layout, so that a plug-in's window takes the size that it gives
/// itself.
class Surface : public QWidget
{
    Q_OBJECT

public:
    Surface();

    HomePage* home() const { return m_pHome; }

private:
    HomePage* m_pHome;
};
