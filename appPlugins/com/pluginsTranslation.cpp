// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "pluginsTranslation.h"

namespace {

#define DEFINE_TEXT(identifier) constexpr char text_##identifier[] = #identifier;
APPPLUGINS_IDENTIFIERS(DEFINE_TEXT)
#undef DEFINE_TEXT

} // namespace

// Aliases start from the target's text and not from the target's variable: that makes them
// constants too, ready for whatever table another library fills while it loads.
#define DEFINE_IDENTIFIER(identifier) const char* TR_##identifier = text_##identifier;
#define DEFINE_ALIAS(alias, target) const char* TR_##alias = text_##target;
APPPLUGINS_IDENTIFIERS(DEFINE_IDENTIFIER)
APPPLUGINS_IDENTIFIER_ALIASES(DEFINE_ALIAS)
#undef DEFINE_ALIAS
#undef DEFINE_IDENTIFIER
