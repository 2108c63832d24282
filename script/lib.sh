# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
# shellcheck shell=bash
#
# What the commands in this folder share. They source it and then stand in the checkout's root.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cd "$root"

say() {
    printf '== %s\n' "$*"
}

# fail STATUS MESSAGE: ends the command with a message that names it.
fail() {
    local status=$1
    shift
    printf '%s: %s\n' "$(basename "$0")" "$*" >&2
    exit "$status"
}

# The programs and libraries of the shipped build stand one floor higher than the others'.
binary_folder() {
    if [ "$1" = release ]; then echo build/bin; else echo "build/$1/bin"; fi
}
