// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

/// @file
/// The tables in one door: views, columns and delegates.

#include "crealtableview.h"
#include "ctableviewbase.h"
#include "realprivate.h"
#include "tabledelegates.h"
