// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "frontlog.h"

Q_LOGGING_CATEGORY(frontLog, "kvx.front", QtInfoMsg)
