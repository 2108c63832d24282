// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/// Marks what libappPlugins offers to plug-ins. Everything else in the library is hidden.
#define APPPLUGINS_EXPORT Q_DECL_EXPORT
