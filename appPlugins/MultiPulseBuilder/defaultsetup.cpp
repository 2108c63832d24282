// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "defaultsetup.h"

QJsonObject g_jsonDefaultSetupValues;
