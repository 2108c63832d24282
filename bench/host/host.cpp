// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "host.h"

#include "frontpanelkeys.h"
#include "homepage.h"
#include "hostdialogs.h"
#include "hostfolders.h"
#include "hosttext.h"
#include "plugintile.h"
#include "screendescription.h"
#include "translated.h"

#include <QApplication>
#include <QFileInfo>
#include <QScopedValueRollback>

using appPlugins::translated;

namespace {

STRUCT_SHARED_POINTERS dialogs()
{
    return {HostDialogs::openFile, HostDialogs::saveFile, HostDialogs::critical,
            HostDialogs::warning,  HostDialogs::question, HostDialogs::information};
}

} // namespace

Host::Host(const HostOptions& options, Report report)
    : m_options(options)
    , m_report(std::move(report))
    , m_settingsFile(options.userData)
    , m_languages(options.translations)
    , m_settings(loadSettings())
    , m_settingsPage(&m_surface)
    , m_helpPage(&m_surface)
    , m_runner(&m_surface, dialogs())
    , m_keys([this] { return m_flags.discardsKeys(); })
    , m_keypad(
          m_keys, [this] { return describe(); }, QStringLiteral(MPB_VERSION))
    , m_watch(options.instrumentPort, [this] { return m_flags.blocksCommands(); })
{
    connectPages();
}

Host::~Host() = default;

void Host::connectPages()
{
    HomePage* home = m_surface.home();
    // The menu is made anew while a plug-in is run, and must not be in the middle of a key's event.
    qRegisterMetaType<PluginFile>();
    connect(home, &HomePage::pluginChosen, this, &Host::openPlugin, Qt::QueuedConnection);
    connect(home, &HomePage::settingsWanted, this, &Host::openSettings);
    connect(home, &HomePage::helpWanted, &m_helpPage, &HelpPage::open);
    connect(&m_settingsPage, &SettingsPage::languageChosen, this, &Host::setLanguage);
    connect(&m_keys, &KeyDriver::unused, this, &Host::useKey);
    connect(m_watch.poller(), &InstrumentPoller::stateChanged, this,
            [this](const InstrumentState& state) {
                m_instrument = state;
                m_surface.home()->setInstrument(state);
            });
}

QString Host::start()
{
    QString error = prepareFolders();
    if (error.isEmpty())
        error = m_keypad.listen(m_options.keypadPath);
    if (error.isEmpty() && !m_flags.open())
        error = QStringLiteral("the segment of the flags: %1").arg(m_flags.errorString());
    if (!error.isEmpty())
        return error;
    prepareDialogs();
    showHome();
    m_watch.start();
    return QString();
}

QString Host::prepareFolders()
{
    const QString error = HostFolders::make(m_options.userData);
    const QString objection = HostFolders::userDataObjection(m_options.userData);
    if (error.isEmpty() && !objection.isEmpty())
        m_report(QStringLiteral("--user-data: %1").arg(objection));
    return error.isEmpty() ? error : QStringLiteral("--user-data %1").arg(error);
}

// The pages are made after this: they take their texts at once.
HostSettings Host::loadSettings()
{
    QString problem;
    HostSettings settings = m_settingsFile.load(problem);
    if (!problem.isEmpty())
        m_report(problem);
    QString language = m_options.language;
    if (language.isEmpty())
        language = settings.language;
    if (language.isEmpty())
        language = Languages::ofDesktop();
    const QString missing = m_languages.install(language);
    if (!missing.isEmpty())
        m_report(missing);
    return settings;
}

void Host::prepareDialogs()
{
    HostDialogs::setScreen(&m_surface);
    HostDialogs::setUserDataFolder(m_options.userData);
    HostDialogs::setLastFolder(m_settings.lastFolder);
}

void Host::saveSettings()
{
    m_settings.lastFolder = HostDialogs::lastFolder();
    const QString error = m_settingsFile.save(m_settings);
    if (!error.isEmpty())
        m_report(error);
}

void Host::showHome()
{
    m_surface.home()->setPlugins(findPlugins(m_options.pluginFolder), m_settings.lastPlugin);
    m_surface.show();
    m_surface.raise();
    m_surface.activateWindow();
    m_surface.home()->focusMenu();
}

void Host::openPlugin(const PluginFile& plugin)
{
    if (m_runner.isOpen())
        return;
    m_openPlugin = plugin;
    const PluginResult result = m_runner.run(plugin.path, [this, &plugin] {
        m_settings.lastPlugin = QFileInfo(plugin.path).fileName();
        saveSettings();
    });
    if (m_bEnding)
        return;
    saveSettings();
    showHome();
    reportResult(plugin, result);
}

void Host::reportResult(const PluginFile& plugin, const PluginResult& result)
{
    if (result.outcome == PluginResult::Finished)
        return;
    const bool isLoaded = result.outcome == PluginResult::Failed;
    const QString reason = result.reason.isEmpty() ? translated(HostText::NoReason) : result.reason;
    m_report(QStringLiteral("%1: %2").arg(plugin.path, reason));
    HostDialogs::critical(translated(isLoaded ? HostText::HasFailed : HostText::CannotOpen)
                              .arg(PluginTile::titleOf(plugin), reason));
}

void Host::reportException(const QString& words)
{
    const QString reason = words.isEmpty() ? translated(HostText::NoReason) : words;
    m_report(reason);
    // What fails again and again, a picture say, is told once at a time.
    if (m_bReporting)
        return;
    const QScopedValueRollback<bool> reporting(m_bReporting, true);
    const QString title =
        m_runner.isOpen() ? PluginTile::titleOf(m_openPlugin) : translated(HostText::Applications);
    HostDialogs::critical(translated(HostText::HasFailed).arg(title, reason));
}

void Host::setLanguage(const QString& language)
{
    const QString missing = m_languages.install(language);
    if (!missing.isEmpty())
        m_report(missing);
    m_settings.language = language;
    saveSettings();
}

void Host::openSettings()
{
    m_settingsPage.setLanguage(m_languages.current());
    m_settingsPage.setFacts({{HostText::Instrument, m_instrument.model},
                             {HostText::UserFolder, m_options.userData},
                             {HostText::PluginFolder, m_options.pluginFolder},
                             {HostText::Version, QStringLiteral(MPB_VERSION)}});
    m_settingsPage.open();
}

// A dialog, a menu or a list is open above the home screen or above the plug-in's window.
bool Host::isCovered() const
{
    const QWidget* modal = QApplication::activeModalWidget();
    return QApplication::activePopupWidget() != nullptr ||
           (modal != nullptr && modal != m_runner.window());
}

void Host::useKey(int code)
{
    if (code == QT_KEY_MANUAL)
        return m_watch.trigger();
    if (isCovered())
        return;
    if (code == QT_KEY_UTLITY)
        openSettings();
    else if (code == QT_KEY_HELP)
        m_helpPage.open();
    else if (code == QT_KEY_CH1ON && !m_runner.isOpen())
        m_watch.setOutput(1, !m_instrument.channels.front().on);
}

Keypad::ScreenDescription Host::describe() const
{
    Keypad::ScreenDescription screen;
    screen.language = m_languages.current();
    screen.busy = m_flags.blocksCommands() || m_flags.discardsKeys();
    screen.items = visibleTexts();
    return screen;
}

// The loops of whatever is open end with the application's own; this is what remains to be done.
void Host::end()
{
    if (m_bEnding)
        return;
    m_bEnding = true;
    m_runner.close();
    saveSettings();
}
