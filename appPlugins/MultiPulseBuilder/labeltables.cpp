// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#include "labeltables.h"

#include "pluginsTranslation.h"

namespace LabelTables {

const char* triggerSource[3] = {TR_STR_ID_MANUAL, TR_DBID_TRIGGER_SOURCE_EXTERNAL, TR_SEQID_TIMER};
const char* triggerSlope[2] = {TR_DBID_TRIGGER_SLOPE_POSITIVE, TR_DBID_TRIGGER_SLOPE_NEGATIVE};
const char* load[2] = {TR_STR_ID_50, TR_STR_ID_HI_Z};
const char* tableHeader[2] = {TR_STR_ID_WIDTHS, TR_STR_ID_GAPS};

} // namespace LabelTables
