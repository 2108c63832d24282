#!/bin/sh
# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
#
# Installs the multi-pulse builder on the instrument, from the folder that it stands in. It wants no
# more of the instrument than a POSIX shell and BusyBox's tools.
#
# Each installation keeps a record: what it replaces, and which files and folders it adds. The record
# is whole before the first file is touched, so an installation that ends anywhere can be taken back.
set -eu
export LC_ALL=C

image=$(cd "$(dirname "$0")" && pwd)
app=/mnt/user-data/.app
root=
plugins=$app/plugins
translations=$app/translations
qt_folder=
action=install
dry_run=
new_suffix=.multi-pulse-new

usage() {
    cat <<TEXT
usage: install.sh [OPTION ...]

Copies the libraries, the texts and the content of $app to the instrument. It first checks that the
instrument can run them, that they are undamaged and that there is room. Setups and everything else
below /mnt/user-data stay as they are. The host has to be ended before and started again after it.

  --plugins DIR       where the host looks for plug-ins
                      (default: $plugins)
  --translations DIR  where the host looks for texts
                      (default: $translations)
  --root DIR          the instrument's file system is mounted there (default: this is the instrument)
  --qt DIR            where the instrument has its Qt libraries, if not in a usual folder
  --dry-run           check all, say what would be copied, and change nothing
  --undo              take the last installation back: what it replaced returns, what it added goes
  --help              show this text
TEXT
}

say() {
    printf '%s\n' "$*"
}

fail() {
    printf 'install.sh: %s\n' "$*" >&2
    exit 1
}

refuse_usage() {
    printf 'install.sh: %s\n' "$*" >&2
    usage >&2
    exit 2
}

# An absolute folder without a final slash.
folder_of() {
    case $2 in
        /*) ;;
        *) refuse_usage "$1 wants a folder that begins with /: $2" ;;
    esac
    printf '%s\n' "${2%/}"
}

while [ $# -gt 0 ]; do
    case $1 in
        --plugins | --translations | --root | --qt)
            [ $# -ge 2 ] || refuse_usage "$1 wants a folder"
            folder=$(folder_of "$1" "$2")
            case $1 in
                --plugins) plugins=$folder ;;
                --translations) translations=$folder ;;
                --root) root=$folder ;;
                --qt) qt_folder=$folder ;;
            esac
            shift 2 ;;
        --dry-run) dry_run=yes; shift ;;
        --undo) action=undo; shift ;;
        --help) usage; exit 0 ;;
        *) refuse_usage "unknown option $1" ;;
    esac
done
[ -z "$root" ] || [ -d "$root" ] || fail "there is no folder $root"
records=$root$app/.multi-pulse-builder

# --- What the instrument has ---------------------------------------------------------------------

# bytes FILE OFFSET COUNT: in hexadecimal.
bytes() {
    od -An -v -tx1 -j "$2" -N "$3" "$1" | tr -d ' \n'
}

# The program header of a library says what it is for: 32 bits, little-endian, ARM, and floating-point
# numbers handed over in the processor's registers for them.
is_hard_float_arm() {
    [ "$(bytes "$1" 0 6)" = 7f454c460101 ] && [ "$(bytes "$1" 18 2)" = 2800 ] &&
        case $(bytes "$1" 37 1) in [4567cdef]? | ?[4567cdef]) true ;; *) false ;; esac
}

# The first usual folder that has Qt's core library.
find_qt() {
    for qt in "$qt_folder" /usr/lib /lib /usr/lib/arm-linux-gnueabihf /usr/local/lib \
        /usr/local/qt5/lib /usr/local/Qt5/lib /opt/qt5/lib /usr/qt5/lib /usr/lib/qt5/lib; do
        if [ -n "$qt" ] && [ -e "$root$qt/libQt5Core.so.5" ]; then
            qt=$root$qt
            return
        fi
    done
    fail "found no libQt5Core.so.5; --qt tells where the instrument has its Qt libraries"
}

# The version is in the name of the file that the library's short name leads to.
check_qt_version() {
    core=
    for candidate in "$qt"/libQt5Core.so.5.*.*; do
        if [ -f "$candidate" ]; then core=$candidate; fi
    done
    [ -n "$core" ] || fail "cannot tell the version of $qt/libQt5Core.so.5"
    version=${core##*/libQt5Core.so.}
    minor=${version#5.}
    minor=${minor%%.*}
    case $minor in
        '' | *[!0-9]*) fail "cannot tell the version of $core" ;;
    esac
    [ "$minor" -ge 15 ] || fail "the instrument has Qt $version; 5.15 or newer is needed"
    for name in Gui Widgets Network; do
        [ -e "$qt/libQt5$name.so.5" ] || fail "the instrument has no $qt/libQt5$name.so.5"
    done
}

