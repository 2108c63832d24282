// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "fakebench.h"
#include "panellanguages.h"
#include "panelwindow.h"
#include "tracearea.h"

#include <QSettings>

#include <memory>

/// A panel's window before a bench that is played to it, for the tests of its parts.
class PanelWindowTrial
{
protected:
    /// Opens the window in English and waits until all three links are up.
    void open();
    void close();

    void makeWindow(QSettings* settings = nullptr);
    /// These lines, and no others, arrive at the keypad.
    void expectKeys(const QByteArray& lines);
    /// A millisecond: low, high from 250 to 750 microseconds, low again.
    void giveBurst();
    TracePlot* plot() const { return m_window->traceArea()->plot(); }

    PanelLanguages m_languages{PanelLanguages::defaultFolder(QString())};
    std::unique_ptr<FakeBench> m_bench;
    std::unique_ptr<PanelWindow> m_window;
};
