// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

/// The identifiers of the editor's choice lists and of its table header, filled from the identifier
/// variables when the library is loaded. A choice's index is the value that is stored for it; the
/// choice components take the tables as they stand, hence writable pointers.
namespace LabelTables {

extern const char* m_strTriggerSourceLabels[3]; ///< manual, external, timer
extern const char* m_strTriggerSlopeLabels[2];  ///< positive, negative
extern const char* m_strLoadLabels[2];          ///< 50 ohms, high impedance
extern const char* m_strTableHeaderLabels[2];   ///< widths, gaps

} // namespace LabelTables