check_instrument() {
    if [ -z "$root" ]; then
        case $(uname -m) in
            armv7* | armv8* | aarch64) ;;
            *) fail "this machine is $(uname -m); the libraries are for armv7l with hard float" ;;
        esac
    fi
    find_qt
    check_qt_version
    is_hard_float_arm "$core" ||
        fail "$core is not for 32-bit ARM with hard float, as the libraries are"
}

check_image() {
    { [ -s "$image/SHA256SUMS" ] && [ -s "$image/FILES" ]; } ||
        fail "$image is not an unpacked archive: it lacks SHA256SUMS or FILES"
    (cd "$image" && sha256sum -c SHA256SUMS >/dev/null 2>&1) ||
        fail "$image is damaged: a file is missing or differs from SHA256SUMS; nothing was changed"
}

# --- What is to be copied ------------------------------------------------------------------------

# target NAME: where a file of the archive goes; nothing if it stays there.
target() {
    case $1 in
        lib/*) printf '%s\n' "$root$plugins/${1#lib/}" ;;
        translations/*) printf '%s\n' "$root$translations/${1#translations/}" ;;
        app/*) printf '%s\n' "$root$app/${1#app/}" ;;
    esac
}

# Sets $wanted to one name a line, without those that are there already.
find_wanted() {
    wanted=
    kib=0
    while read -r size name; do
        to=$(target "$name")
        [ -n "$to" ] || continue
        [ ! -d "$to" ] || fail "$to is a folder; a file is to go there"
        if [ ! -L "$to" ] && [ -e "$to" ] && cmp -s "$image/$name" "$to"; then continue; fi
        wanted="$wanted$name
"
        kib=$((kib + size / 1024 + 8))
        if [ -e "$to" ]; then kib=$((kib + $(wc -c <"$to") / 1024 + 8)); fi
    done <"$image/FILES"
}

existing_parent() {
    parent=$1
    while [ ! -d "$parent" ]; do parent=$(dirname "$parent"); done
    printf '%s\n' "$parent"
}

# All of it has to fit in each: they may be one file system.
check_room() {
    for place in "$root$app" "$root$plugins" "$root$translations"; do
        place=$(existing_parent "$place")
        [ -w "$place" ] || fail "$place cannot be written"
        free=$(df -Pk "$place" | awk 'NR == 2 { print $4 }')
        [ "$free" -ge "$kib" ] ||
            fail "$place has room for $free KiB; $kib KiB are needed with what is kept for --undo"
    done
}

# --- The record ----------------------------------------------------------------------------------
#
# $records/N holds the N-th installation: the file "list" with a line "add FILE", "folder FOLDER" or
# "replace M FILE" for each, and what was replaced as the file M. While the record is written it is
# called "making", and nothing else has been touched; while the files are copied it holds a file
# "unfinished".

last_record() {
    last=0
    while [ -d "$records/$((last + 1))" ]; do last=$((last + 1)); done
}

# Makes a folder and those above it, and notes each.
record_folder() {
    [ -n "$1" ] && [ ! -d "$1" ] || return 0
    record_folder "$(dirname "$1")"
    case "
$(cat "$making/list")
" in
        *"
folder $1
"*) ;;
        *) printf 'folder %s\n' "$1" >>"$making/list" ;;
    esac
}

write_record() {
    making=$records/making
    rm -rf "$making"
    first_folder=$(existing_parent "$records")
    mkdir -p "$making"
    # The folders of the record itself are there by now.
    above=$records
    while [ "$above" != "$first_folder" ]; do
        printf 'folder %s\n' "$above"
        above=$(dirname "$above")
    done | sed -n '1!G;h;$p' >"$making/list"
    number=0
    printf '%s' "$wanted" | while read -r name; do
        to=$(target "$name")
        record_folder "$(dirname "$to")"
        if [ -e "$to" ] || [ -L "$to" ]; then
            number=$((number + 1))
            cp -a "$to" "$making/$number"
            printf 'replace %s %s\n' "$number" "$to" >>"$making/list"
        else
            printf 'add %s\n' "$to" >>"$making/list"
        fi
    done
    : >"$making/unfinished"
    sync
    mv "$making" "$records/$((last + 1))"
}

# drop_record RECORD: forgets it and removes the folders that were made for it. A folder that others
# use by now stays.
drop_record() {
    folders=$(sed -n '1!G;h;$p' "$1/list" 2>/dev/null | sed -n 's/^folder //p')
    # Under this name it is no record any more.
    rm -rf "$records/done"
    mv "$1" "$records/done"
    rm -rf "$records/done"
    printf '%s\n' "$folders" | while read -r folder; do
        if [ -n "$folder" ]; then rmdir "$folder" 2>/dev/null || true; fi
    done
}

put_back() {
    rm -f "$2$new_suffix" && cp -a "$1" "$2$new_suffix" && mv -f "$2$new_suffix" "$2"
}

# take_back RECORD: may be repeated, and keeps the record until all is back.
take_back() {
    while read -r what rest; do
        case $what in
            add) rm -f "$rest" "$rest$new_suffix" || fail "cannot remove $rest" ;;
            replace)
                put_back "$1/${rest%% *}" "${rest#* }" ||
                    fail "cannot put back ${rest#* }; once it can be written, use --undo" ;;
        esac
    done <"$1/list"
    sync
    drop_record "$1"
}

# True if there was an installation that did not end; it is taken back then.
take_back_unfinished() {
    rm -rf "$records/done"
    if [ -d "$records/making" ]; then
        drop_record "$records/making"
        return 0
    fi
    last_record
    [ -e "$records/$last/unfinished" ] || return 1
    take_back "$records/$last"
}

# --- What is done --------------------------------------------------------------------------------

copy_files() {
    sed -n 's/^folder //p' "$records/$((last + 1))/list" | while read -r folder; do
        mkdir -p "$folder"
    done
    printf '%s' "$wanted" | while read -r name; do
        to=$(target "$name")
        cp "$image/$name" "$to$new_suffix"
        chmod 644 "$to$new_suffix"
        mv -f "$to$new_suffix" "$to"
    done
    sync
}

# Whatever ends the installation early takes back what it did.
end_early() {
    trap - EXIT HUP INT TERM
    printf 'install.sh: stopped before the end; taking back what was done\n' >&2
    take_back_unfinished || true
    exit 1
}

do_install() {
    check_instrument
    check_image
    find_wanted
    if [ -z "$wanted" ]; then
        say "all is installed already"
        return
    fi
    check_room
    if [ -n "$dry_run" ]; then
        printf '%s' "$wanted" | while read -r name; do
            to=$(target "$name")
            if [ -e "$to" ]; then say "would replace $to"; else say "would add $to"; fi
        done
        return
    fi
    last_record
    trap end_early EXIT
    trap 'exit 1' HUP INT TERM
    write_record
    copy_files
    rm "$records/$((last + 1))/unfinished"
    trap - EXIT HUP INT TERM
    say "installed $(printf '%s' "$wanted" | wc -l | tr -d ' ') files; install.sh --undo takes them back"
    say "the host loads $plugins/libMultiPulseBuilder.so"
}

do_undo() {
    last_record
    [ "$last" -gt 0 ] || fail "there is no installation to take back"
    if [ -n "$dry_run" ]; then
        sed -n -e 's/^add /would remove /p' -e 's/^replace [0-9]* /would put back /p' \
            "$records/$last/list"
        return
    fi
    take_back "$records/$last"
    say "took the last installation back"
}

# An installation that lost its power half-way is taken back before anything else.
if [ -z "$dry_run" ] && [ -d "$records" ] && take_back_unfinished; then
    say "took back an installation that did not end"
    if [ "$action" = undo ]; then exit 0; fi
fi
case $action in
    install) do_install ;;
    undo) do_undo ;;
esac
