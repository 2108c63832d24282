// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "labeltables.h"

#include "pluginsTranslation.h"

namespace LabelTables {

const char* m_strTriggerSourceLabels[3] = {TR_STR_ID_MANUAL, TR_DBID_TRIGGER_SOURCE_EXTERNAL,
                                           TR_SEQID_TIMER};
const char* m_strTriggerSlopeLabels[2] = {TR_DBID_TRIGGER_SLOPE_POSITIVE,
                                          TR_DBID_TRIGGER_SLOPE_NEGATIVE};
const char* m_strLoadLabels[2] = {TR_STR_ID_50, TR_STR_ID_HI_Z};
const char* m_strTableHeaderLabels[2] = {TR_STR_ID_WIDTHS, TR_STR_ID_GAPS};

} // namespace LabelTables
