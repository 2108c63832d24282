// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

/// @file
/// The family of parameter components in one door.

#include "cplugincombcomponentbase.h"
#include "plaincombcomponents.h"
#include "realcombcomponent.h"
#include "selectioncombcomponents.h"
