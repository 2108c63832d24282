// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLoggingCategory>

/// "kvx.front": what the front's connections have to say to developers.
Q_DECLARE_LOGGING_CATEGORY(frontLog)
