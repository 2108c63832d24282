// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"
#include "hostinterface/appinterface.h"

/// The host's message boxes and file browsers, the only way in which any part of the toolkit or of
/// a plug-in shows a message. All are null until the host hands its table over; call sites do not
/// test them, so a host hands over a full table before it shows a window. GUI thread only.

APPPLUGINS_EXPORT extern SingleOpenFileViewFunc g_singleOpenFileView;
APPPLUGINS_EXPORT extern SaveFileViewFunc g_saveFileView;
APPPLUGINS_EXPORT extern MessageFunc g_criticalMessage;
APPPLUGINS_EXPORT extern MessageFunc g_warningMessage;
APPPLUGINS_EXPORT extern MessageFunc g_questionMessage;
APPPLUGINS_EXPORT extern MessageFunc g_informationMessage;
