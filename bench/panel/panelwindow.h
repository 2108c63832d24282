// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "channelwatch.h"
#include "keypadclient.h"
#include "keyrelay.h"
#include "paneloptions.h"
#include "rfbscreen.h"

#include <QMainWindow>
#include <QPointer>

class DesktopKeyboard;
class FrontFace;
class PanelLanguages;
class QDialog;
class QSettings;
class QSplitter;
class StatusStrip;
class TraceArea;
enum class KeyboardArea;

/// The panel's window: the front above, the trace below, and the connections behind them.
class PanelWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @p settings may be null; then nothing is remembered. Both outlive the window.
    PanelWindow(const PanelOptions& options, PanelLanguages& languages, QSettings* settings);
    ~PanelWindow() override;

    /// Begins to connect.
    void start();

    FrontFace* face() const { return m_face; }
    TraceArea* traceArea() const { return m_traceArea; }
    StatusStrip* strip() const { return m_strip; }
    DesktopKeyboard* keyboard() const { return m_keyboard; }

Q_SIGNALS:
    /// The first whole picture of the host's screen has been painted.
    void screenShown();
    /// The trace area has a new burst of channel 1.
    void burstShown();

protected:
    void changeEvent(QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    void makeMenu();
    QAction* addMenuAction(const char* textId, const QKeySequence& keys);
    void makeLanguageMenu();
    void connectLinks();
    void connectKeyboard();
    void showScreenState();
    void goTo(KeyboardArea area);
    void followFocus(QWidget* now);
    void chooseLanguage(const QString& language);
    void toggleFullScreen();
    void showHelp();
    void retranslate();
    void restorePlace();
    void keepPlace();
    void shareHeight();
    QSize usualSize() const;

    PanelLanguages& m_languages;
    QSettings* m_settings;
    RfbScreen m_screen;
    KeypadClient m_keypad;
    KeyRelay m_relay;
    ChannelWatch m_watch;
    FrontFace* m_face = nullptr;
    TraceArea* m_traceArea = nullptr;
    StatusStrip* m_strip = nullptr;
    QSplitter* m_splitter = nullptr;
    DesktopKeyboard* m_keyboard = nullptr;
    QMenu* m_menu = nullptr;
    QMenu* m_languageMenu = nullptr;
    QVector<QPair<QAction*, const char*>> m_actions; // with the identifiers of their texts
    QPointer<QDialog> m_help;
    double m_dbTraceShare = 0; // of the height, as the user drew it; 0 until then
    bool m_bScreenSeen = false;
};
