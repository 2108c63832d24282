// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "hostinterface/appinterface.h"

#include <QString>
#include <QStringList>

/// What a host brings along: the place of the current plug-in, and callbacks that keep account.
namespace PluginHost {

/// The built plug-in's file, in the folder that the environment names.
QString pluginPath();

/// A full table; two different @p set numbers (0 and 1) have no function in common.
STRUCT_SHARED_POINTERS callbacks(int set);

/// Texts that the warning callbacks of both sets were called with; clearWarnings() forgets them.
QStringList warnings();
void clearWarnings();

} // namespace PluginHost
