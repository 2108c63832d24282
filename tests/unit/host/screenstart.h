// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

/// A member of a test that shows something: lets the platform open its screen, and tell so, before
/// the test's log begins.
struct ScreenStart
{
    ScreenStart() { QCoreApplication::processEvents(); }
};
