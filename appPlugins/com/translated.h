// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace appPlugins {

/// The text of an identifier in the current language; the identifier itself where the catalogue has
/// none, and nothing for a null or empty one.
inline QString translated(const char* textId)
{
    return textId == nullptr || *textId == '\0' ? QString() : qtTrId(textId, -1);
}

} // namespace appPlugins
