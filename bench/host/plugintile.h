// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pluginfinder.h"
#include "touchbutton.h"

class TextLabel;

/// A plug-in in the menu of the home screen.
class PluginTile : public TouchButton
{
    Q_OBJECT

public:
    PluginTile(const PluginFile& plugin, QWidget* parent);

    const PluginFile& plugin() const { return m_plugin; }

    /// What the plug-in is called in the current language.
    static QString titleOf(const PluginFile& plugin);

    void setLastOpened(bool isLast);

    QSize sizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void retranslate();
    void paintSign(QPainter& painter) const;

    PluginFile m_plugin;
    bool m_bLastOpened = false;
    TextLabel* m_pNote;
};
