// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "hostcallbacks.h"

SingleOpenFileViewFunc g_singleOpenFileView = nullptr;
SaveFileViewFunc g_saveFileView = nullptr;
MessageFunc g_criticalMessage = nullptr;
MessageFunc g_warningMessage = nullptr;
MessageFunc g_questionMessage = nullptr;
MessageFunc g_informationMessage = nullptr;
