#!/usr/bin/env python3
# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""Checks that a library wants nothing but what a host's process brings along.

Every undefined symbol has to be defined, in the version that is wanted, by one of the libraries
named, found in the folders named, or be one of the host's own.
"""
import argparse
import pathlib
import subprocess
import sys

# The linker's hooks, looked at if they are there.
HOOKS = {"__gmon_start__", "_ITM_deregisterTMCloneTable", "_ITM_registerTMCloneTable"}


def names(which, library):
    """The dynamic symbols with their versions."""
    listing = subprocess.run(["nm", "-D", "-P", which, str(library)], check=True,
                             stdout=subprocess.PIPE, text=True).stdout
    return {line.split()[0].replace("@@", "@") for line in listing.splitlines()}


def needed(library):
    """The names of the libraries that the loader brings for it."""
    listing = subprocess.run(["readelf", "-d", str(library)], check=True, stdout=subprocess.PIPE,
                             text=True).stdout
    return {line.split("[")[1].rstrip("]") for line in listing.splitlines() if "(NEEDED)" in line}


def find(name, folders):
    """The file of a library."""
    for folder in folders:
        if (folder / name).exists():
            return folder / name
    sys.exit(f"{name} is in none of {', '.join(map(str, folders))}")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--folder", type=pathlib.Path, action="append", required=True)
    parser.add_argument("--may-need", action="append", required=True)
    parser.add_argument("--host", action="append", default=[], help="symbol of the host")
    parser.add_argument("library", type=pathlib.Path)
    options = parser.parse_args()

    wanted = needed(options.library)
    foreign = wanted - set(options.may_need)
    defined = HOOKS | set(options.host)
    for name in wanted & set(options.may_need):
        defined |= names("--defined-only", find(name, options.folder))
    undefined = names("--undefined-only", options.library)
    unknown = sorted(undefined - defined)
    unused = sorted(set(options.host) - undefined)
    for name in sorted(foreign):
        print(f"{options.library.name} needs {name}")
    for name in unknown:
        print(f"{options.library.name} wants {name}, which nothing allowed defines")
    for name in unused:
        print(f"{options.library.name} no longer wants the host's {name}")
    print(f"{options.library.name}: {len(undefined)} undefined symbols, {len(unknown)} unresolved")
    return 1 if foreign or unknown or unused or not undefined else 0


if __name__ == "__main__":
    sys.exit(main())
