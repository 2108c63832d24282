// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostsettings.h"

#include "hostfolders.h"
#include "languages.h"

#include <QFile>
#include <QFileInfo>
#include <QSettings>

namespace {

const char* const LanguageKey = "language";
const char* const FolderKey = "folder";
const char* const PluginKey = "plugin";

QString textOf(const QSettings& file, const char* key)
{
    return file.value(QLatin1String(key)).toString();
}

bool isLanguage(const QString& language)
{
    return language.isEmpty() || Languages::all().contains(language);
}

bool isFileName(const QString& name)
{
    return !name.contains(QLatin1Char('/'));
}

const QFile::Permissions OwnerAlone = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;

} // namespace

bool HostSettings::operator==(const HostSettings& other) const
{
    return language == other.language && lastFolder == other.lastFolder &&
           lastPlugin == other.lastPlugin;
}

HostSettingsFile::HostSettingsFile(const QString& userData)
    : m_strUserData(userData)
{}

QString HostSettingsFile::folder() const
{
    return m_strUserData + QLatin1String("/.host");
}

QString HostSettingsFile::path() const
{
    return folder() + QLatin1String("/settings.ini");
}

HostSettings HostSettingsFile::load(QString& problem) const
{
    if (!QFileInfo::exists(path()))
        return {};
    QSettings file(path(), QSettings::IniFormat);
    file.setIniCodec("UTF-8");
    HostSettings settings{textOf(file, LanguageKey), textOf(file, FolderKey),
                          textOf(file, PluginKey)};
    const bool isReadable = file.status() == QSettings::NoError && QFileInfo(path()).isReadable();
    if (isReadable && isLanguage(settings.language) && isFileName(settings.lastPlugin))
        return settings;
    problem = QStringLiteral("%1: not the host's settings; it starts without them").arg(path());
    return {};
}

// A link in place of the folder could lead the file anywhere.
QString HostSettingsFile::prepareFolder() const
{
    if (QFileInfo(folder()).isSymLink())
        return QStringLiteral("%1: a link instead of a folder").arg(folder());
    const QString error = HostFolders::make(folder());
    if (error.isEmpty() && !QFile::setPermissions(folder(), OwnerAlone))
        return QStringLiteral("%1: belongs to somebody else").arg(folder());
    return error;
}

QString HostSettingsFile::save(const HostSettings& settings) const
{
    const QString error = prepareFolder();
    if (!error.isEmpty())
        return error;
    QSettings file(path(), QSettings::IniFormat);
    file.setIniCodec("UTF-8");
    file.setAtomicSyncRequired(true);
    file.clear();
    file.setValue(QLatin1String(LanguageKey), settings.language);
    file.setValue(QLatin1String(FolderKey), settings.lastFolder);
    file.setValue(QLatin1String(PluginKey), settings.lastPlugin);
    file.sync();
    if (file.status() == QSettings::NoError)
        return QString();
    return QStringLiteral("%1: cannot be written").arg(path());
}
