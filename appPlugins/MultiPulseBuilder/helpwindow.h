// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

class QString;
class QWidget;

/// A window without a parent that shows the page @p path and deletes itself when it is closed. It
/// is not shown yet.
QWidget* createHelpWindow(const QString& path);
