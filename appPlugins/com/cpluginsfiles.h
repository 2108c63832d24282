// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

#include <QJsonObject>

/// @file
/// Setups as JSON files (RFC 8259).

/// Reads the JSON setup file @p fileName (UTF-8 path). True, with @p jsonObj replaced, when the
/// file holds a non-empty JSON object; otherwise false, with @p jsonObj untouched. Nothing is
/// logged.
APPPLUGINS_EXPORT bool loadSetupFile(const char* fileName, QJsonObject& jsonObj);

/// Writes @p jsonObj in the indented form, members in key order, over @p fileName (UTF-8 path).
/// False when the file cannot be opened (logged as a warning) or nothing could be written; a short
/// write counts as success.
APPPLUGINS_EXPORT bool saveSetupFile(const char* fileName, const QJsonObject& jsonObj);
