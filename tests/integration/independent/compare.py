#!/usr/bin/python3
# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""Holds the program's waveform files and Run commands against the second calculation.

Draws random setup documents, has mpwv render all of them in one call and list the commands of
each, and compares every byte. Exit code 1 when any differ.
"""

import argparse
import collections
import json
import os
import pathlib
import random
import struct
import subprocess
import sys
import tempfile

import documents
from independent import run_commands
from trains import Train, parse_document
from waveforms import waveform_file

FIELDS = (
    ("magic", 0, 16), ("version", 16, 20), ("points", 20, 24), ("hasThumbnail", 24, 28),
    ("thumbnail", 28, 440), ("ampValue", 440, 448), ("offsetValue", 448, 456),
    ("reserved bytes", 456, 512))
BATCH = 250
Case = collections.namedtuple("Case", "name kind raw document")


def parse_options():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--count", type=int, default=60, help="documents to try (default 60)")
    parser.add_argument("--seed", type=int, default=1, help="start of the random numbers")
    parser.add_argument("--mpwv", default=os.path.join(os.environ.get("MPB_BIN_DIR", ""), "mpwv"))
    parser.add_argument("--keep", help="folder that keeps the documents which differ")
    parser.add_argument("--show", type=int, default=5, help="differences to explain (default 5)")
    return parser.parse_args()


# --- telling where two results part ------------------------------------------------------------


def first_difference(one, other):
    for index, (left, right) in enumerate(zip(one, other)):
        if left != right:
            return index
    return min(len(one), len(other))


def points_in(raw):
    return struct.unpack_from("<I", raw, 20)[0] if len(raw) >= 24 else None


def explain_header(mine, theirs, offset):
    name, begin, end = next(field for field in FIELDS if field[1] <= offset < field[2])
    if name == "thumbnail":
        begin += (offset - begin) // 2 * 2
        column = (begin - 28) // 2
        return f"thumbnail column {column}: {mine[begin:begin + 2].hex(' ')}, mpwv has " \
               f"{theirs[begin:begin + 2].hex(' ')}"
    form = {"points": "<I", "ampValue": "<d", "offsetValue": "<d"}.get(name)
    if form and len(theirs) >= end:
        left, right = (struct.unpack(form, raw[begin:end])[0] for raw in (mine, theirs))
        return f"{name}: {left!r}, mpwv has {right!r}"
    return f"{name}: {mine[begin:end].hex(' ')}, mpwv has {theirs[begin:end].hex(' ')}"


def explain_file(mine, theirs):
    """Where a waveform file departs from the calculated one, in words; None where it does not."""
    if mine == theirs:
        return None
    offset = first_difference(mine, theirs)
    if offset >= min(len(mine), len(theirs)):
        return f"length {len(mine)}, mpwv has {len(theirs)}"
    if offset < 512:
        return explain_header(mine, theirs, offset)
    begin = offset - offset % 2
    left, right = (struct.unpack_from("<h", raw, begin)[0] for raw in (mine, theirs))
    differing = sum(a != b for a, b in zip(mine[512:], theirs[512:]))
    return f"sample {(begin - 512) // 2} of {points_in(mine)}: {left}, mpwv has {right}" \
           f" ({differing} bytes of samples differ)"


def explain_commands(mine, theirs):
    if mine == theirs:
        return None
    left, right = mine.split(b"\n"), theirs.split(b"\n")
    index = first_difference(left, right)
    pick = [side[index] if index < len(side) else b"(nothing)" for side in (left, right)]
    return f"command {index + 1}: {pick[0]!r}, mpwv has {pick[1]!r}"


# --- running the program -----------------------------------------------------------------------


def run(options, *arguments, folder):
    return subprocess.run(
        [options.mpwv, *arguments], cwd=folder, stdin=subprocess.DEVNULL, capture_output=True,
        check=False)


def draw_cases(rng, numbers, folder):
    cases = []
    for number in numbers:
        document, kind = documents.random_document(rng, number)
        name = f"{number:05d}.json"
        # Both ways to write a character are met in files.
        text = json.dumps(document)
        if rng.random() < 0.5 and "\\ud8" not in text:
            text = json.dumps(document, ensure_ascii=False)
        raw = text.encode("utf-8")
        (folder / name).write_bytes(raw)
        cases.append(Case(name, kind, raw, parse_document(raw)))
    return cases


def render_all(options, folder, names, *load):
    outputs = folder / ("rendered" + "".join(load))
    outputs.mkdir()
    result = run(options, "render", *names, "-o", str(outputs), *load, folder=folder)
    if result.returncode != 0:
        sys.exit(f"mpwv render ended with {result.returncode}: {result.stderr[-2000:]!r}")
    return outputs


def read_output(outputs, name):
    path = outputs / (pathlib.Path(name).stem + ".mpwv")
    return path.read_bytes() if path.exists() else b""


def differences(options, folder, case, rendered, other_load):
    """Each way in which the program's results for a document are not the calculated ones."""
    train = Train(case.document)
    yield explain_file(waveform_file(train), read_output(rendered, case.name))
    swapped = Train(case.document, high_z=True)
    if other_load:
        yield explain_file(waveform_file(swapped), read_output(other_load, case.name))
    listed = run(options, "commands", case.name, "--raw", folder=folder)
    yield explain_commands(run_commands(train), listed.stdout)
    if listed.returncode != 0:
        yield f"mpwv commands ended with {listed.returncode}: {listed.stderr[-300:]!r}"


def refused_differences(options, folder):
    """Documents that are none have to be refused, with nothing written."""
    for number, raw in enumerate(documents.REFUSED):
        source = folder / f"refused{number}.json"
        target = folder / f"refused{number}.mpwv"
        source.write_bytes(raw)
        result = run(options, "render", source.name, "-o", target.name, folder=folder)
        if result.returncode != 3 or target.exists() or not result.stderr:
            yield f"{raw!r} should be refused: exit code {result.returncode}, " \
                  f"{'a file' if target.exists() else 'no file'}, said {result.stderr!r}"


def keep_document(options, case):
    if options.keep:
        os.makedirs(options.keep, exist_ok=True)
        (pathlib.Path(options.keep) / case.name).write_bytes(case.raw)


def compare_batch(options, rng, numbers, folder):
    cases = draw_cases(rng, numbers, folder)
    rendered = render_all(options, folder, [case.name for case in cases])
    # A quarter is enough for the load given on the command line, which changes two numbers.
    again = {case.name for case in cases[::4]}
    other_load = render_all(options, folder, sorted(again), "--load", "hi-z")
    for case in cases:
        reasons = list(filter(None, differences(
            options, folder, case, rendered, other_load if case.name in again else None)))
        if reasons:
            keep_document(options, case)
        yield from (f"{case.name} ({case.kind}): {reason}" for reason in reasons)


def compare(options):
    """All differences. Batches keep the space that the waveform files take within bounds."""
    rng = random.Random(options.seed)
    with tempfile.TemporaryDirectory() as folder:
        yield from refused_differences(options, pathlib.Path(folder))
    for begin in range(0, options.count, BATCH):
        numbers = range(begin, min(begin + BATCH, options.count))
        with tempfile.TemporaryDirectory() as folder:
            yield from compare_batch(options, rng, numbers, pathlib.Path(folder))


def main():
    options = parse_options()
    if not os.access(options.mpwv, os.X_OK):
        sys.exit(f"no program {options.mpwv}")
    found = 0
    for line in compare(options):
        found += 1
        if found <= options.show:
            print(line, flush=True)
    print(f"{options.count} documents from seed {options.seed}, {found} differences")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
