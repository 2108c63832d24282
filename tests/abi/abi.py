#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""Compares what crosses to hosts, other plug-ins and files with its stored description.

Types are described by abidw and compared by abidiff, the libraries' exported symbols line by line,
those of data with their sizes. Both tools read a library of any processor on any machine.
"""
import argparse
import difflib
import pathlib
import subprocess
import sys
import tempfile

DESCRIBE = ["abidw", "--no-corpus-path", "--no-show-locs", "--no-comp-dir-path", "--no-elf-needed",
            "--no-parameter-names", "--no-write-default-sizes", "--drop-undefined-syms",
            "--type-id-style", "hash", "--exported-interfaces-only"]
# Whether an inline function has a symbol of its own is the compiler's choice.
INLINE_FUNCTION = "W"
# Marks of the linker.
SECTION_ENDS = {"__bss_start", "_edata", "_end"}
FUNCTION = "T"


def described(module, headers):
    """The module's types as abidw's text; those of other headers are names alone."""
    folders = [word for folder in headers for word in ("--headers-dir", folder)]
    command = DESCRIBE + ["--drop-private-types"] + folders + [module]
    return subprocess.run(command, check=True, stdout=subprocess.PIPE, text=True).stdout


def symbols(library):
    """The exported symbols, sorted: kind, name and, for data, size in bytes."""
    listing = subprocess.run(["nm", "-D", "-P", "--defined-only", library], check=True,
                             stdout=subprocess.PIPE, text=True).stdout
    lines = []
    for line in listing.splitlines():
        name, kind, *numbers = line.split()
        if kind == INLINE_FUNCTION or name in SECTION_ENDS:
            continue
        size = int(numbers[1], 16) if kind != FUNCTION and len(numbers) == 2 else None
        lines.append(f"{kind} {name}" if size is None else f"{kind} {name} {size}")
    return "\n".join(sorted(lines)) + "\n"


def same_types(stored, module, headers):
    """True if abidiff finds no difference; else it has told them.

    It compares two descriptions: told which headers count, it would hide differences in them.
    """
    with tempfile.NamedTemporaryFile("w", suffix=".abi") as present:
        present.write(described(module, headers))
        present.flush()
        command = ["abidiff", "--harmless", "--no-show-locs", stored, present.name]
        return subprocess.run(command, check=False).returncode == 0


def same_symbols(stored, library):
    """True if the library exports what is stored; else the difference is printed."""
    difference = list(difflib.unified_diff(
        stored.read_text().splitlines(), symbols(library).splitlines(),
        str(stored.name), library.name, lineterm="", n=0))
    print("\n".join(difference), end="\n" if difference else "")
    return not difference


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--update", action="store_true", help="store what is there now")
    parser.add_argument("--header-dir", action="append", default=[])
    parser.add_argument("--types", type=pathlib.Path, required=True)
    parser.add_argument("--stored", type=pathlib.Path, required=True)
    parser.add_argument("libraries", type=pathlib.Path, nargs="+")
    options = parser.parse_args()

    types = options.stored / "crossing.abi"
    lists = {library: options.stored / f"{library.name}.symbols" for library in options.libraries}
    if options.update:
        options.stored.mkdir(parents=True, exist_ok=True)
        types.write_text(described(options.types, options.header_dir))
        for library, stored in lists.items():
            stored.write_text(symbols(library))
        return 0
    same = [same_types(types, options.types, options.header_dir)]
    same += [same_symbols(stored, library) for library, stored in lists.items()]
    if all(same):
        return 0
    print(f"differs from {options.stored}; if it is meant: script/abi --update", file=sys.stderr)
    return 1


if __name__ == "__main__":
    sys.exit(main())
