// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Folders of the host: where they are, and that nobody else may write to them.
namespace HostFolders {

/// Where plug-ins are looked for unless told otherwise, for a program in the folder @p programs:
/// beside it where it is installed, among the libraries of a build tree otherwise.
QString plugins(const QString& programs);

/// Where the catalogues are: named by the environment, beside the program where it is installed, or
/// in the build tree.
QString translations(const QString& programs);

/// Makes a folder that is not there yet, for its owner alone; its parent must be there. Returns
/// what is wrong, or an empty text.
QString make(const QString& folder);

/// Why the user's files are not safe in @p folder: others can write to it. Empty where they are.
QString userDataObjection(const QString& folder);

/// Why the socket of the keypad must not lie in @p folder: it is none, or not the user's alone to
/// write to. Empty where it may.
QString keypadObjection(const QString& folder);

} // namespace HostFolders
