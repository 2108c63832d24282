#!/bin/sh
# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
#
# Installs the package /tmp/package.deb on the system that it runs on, uses it as its first user
# would, removes it, and looks at what is left. script/package runs it on a bare system.
set -eu
export DEBIAN_FRONTEND=noninteractive HOME=/root

# The package's files; those that the user made stay.
ours() {
    find / -xdev -path /proc -prune -o -path /tmp -prune -o \
        -path /mnt/user-data -prune -o \
        \( -name '*multi-pulse*' -o -name 'kvx-*' -o -name 'mpwv*' \) -print
}

if [ -n "$(ours)" ]; then
    echo "this system is not bare" >&2
    exit 1
fi
apt-get -q install --yes --no-install-recommends /tmp/package.deb >/tmp/apt.log 2>&1 ||
    { tail -n 20 /tmp/apt.log; exit 1; }

mkdir /tmp/trial
cd /tmp/trial
mpwv timing /usr/share/multi-pulse-builder/examples/double-pulse.json
kvx-desk --headless --output tour
test -s tour/channel1.svg
for page in kvx-desk kvx-host kvx-panel kvx-instrument kvx-scenario mpwv; do
    "$page" --help >/dev/null
    dpkg -L multi-pulse-builder | grep -q "/man1/$page\.1"
done
test -s /usr/share/applications/multi-pulse-builder.desktop

dpkg --purge multi-pulse-builder
if [ -n "$(ours)" ]; then
    echo "left behind:"
    ours
    exit 1
fi
