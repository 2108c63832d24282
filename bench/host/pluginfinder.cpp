// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pluginfinder.h"

#include "elffile.h"

#include "hostinterface/appinterface.h"

#include <QDir>
#include <QFileInfo>
#include <QJsonObject>
#include <QPluginLoader>

#include <algorithm>

namespace {

// Names of classes read as words: "MultiPulseBuilderPlugin" as "Multi Pulse Builder".
QString readable(QString name)
{
    if (name.endsWith(QLatin1String("Plugin")) && name.size() > 6)
        name.chop(6);
    for (int i = name.size() - 1; i > 0; --i) {
        if (name.at(i).isUpper() && name.at(i - 1).isLower())
            name.insert(i, QLatin1Char(' '));
    }
    return name;
}

PluginFile describe(const QString& path)
{
    const QJsonObject metaData = QPluginLoader(path).metaData();
    PluginFile file{path, QString(), false};
    file.isUsable =
        metaData.value(QLatin1String("IID")).toString() == QLatin1String(CAppInterface_iid);
    const QString className = metaData.value(QLatin1String("className")).toString();
    file.name = readable(className.isEmpty() ? file.baseName() : className);
    return file;
}

bool isOrdinaryLibrary(const QString& path)
{
    return elfKind(path) == ElfKind::Library;
}

} // namespace

QString PluginFile::baseName() const
{
    const QString base = QFileInfo(path).completeBaseName();
    return base.startsWith(QLatin1String("lib")) ? base.mid(3) : base;
}

QVector<PluginFile> findPlugins(const QString& folder)
{
    QVector<PluginFile> plugins;
    const QDir dir(folder);
    const QStringList names = dir.entryList({QStringLiteral("*.so")}, QDir::Files);
    for (const QString& name : names) {
        const QString path = dir.absoluteFilePath(name);
        if (!isOrdinaryLibrary(path))
            plugins.append(describe(path));
    }
    std::sort(plugins.begin(), plugins.end(), [](const PluginFile& a, const PluginFile& b) {
        return a.isUsable == b.isUsable ? QString::localeAwareCompare(a.name, b.name) < 0
                                        : a.isUsable;
    });
    return plugins;
}
