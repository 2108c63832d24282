# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""The simulated generator as a script with PyVISA sees it."""

import os
import pathlib
import sys
import tempfile
import unittest

import pyvisa

sys.path.insert(0, os.environ["MPB_SOURCE_DIR"] + "/tests/support")
import bench  # noqa: E402


class VisaTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.user_data = pathlib.Path(folder.name)
        self.generator = self.enterContext(
            bench.Generator(self.user_data, "--model", "KVX7030X"))
        manager = pyvisa.ResourceManager("@py")
        self.addCleanup(manager.close)
        self.visa = self.open(manager)
        self.other = self.open(manager)

    def open(self, manager):
        resource = manager.open_resource(
            f"TCPIP::127.0.0.1::{self.generator.port}::SOCKET",
            read_termination="\n", write_termination="\n", timeout=10000)
        self.addCleanup(resource.close)
        return resource

    def errors(self):
        """Takes the whole error queue."""
        taken = []
        while not (entry := self.visa.query("SYST:ERR?")).startswith("0,"):
            taken.append(int(entry.split(",")[0]))
        return taken

    def play(self, example):
        """Plays a waveform of one of the examples once and returns the file that was played."""
        path = self.user_data / "train.mpwv"
        done = bench.run(bench.PROGRAMS / "mpwv", "render", bench.EXAMPLES / example, "-o", path)
        self.assertEqual(done.returncode, 0, done.stderr)
        for command in ('FUNC:EFIL "M:/train.mpwv"', "FUNC EFILe", "BURS ON", "BURS:NCYC 1",
                        "OUTP1:IMP 10000", "FREQ 25 kHz", "TRIG:SOUR EXT", "OUTP1 ON", "*TRG"):
            self.visa.write(command)
        self.assertEqual(self.errors(), [])
        return bench.Waveform(path)

    def test_identity(self):
        self.assertEqual(self.visa.query("*IDN?").split(",")[1], "KVX70302")

    def test_two_clients_share_one_instrument(self):
        self.visa.write("SOUR1:FREQ 12345.5")
        self.assertEqual(self.visa.query("*OPC?"), "1")
        self.assertEqual(float(self.other.query("FREQuency:FIXed?")), 12345.5)
        self.other.write("NO:SUCH:THING")
        self.assertEqual(self.other.query("*OPC?"), "1")
        self.assertEqual(self.errors(), [-113])

    def test_unknown_query_gets_no_reply(self):
        self.visa.timeout = 200
        with self.assertRaises(pyvisa.errors.VisaIOError):
            self.visa.query("NO:SUCH:THING?")
        self.visa.timeout = 10000
        self.assertEqual(self.errors(), [-113])

    def test_status_tells_of_errors(self):
        self.visa.write("*CLS;*ESE 32;*SRE 32")
        self.assertEqual(int(self.visa.query("*STB?")) & 0x60, 0)
        self.visa.write("OUTP1:IMP nonsense")
        self.assertEqual(int(self.visa.query("*STB?")) & 0x60, 0x60)
        self.assertEqual(int(self.visa.query("*ESR?")) & 0x20, 0x20)
        self.assertEqual(int(self.visa.query("*ESR?")), 0)

    def test_error_queue_overflows_at_its_end(self):
        for _ in range(40):
            self.visa.write("NO:SUCH:THING")
        taken = self.errors()
        self.assertEqual(taken[-1], -350)
        self.assertEqual(set(taken[:-1]), {-113})
        self.assertLess(len(taken), 40)

    def test_message_in_pieces(self):
        for piece in (b"SOURce1:FR", b"EQ 2", b"000;", b"FREQ?\r", b"\n"):
            self.visa.write_raw(piece)
        self.assertEqual(float(self.visa.read()), 2000)

    def test_trace_is_empty_before_the_first_burst(self):
        # Read as text: PyVISA takes a block of no bytes for one of unknown length.
        self.assertEqual(self.visa.query("TRACe1:DATA?"), "#10")
        self.assertEqual(self.visa.query("TRACe1:POINts?"), "0")

    def test_trace_holds_the_counts_of_the_file(self):
        played = self.play("multi-pulse.json")
        counts = self.visa.query_binary_values("TRACe1:DATA?", datatype="h", is_big_endian=True)
        self.assertEqual(int(self.visa.query("TRACe1:POINts?")), played.points)
        self.assertEqual(counts, played.counts.tolist())

    def test_trace_in_the_other_byte_order(self):
        played = self.play("double-pulse.json")
        self.visa.write("FORMat:BORDer SWAPped")
        counts = self.visa.query_binary_values("TRACe1:DATA?", datatype="h", is_big_endian=False)
        self.assertEqual(counts, played.counts.tolist())

    def test_trace_in_volts_and_seconds(self):
        played = self.play("multi-pulse.json")
        step, scale, offset = (float(self.visa.query(query)) for query in (
            "TRACe1:TIMe:STEP?", "TRACe1:LEVel:SCALe?", "TRACe1:LEVel:OFFSet?"))
        self.assertAlmostEqual(step * played.points, 40e-6, delta=40e-6 * 1e-9)
        # The example is for 50 ohm and is played into an open load here: twice the voltage.
        self.assertAlmostEqual(offset + 32764 * scale, 2 * 2.5, delta=1e-9)
        self.assertAlmostEqual(offset - 32764 * scale, 0, delta=1e-9)


if __name__ == "__main__":
    unittest.main()
