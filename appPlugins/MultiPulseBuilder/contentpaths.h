// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Where the plug-in's installed content lies.
namespace ContentPaths {

const QLatin1String AppFolder("/mnt/user-data/.app/");
const QLatin1String PictureFolder("libDoublePulsePluginPics");

/// Path of a picture of the editor.
inline QString picture(const QString& fileName)
{
    return AppFolder + QStringLiteral("%1/%2").arg(PictureFolder, fileName);
}

/// The help page.
inline QString helpPage()
{
    return QStringLiteral("%1%2/%3").arg(AppFolder, PictureFolder,
                                         QLatin1String("DoublePulseHelpFile.html"));
}

} // namespace ContentPaths
