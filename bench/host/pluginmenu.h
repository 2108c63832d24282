// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "pluginfinder.h"

#include <QScrollArea>

class PluginTile;
class TextLabel;

/// The plug-ins on the home screen, side by side; more than fit are reached by dragging, or with
/// knob and keys.
class PluginMenu : public QScrollArea
{
    Q_OBJECT

public:
    explicit PluginMenu(QWidget* parent);

    void setPlugins(const QVector<PluginFile>& plugins);

    /// Marks the plug-in with this file name.
    void setLastOpened(const QString& fileName);

    /// The tiles in their order.
    QVector<QWidget*> inputs() const;

    /// The tile that was opened last, or else the first; null without any.
    QWidget* preferredInput() const;

Q_SIGNALS:
    void chosen(const PluginFile& plugin);

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addTile(const PluginFile& plugin, QWidget* row);
    void retranslate();

    QVector<PluginTile*> m_tiles;
    TextLabel* m_pEmpty;
    PluginTile* m_pPreferred = nullptr;
};
