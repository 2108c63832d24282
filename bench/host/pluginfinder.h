// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMetaType>
#include <QString>
#include <QVector>

/// A file in the plug-in folder that the user may choose.
struct PluginFile
{
    QString path;
    QString name;         ///< of the plug-in's class, or of the file where it tells none
    bool isUsable = true; ///< as far as its metadata tells, without loading any code

    /// The file's name without folder, "lib" and ending: "MultiPulseBuilder".
    QString baseName() const;
};

Q_DECLARE_METATYPE(PluginFile)

/// The plug-ins in a folder, by name and usable ones first. Ordinary libraries are left out; files
/// that are damaged, made for another interface or for another machine are among them and not
/// usable, so that the user can ask why.
QVector<PluginFile> findPlugins(const QString& folder);
