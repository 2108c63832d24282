// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "instrumentstate.h"
#include "pluginfinder.h"

#include <QVector>
#include <QWidget>

class ChannelCard;
class KeyNavigation;
class PluginMenu;
class TextLabel;
class TouchButton;

/// The home screen: the instrument's channels, the plug-ins, and the ways to settings and help.
class HomePage : public QWidget
{
    Q_OBJECT

public:
    explicit HomePage(QWidget* parent);

    void setInstrument(const InstrumentState& state);

    /// Lists @p plugins; the one with the file name @p lastOpened is marked.
    void setPlugins(const QVector<PluginFile>& plugins, const QString& lastOpened);

    /// Gives the focus to the plug-in that was opened last.
    void focusMenu();

Q_SIGNALS:
    void pluginChosen(const PluginFile& plugin);
    void settingsWanted();
    void helpWanted();

protected:
    void changeEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void place();
    void retranslate();
    void showLink();
    QColor linkColor() const;

    InstrumentState m_state;
    TextLabel* m_pTitle;
    TextLabel* m_pApplications;
    TextLabel* m_pLink;
    TouchButton* m_pSettings;
    TouchButton* m_pHelp;
    QVector<ChannelCard*> m_cards;
    PluginMenu* m_pMenu;
    KeyNavigation* m_pNavigation;
};
