#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""Holds the program's results for the setups of a folder against results kept beside them.

NAME.json is a setup and NAME.commands the bytes that Run sends for it. Its waveform file is kept
as NAME.mpwv, or as the SHA-256 of its bytes in sums.txt where that saves space. All of them come
from the second calculation; --write makes them anew.
"""

import argparse
import hashlib
import os
import pathlib
import subprocess
import sys

from compare import explain_commands, explain_file
from independent import run_commands
from trains import Train, parse_document
from waveforms import waveform_file

# Whole files for the shapes that one may want to look at; the others only have a sum.
KEPT_WHOLE = ("default", "double-pulse", "edges", "negative-slope", "thirty-pulses", "zero-period")


def parse_options():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument(
        "folder", nargs="?", type=pathlib.Path,
        default=pathlib.Path(os.environ.get("MPB_TEST_DATA", ".")) / "golden")
    parser.add_argument("--mpwv", default=os.path.join(os.environ.get("MPB_BIN_DIR", ""), "mpwv"))
    parser.add_argument("--write", action="store_true", help="make the results anew")
    return parser.parse_args()


def digest(raw):
    return hashlib.sha256(raw).hexdigest()


def calculated(setup):
    train = Train(parse_document(setup.read_bytes()))
    return waveform_file(train), run_commands(train)


def write_results(folder):
    lines = []
    for setup in sorted(folder.glob("*.json")):
        waveform, commands = calculated(setup)
        setup.with_suffix(".commands").write_bytes(commands)
        if setup.stem in KEPT_WHOLE:
            setup.with_suffix(".mpwv").write_bytes(waveform)
        else:
            lines.append(f"{digest(waveform)}  {setup.stem}.mpwv\n")
    (folder / "sums.txt").write_text("".join(lines), encoding="ascii")


def read_sums(folder):
    lines = (folder / "sums.txt").read_text(encoding="ascii").splitlines()
    return {name: total for total, name in (line.split("  ") for line in lines)}


def output_of(options, *arguments):
    result = subprocess.run(
        [options.mpwv, *arguments], stdin=subprocess.DEVNULL, capture_output=True, check=False)
    if result.returncode != 0:
        sys.exit(f"mpwv {arguments} ended with {result.returncode}: {result.stderr!r}")
    return result.stdout


def explain_sum(expected, waveform):
    found = digest(waveform)
    return None if found == expected else f"sum of the waveform file: {expected}, mpwv has {found}"


def differences(options, setup, sums):
    waveform = output_of(options, "render", str(setup), "-o", "-")
    kept = setup.with_suffix(".mpwv")
    if kept.name in sums:
        yield explain_sum(sums[kept.name], waveform)
    else:
        yield explain_file(kept.read_bytes(), waveform)
    commands = output_of(options, "commands", str(setup), "--raw")
    yield explain_commands(setup.with_suffix(".commands").read_bytes(), commands)


def main():
    options = parse_options()
    if options.write:
        write_results(options.folder)
        return 0
    sums = read_sums(options.folder)
    setups = sorted(options.folder.glob("*.json"))
    if not setups:
        sys.exit(f"no setups in {options.folder}")
    found = [
        f"{setup.name}: {reason}"
        for setup in setups for reason in differences(options, setup, sums) if reason]
    print("\n".join(found + [f"{len(setups)} setups, {len(found)} differences"]))
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
