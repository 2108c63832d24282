// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// What a file is, by its structure alone.
enum class ElfKind {
    Damaged, ///< no library of this machine, or not whole
    Library, ///< a library without the metadata of a Qt plug-in
    Plugin   ///< a library that carries them
};

/// Reads the tables of @p path; never loads it.
ElfKind elfKind(const QString& path);
