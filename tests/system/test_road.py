# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""The whole road that script/play shows: setup, waveform file, command server, played pulses, plot.

What the programs say about the pulses is held against the example's own numbers and against a reading
of the waveform file that shares no code with them.
"""

import json
import os
import pathlib
import re
import socket
import sys
import tempfile
import unittest
import xml.etree.ElementTree

sys.path.insert(0, os.environ["MPB_SOURCE_DIR"] + "/tests/support")
import bench  # noqa: E402

USER_DATA = pathlib.Path("/mnt/user-data")
BUDGET = 131072
"""Points that a train is spread over at most."""
PREFIXES = {"n": 1e-9, "u": 1e-6, "m": 1e-3}


def asked_pulses(document):
    """Start and width of every pulse that a setup asks for, and the period, in seconds."""
    setup = document["multiple pulses"]
    at = setup["trigger delay"]["value"]
    pulses = []
    for row in setup["width/gap"]:
        width, gap = (float(row[cell][:-1]) * PREFIXES[row[cell][-1]] for cell in ("width", "gap"))
        pulses.append((at, width))
        at += width + gap
    return pulses, at


class RoadTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.output = pathlib.Path(folder.name) / "with blanks in it"

    def tearDown(self):
        self.assertEqual(list(USER_DATA.iterdir()), [], "files are left")
        with socket.socket() as client:
            self.assertNotEqual(client.connect_ex(("127.0.0.1", 30000)), 0, "somebody listens")

    def run_road(self, *options):
        return bench.run(bench.SOURCE / "script/play", "--no-build", "--output", self.output,
                         *options, env={**os.environ, "MPB_IN_WORLD": "1"})

    def check_road(self, name, *options):
        done = self.run_road("--setup", bench.EXAMPLES / name, *options)
        self.assertEqual(done.returncode, 0, done.stdout + done.stderr)
        document = json.loads((bench.EXAMPLES / name).read_text())
        self.check_waveform(document)
        self.check_account(document, done.stdout)
        self.check_plot()
        return document

    def check_waveform(self, document):
        """The file has the pulses that were asked for, as far as whole points allow."""
        asked, period = asked_pulses(document)
        waveform = bench.Waveform(self.output / "run.mpwv")
        self.inverted = document["multiple pulses"]["trigger slope"] != 0
        self.spacing = period / waveform.points
        self.played = waveform.pulses(self.inverted)
        self.assertEqual(len(self.played), len(asked))
        # Each time is rounded down to whole points, and what is lost that way stretches the rest.
        self.assertLess(waveform.points, BUDGET + 1)
        stretch = (BUDGET - waveform.points) / period
        for index, (found, wanted) in enumerate(zip(self.played, asked)):
            start, width = (points * self.spacing for points in found)
            self.assertAlmostEqual(start, wanted[0], delta=self.spacing * (
                4 * index + 2 + stretch * wanted[0]))
            self.assertAlmostEqual(width, wanted[1], delta=self.spacing * (
                2 + stretch * wanted[1]))

    def check_account(self, document, printed):
        """The account tells the setup's times, and what was played as the file has it."""
        account = (self.output / "account.txt").read_text()
        self.assertIn(account, printed)
        self.assertIn("\nfile: played as it is, to one sample\n", account)
        rows = [[float(cell) for cell in line.split()]
                for line in account.splitlines() if re.match(r"\d+ +[\d.]+ ", line)]
        asked, _ = asked_pulses(document)
        self.assertEqual(len(rows), len(asked))
        for number, (row, wanted, found) in enumerate(zip(rows, asked, self.played), 1):
            self.assertEqual(row[0], number)
            self.assertAlmostEqual(row[1], wanted[0] * 1e6, delta=1e-4)
            self.assertAlmostEqual(row[2], found[0] * self.spacing * 1e6, delta=1e-4)
            self.assertAlmostEqual(row[5], wanted[1] * 1e6, delta=1e-4)
            self.assertAlmostEqual(row[6], found[1] * self.spacing * 1e6, delta=1e-4)
        self.check_levels(document, account)

    def check_levels(self, document, account):
        voltage = document["multiple pulses"]["voltage"]
        levels = re.search(r"^volts: (\S+) to (\S+)$", account, re.MULTILINE)
        for text, side in zip(levels.groups(), (-0.5, 0.5)):
            self.assertAlmostEqual(float(text), voltage["offset"] + side * voltage["amplitude"],
                                   delta=1e-3)

    def check_plot(self):
        root = xml.etree.ElementTree.parse(self.output / "channel1.svg").getroot()
        self.assertTrue(root.tag.endswith("svg"))
        drawn = [element.tag for element in root.iter()]
        self.assertTrue(any(tag.endswith(("path", "polyline")) for tag in drawn))

    def commands(self):
        """What the instrument was sent, in order, bytes escaped."""
        lines = (self.output / "scpi.log").read_text().splitlines()
        return [line.split(" ", 3)[3] for line in lines if re.match(r"[\d.]+ \d+ > ", line)]

    def test_double_pulse(self):
        self.check_road("double-pulse.json")
        account = (self.output / "account.txt").read_text()
        self.assertIn("\nsetup: agreeing to one sample\n", account)
        self.assertEqual(self.commands(), [
            r"OUTP1 OFF \n", r"OUTP2 OFF \n", r"*CLS \n", r"*RST \n", r"source1:BURSt  ON \n",
            r"source1:function emem \n", r'function:EFile "M:/run.mpwv"\n',
            r"function:Shape EFILe \n", r"source1:burst:ncycles 1 \n",
            r"source1:burst:TDELay 0\n", r"OUTput1:IMPedance 10000\n",
            r"SOURce1:FREQuency:FIXed 31250\n", r"TRIGger:SOURce EXTERNAL \n",
            r"TRIGger:SLOPE POSitive \n", r"OUTP1 ON \n", r"*IDN? \n",
            *self.commands()[16:-3],
            r"OUTP1 OFF \n", r"*RST \n", r"*IDN? \n"])
        self.assertIn(r"*TRG\n", self.commands()[16:-3])

    def test_negative_slope_inverts(self):
        self.check_road("active-low.json")
        self.assertTrue(self.inverted)
        self.assertIn(r"TRIGger:SLOPE NEGative \n", self.commands())

    def test_external_trigger_into_50_ohm(self):
        self.check_road("multi-pulse.json")
        self.assertIn(r"OUTput1:IMPedance 50\n", self.commands())

    def test_levels_of_the_fast_family(self):
        self.check_road("short-circuit.json", "--model", "KVX705XX")

    def test_thirty_pulses_by_the_timer(self):
        self.check_road("thirty-pulses.json")
        self.assertEqual(len(self.played), 30)
        self.assertIn(r"TRIGger:TIMER 0.01\n", self.commands())

    def test_setup_that_is_none(self):
        setup = self.output.parent / "none.json"
        setup.write_text("[]")
        done = self.run_road("--setup", setup)
        self.assertEqual(done.returncode, 1)
        self.assertIn("none.json", done.stderr)

    def test_setup_that_plays_nothing(self):
        setup = self.output.parent / "empty.json"
        setup.write_text('{"multiple pulses": {}}')
        done = self.run_road("--setup", setup)
        self.assertEqual(done.returncode, 1)

    def test_setup_that_cannot_be_read(self):
        done = self.run_road("--setup", self.output / "nowhere.json")
        self.assertEqual(done.returncode, 2)
        self.assertIn("nowhere.json", done.stderr)

    def test_unknown_model(self):
        self.assertEqual(self.run_road("--model", "none").returncode, 1)

    def test_port_that_is_taken(self):
        with socket.create_server(("127.0.0.1", 30000)):
            done = self.run_road()
        self.assertEqual(done.returncode, 1)
        self.assertIn("did not start", done.stderr)

    def test_wrong_use(self):
        for options in (["--nonsense"], ["--setup"]):
            self.assertEqual(self.run_road(*options).returncode, 2)


if __name__ == "__main__":
    unittest.main()
