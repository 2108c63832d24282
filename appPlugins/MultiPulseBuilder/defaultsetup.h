// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonObject>

/// The default setup document, read again each time the host shows the plug-in; empty until a
/// default setup file has been read or made.
extern QJsonObject g_jsonDefaultSetupValues;

/// The shared default-setup file of all application plug-ins.
const char DefaultSetupPath[] = "/mnt/user-data/appPluginsDefaultSetup.json";
