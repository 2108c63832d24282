// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

class QWidget;

/// The host's side of the six callbacks of a plug-in: file browsers and message boxes for finger,
/// knob and keys on the instrument's screen. Each of them shows a dialog over the whole screen and
/// returns when the user has answered; one may be opened while another is open.
///
/// The on-screen keyboard of the same library is an input method of the platform with the key
/// "kvxkeyboard" (see KeyboardContext).
namespace HostDialogs {

/// What the dialogs cover: the host's surface. Without one, or when it is gone, the first screen.
void setScreen(QWidget* surface);

/// The folder that the browsers do not leave; "/mnt/user-data" at first.
void setUserDataFolder(const QString& folder);

/// The folder in which the browsers begin when it lies where the plug-in wants to begin; the one of
/// the last file that was chosen.
void setLastFolder(const QString& folder);
/// As set, or of the last choice; empty at first.
QString lastFolder();

/// Lets the user choose a file that exists. @p filters are suffixes (".json"), none for every file.
/// @p start is where to begin, the user-data folder if it is none inside. @p titleId is the
/// identifier of the title, or null. @p flag means nothing and is logged.
/// Returns 1 with the path in @p path, or 0 with @p path as it was. The path has no links in it and
/// lies in the user-data folder.
int openFile(QWidget* parent, QStringList filters, QString& path, QString start,
             const char* titleId, int flag);

/// Lets the user choose a name to save under, @p name being the suggestion; as openFile(). A name
/// with none of the suffixes gets the chosen one. A file that exists is returned only after the
/// user agreed to replace it.
int saveFile(QWidget* parent, QStringList filters, QString& path, QString start,
             const char* titleId, int flag, QString name);

/// Shows a message: 1 for its button, 0 when it was closed in another way. Texts are plain.
int critical(QString text);
/// Likewise.
int warning(QString text);
/// Asks: 1 for yes, 0 for no and for every way to close it.
int question(QString text);
/// As critical().
int information(QString text);

} // namespace HostDialogs
