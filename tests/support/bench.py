# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""What the tests from outside share: the built programs, and a reader of waveform files of its own."""

import array
import os
import pathlib
import struct
import subprocess
import sys

SOURCE = pathlib.Path(os.environ["MPB_SOURCE_DIR"])
PROGRAMS = pathlib.Path(os.environ["MPB_BIN_DIR"])
EXAMPLES = SOURCE / "examples"

SECONDS = 60
"""How long anything may take before it counts as hung."""


def run(*command, **options):
    """Runs a command and returns what it printed and its exit code, without judging them."""
    return subprocess.run([str(part) for part in command], capture_output=True, text=True,
                          timeout=SECONDS, check=False, **options)


class Waveform:
    """A waveform file: volts peak-to-peak and offset into 50 ohm, and counts up to 32764."""

    HEADER = struct.Struct("<16sIIi412sdd56x")

    def __init__(self, path):
        data = pathlib.Path(path).read_bytes()
        (magic, version, self.points, _, _,
         self.amplitude, self.offset) = self.HEADER.unpack_from(data)
        assert magic == b"QRNKVX60K".ljust(16, b"\0") and version == 20050114
        self.counts = array.array("h", data[self.HEADER.size:])
        if sys.byteorder == "big":
            self.counts.byteswap()
        assert len(self.counts) == self.points

    def pulses(self, inverted=False):
        """Start and width in points of each stretch above (or below) half of the way."""
        found = []
        start = None
        for index, count in enumerate(self.counts):
            inside = count < 0 if inverted else count > 0
            if inside and start is None:
                start = index
            elif not inside and start is not None:
                found.append((start, index - start))
                start = None
        return found if start is None else found + [(start, self.points - start)]


class Generator:
    """The simulated generator as a process of its own, on a free port unless one is named."""

    def __init__(self, user_data, *options, port=0):
        command = [PROGRAMS / "kvx-instrument", "--port", str(port), "--user-data", user_data]
        self.process = subprocess.Popen([str(part) for part in [*command, *options]],
                                        stdout=subprocess.PIPE, text=True)
        line = self.process.stdout.readline()
        prefix = "listening on 127.0.0.1:"
        assert line.startswith(prefix), f"the instrument said {line!r}"
        self.port = int(line[len(prefix):])

    def __enter__(self):
        return self

    def __exit__(self, *_):
        if self.process.poll() is None:
            self.process.terminate()
        self.process.stdout.close()
        self.process.wait(SECONDS)

    def end(self):
        """Ends it as a user would and returns its exit code."""
        self.process.terminate()
        return self.process.wait(SECONDS)
