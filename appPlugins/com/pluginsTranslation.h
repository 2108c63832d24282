// SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
// SPDX-License-Identifier: MIT

#pragma once

#include "appplugins_export.h"

/// @file
/// String identifiers: the names of all texts that a user sees.
///
/// For each identifier there is one process-wide variable, named TR_ and the identifier. It holds
/// the identifier's text and is handed to qtTrId() when the text is shown; code passes the
/// variable, never the literal, so that an identifier can be redirected to another one at start-up.
/// The texts themselves come from the translator that the host installs. All variables have their
/// values before any code runs, aliases included. GUI thread only.

/// The identifiers that stand for a text of their own: X(identifier).
#define APPPLUGINS_IDENTIFIERS(X)                                                                  \
    /* editor: titles, parameters, table header */                                                 \
    X(STR_ID_MULTIPLE_PULSES)                                                                      \
    X(STR_ID_PULSES_NUMS)                                                                          \
    X(STR_ID_HIGH_LEVEL)                                                                           \
    X(STR_ID_LOW_LEVEL)                                                                            \
    X(STR_ID_TRIG_DELAY)                                                                           \
    X(DBID_TRIGGER_SOURCE)                                                                         \
    X(DBID_TRIGGER_SLOPE)                                                                          \
    X(SEQID_TIMER)                                                                                 \
    X(STR_ID_STAT_LOAD)                                                                            \
    X(STR_ID_WIDTHS)                                                                               \
    X(STR_ID_GAPS)                                                                                 \
    /* choices */                                                                                  \
    X(STR_ID_MANUAL)                                                                               \
    X(DBID_TRIGGER_SOURCE_EXTERNAL)                                                                \
    X(DBID_TRIGGER_SLOPE_POSITIVE)                                                                 \
    X(DBID_TRIGGER_SLOPE_NEGATIVE)                                                                 \
    X(STR_ID_50)                                                                                   \
    X(STR_ID_HI_Z)                                                                                 \
    X(DBID_ON)                                                                                     \
    X(DBID_OFF)                                                                                    \
    /* units */                                                                                    \
    X(ARBID_UNIT_S)                                                                                \
    /* actions */                                                                                  \
    X(ARBID_OPEN)                                                                                  \
    X(ARBID_CLOSE)                                                                                 \
    X(DBID_POWERON_STATE_DEFAULT_SETTING)                                                          \
    X(STR_ID_HELP)                                                                                 \
    X(STR_UTILITY_RUN)                                                                             \
    X(STR_ID_SWEEP_STOP)                                                                           \
    /* messages */                                                                                 \
    X(STR_ID_SUREQ_DEFAULT)                                                                        \
    X(DBERR_STR_ID_ILLEGALFILEFORMAT)                                                              \
    X(STR_ID_VALID_RANGE)                                                                          \
    X(ARBID_ERROR_CODE_S0207)                                                                      \
    /* what the aliases point to */                                                                \
    X(STR_ID_CANCEL)                                                                               \
    X(STR_ID_OK)                                                                                   \
    X(DBID_SWEEP_TYPE_LINEAR)                                                                      \
    X(DBID_AMPLITUDE_VPP)                                                                          \
    X(DBID_FUNCTION_FILE)                                                                          \
    X(STR_ID_SAVE)                                                                                 \
    X(STR_ID_SAVE_AS)                                                                              \
    X(ARBID_RESAMPLE_TITLE)                                                                        \
    X(STR_ID_EDIT_GRAPH_OR_TABLE_TABLE)                                                            \
    X(STR_ID_HELP_BACK)                                                                            \
    X(STR_ID_EDIT_CUT)                                                                             \
    X(STR_ID_EDIT_PASTE)                                                                           \
    X(STR_ID_INVERT)                                                                               \
    X(STR_ID_HELP_EXIT)

/// The identifiers that show the text of another one: X(alias, target).
#define APPPLUGINS_IDENTIFIER_ALIASES(X)                                                           \
    X(ARBID_CANCEL, STR_ID_CANCEL)                                                                 \
    X(ARBID_OK, STR_ID_OK)                                                                         \
    X(ARBID_RESAMPLE_LINEAR, DBID_SWEEP_TYPE_LINEAR)                                               \
    X(ARBID_INTERPOLATE_LINEAR, DBID_SWEEP_TYPE_LINEAR)                                            \
    X(ARBID_AMPLITUDE, DBID_AMPLITUDE_VPP)                                                         \
    X(ARBID_FILE, DBID_FUNCTION_FILE)                                                              \
    X(ARBID_SAVE, STR_ID_SAVE)                                                                     \
    X(ARBID_SAVEAS, STR_ID_SAVE_AS)                                                                \
    X(ARBID_RESAMPLE, ARBID_RESAMPLE_TITLE)                                                        \
    X(ARBID_TABLE, STR_ID_EDIT_GRAPH_OR_TABLE_TABLE)                                               \
    X(ARBID_BACK, STR_ID_HELP_BACK)                                                                \
    X(ARBID_CUT, STR_ID_EDIT_CUT)                                                                  \
    X(ARBID_PASTE, STR_ID_EDIT_PASTE)                                                              \
    X(ARBID_INVERT, STR_ID_INVERT)                                                                 \
    X(ARBID_EXIT, STR_ID_HELP_EXIT)

/// @cond
#define APPPLUGINS_DECLARE_IDENTIFIER(identifier)                                                  \
    APPPLUGINS_EXPORT extern const char* TR_##identifier;
#define APPPLUGINS_DECLARE_ALIAS(alias, target) APPPLUGINS_EXPORT extern const char* TR_##alias;
APPPLUGINS_IDENTIFIERS(APPPLUGINS_DECLARE_IDENTIFIER)
APPPLUGINS_IDENTIFIER_ALIASES(APPPLUGINS_DECLARE_ALIAS)
#undef APPPLUGINS_DECLARE_ALIAS
#undef APPPLUGINS_DECLARE_IDENTIFIER
/// @endcond
