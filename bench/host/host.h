// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "flagsegment.h"
#include "helppage.h"
#include "hostoptions.h"
#include "hostsettings.h"
#include "instrumentwatch.h"
#include "keydriver.h"
#include "keypadserver.h"
#include "languages.h"
#include "pluginfinder.h"
#include "pluginrunner.h"
#include "settingspage.h"
#include "surface.h"

#include <QObject>

#include <functional>

/// The user-interface program of the instrument, all of it but the process around it.
class Host : public QObject
{
    Q_OBJECT

public:
    using Report = std::function<void(const QString&)>;

    /// @p report takes what the user at the desktop has to be told, a line at a time.
    Host(const HostOptions& options, Report report);
    ~Host() override;

    /// Takes the keypad's socket, makes the flag segment and shows the home screen. Returns what
    /// is wrong, or an empty text.
    QString start();

    /// Closes the plug-in that is open, if one is, and keeps the settings.
    void end();

    /// Tells that an exception left an event handler, with its words or none: one of the plug-in
    /// that is open, if one is, which stays open.
    void reportException(const QString& words);

private:
    QString prepareFolders();
    HostSettings loadSettings();
    void prepareDialogs();
    void saveSettings();
    void connectPages();
    void showHome();
    void openPlugin(const PluginFile& plugin);
    void reportResult(const PluginFile& plugin, const PluginResult& result);
    void setLanguage(const QString& language);
    void openSettings();
    void useKey(int code);
    bool isCovered() const;
    Keypad::ScreenDescription describe() const;

    HostOptions m_options;
    Report m_report;
    HostSettingsFile m_settingsFile;
    Languages m_languages;
    HostSettings m_settings;
    FlagSegment m_flags;
    Surface m_surface;
    SettingsPage m_settingsPage;
    HelpPage m_helpPage;
    PluginRunner m_runner;
    KeyDriver m_keys;
    KeypadServer m_keypad;
    InstrumentWatch m_watch;
    InstrumentState m_instrument;
    PluginFile m_openPlugin;
    bool m_bEnding = false;
    bool m_bReporting = false;
};
