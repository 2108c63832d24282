#!/bin/sh
# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
#
# trial-hook.sh ROOT: tries MPB_PACKAGE on the bare system in ROOT, as it has just been made, and
# leaves what was said in MPB_TRIAL_LOG, with "passed" as its last line if all went well.
set -eu
cp "$MPB_PACKAGE" "$1/tmp/package.deb"
cp "$(dirname "$0")/trial.sh" "$1/tmp/trial.sh"
if chroot "$1" sh /tmp/trial.sh >"$MPB_TRIAL_LOG" 2>&1; then
    echo passed >>"$MPB_TRIAL_LOG"
fi
