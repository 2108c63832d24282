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

# package_sources RELEASE FOLDER: writes where this machine fetches Debian's packages of a release to
# FOLDER/sources, and how (a proxy, for example) to FOLDER/apt.conf.
package_sources() {
    # shellcheck disable=SC2016 # apt-get fills these in
    apt-get indextargets --format 'deb $(REPO_URI) $(RELEASE) $(COMPONENT)' \
        'Created-By: Packages' 'Origin: Debian' "Release: $1" >"$2/sources"
    [ -s "$2/sources" ] ||
        fail 1 "apt has no package list of Debian's $1 here; apt-get update fetches it"
    apt-config dump | grep '^Acquire::' | grep -v '^Acquire::IndexTargets' >"$2/apt.conf" || true
}
