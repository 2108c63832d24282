# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""The simulated generator as the client "lxi" of lxi-tools sees it.

This client takes a read that comes up short for the end of the reply, so each reply has to arrive in
one piece.
"""

import os
import pathlib
import sys
import tempfile
import unittest

sys.path.insert(0, os.environ["MPB_SOURCE_DIR"] + "/tests/support")
import bench  # noqa: E402


class LxiTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.user_data = pathlib.Path(folder.name)
        self.generator = self.enterContext(bench.Generator(self.user_data))

    def scpi(self, text):
        """What the client prints for a command or query, without the line end."""
        done = bench.run("lxi", "scpi", "-a", "127.0.0.1", "-p", self.generator.port, "-r",
                         "-t", "5", text)
        self.assertEqual(done.returncode, 0, done.stderr)
        return done.stdout.rstrip("\n")

    def test_identity(self):
        fields = self.scpi("*IDN?").split(",")
        self.assertEqual(len(fields), 4)
        self.assertTrue(all(fields))
        self.assertEqual(fields[1], "KVX70102")
        self.assertNotIn("KVX", fields[0])

    def test_error_queue_is_first_in_first_out(self):
        self.assertEqual(self.scpi("SYSTem:ERRor?"), '0,"No error"')
        self.scpi("THERE:IS:NO:SUCH")
        self.scpi("OUTPut9 ON")
        self.assertRegex(self.scpi("SYST:ERR?"), r'^-113,"Undefined header')
        self.assertRegex(self.scpi("syst:err:next?"), r'^-114,"Header suffix out of range')
        self.assertEqual(self.scpi("SYSTem:ERRor:NEXT?"), '0,"No error"')

    def test_state_outlives_the_connection(self):
        self.scpi("OUTP1:IMP 10000")
        self.scpi("TRIGger:TIMER 0.25")
        self.assertEqual(float(self.scpi("OUTPut1:IMPedance?")), 10000)
        self.assertEqual(float(self.scpi("TRIG:TIM?")), 0.25)
        self.scpi("*RST")
        self.assertEqual(float(self.scpi("OUTPut1:IMPedance?")), 50)

    def test_joined_queries_answer_on_one_line(self):
        self.assertEqual(self.scpi("OUTP1 ON;:OUTP1?;:OUTP2?"), "1;0")
        self.assertEqual(self.scpi("trig:tim 0.5;sour timer;sour?;:syst:err?"),
                         'TIM;0,"No error"')

    def test_long_reply_arrives_whole(self):
        # The client cuts a command after 500 characters.
        answers = self.scpi(";".join(["*IDN?"] * 80)).split(";")
        self.assertEqual(answers, [self.scpi("*IDN?")] * 80)
        self.assertGreater(len(";".join(answers)), 1500)

    def test_missing_file_is_an_error_in_the_queue(self):
        self.scpi('function:EFile "M:/none.mpwv"')
        self.assertRegex(self.scpi("SYST:ERR?"), r'^-256,"File name not found')
        self.assertEqual(self.scpi("*TST?"), "0")

    def test_ends_cleanly(self):
        self.assertEqual(self.scpi("*OPC?"), "1")
        self.assertEqual(self.generator.end(), 0)


if __name__ == "__main__":
    unittest.main()
