// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"
#include "hostinterface/appinterface.h"

/// @file
/// The host's message boxes and file browsers, the only way in which any part of the toolkit or of
/// a plug-in shows a message. All are null until the host hands its table over; call sites do not
/// test them, so a host hands over a full table before it shows a window. GUI thread only.

/// Asks for a file to open; 1 when the user chose one.
APPPLUGINS_EXPORT extern SingleOpenFileViewFunc g_singleOpenFileView;
/// Asks for a name to save under; 1 when the user chose one.
APPPLUGINS_EXPORT extern SaveFileViewFunc g_saveFileView;
/// Tells of an error.
APPPLUGINS_EXPORT extern MessageFunc g_criticalMessage;
/// Warns, for example of a value outside its range.
APPPLUGINS_EXPORT extern MessageFunc g_warningMessage;
/// Asks a question; 1 for yes.
APPPLUGINS_EXPORT extern MessageFunc g_questionMessage;
/// Informs.
APPPLUGINS_EXPORT extern MessageFunc g_informationMessage;
