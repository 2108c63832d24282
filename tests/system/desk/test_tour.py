# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""The session that starts the three programs together: its tour, and how it ends."""

import os
import pathlib
import re
import signal
import socket
import subprocess
import sys
import tempfile
import time
import unittest

sys.path.insert(0, os.environ["MPB_SOURCE_DIR"] + "/tests/support")
import bench  # noqa: E402
import desk  # noqa: E402

SESSION = bench.SOURCE / "bench/desk/kvx-desk-session"


def somebody_listens(port):
    with socket.socket() as client:
        return client.connect_ex(("127.0.0.1", port)) == 0


class TourTest(unittest.TestCase):
    def setUp(self):
        self.output = pathlib.Path(self.enterContext(tempfile.TemporaryDirectory()))
        share = pathlib.Path(os.environ["MPB_APP_DIR"]).parent
        self.addCleanup(desk.clear_user_data)
        self.command = [SESSION, "--programs", bench.PROGRAMS, "--share", share]

    def start(self, *options, **environment):
        return subprocess.Popen([str(part) for part in [*self.command, *options]],
                                stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, text=True,
                                env={**os.environ, **environment})

    def check_nothing_is_left(self):
        self.assertFalse(somebody_listens(30000), "the generator runs on")
        self.assertFalse(somebody_listens(5900), "the host runs on")

    def test_the_tour_leaves_what_it_says(self):
        session = self.start("--output", self.output, QT_SCALE_FACTOR="2")
        out, err = self.wait_for(session)
        self.assertEqual(session.returncode, 0, out + err)
        for name in re.findall(r"^  (\S+)", out, re.MULTILINE):
            self.assertGreater((self.output / name).stat().st_size, 0, name)
        for name in ("home.png", "running.png", "front.png", "run.mpwv", "channel1.svg", "scpi.log"):
            self.assertIn(f"  {name} ", out)
        self.assertIn("OUTP1 ON", (self.output / "scpi.log").read_text())
        self.check_nothing_is_left()

    def wait_for(self, session):
        """Keeps the session's input open until it ends by itself."""
        out = session.stdout.read()
        err = session.stderr.read()
        session.wait(bench.SECONDS)
        for stream in (session.stdin, session.stdout, session.stderr):
            stream.close()
        return out, err

    def open_front(self):
        session = self.start(QT_QPA_PLATFORM="offscreen")
        line = session.stdout.readline()
        self.assertIn("the front is open", line)
        return session

    def test_it_ends_when_its_input_does(self):
        session = self.open_front()
        session.communicate(timeout=bench.SECONDS)
        self.check_nothing_is_left()

    def test_it_ends_on_request(self):
        session = self.open_front()
        session.send_signal(signal.SIGTERM)
        session.communicate(timeout=bench.SECONDS)
        self.check_nothing_is_left()

    def test_it_ends_when_the_front_is_closed(self):
        session = self.open_front()
        self.assertEqual(subprocess.run(["pkill", "-x", "kvx-panel"], check=False).returncode, 0)
        self.wait_for(session)
        self.assertEqual(session.returncode, 0)
        self.check_nothing_is_left()

    def test_what_is_killed_comes_back(self):
        session = self.open_front()
        for name in ("kvx-panel", "kvx-host", "kvx-instrument"):
            # A program that ends within five seconds of its start is not started again.
            self.wait_until_older_than(name, 5.5)
            subprocess.run(["pkill", "-KILL", "-x", name[:15]], check=True)
            line = session.stdout.readline()
            self.assertIn(f"{name[4:]} has ended; starting it again", line or session.stderr.read())
        session.send_signal(signal.SIGTERM)
        session.communicate(timeout=bench.SECONDS)
        self.check_nothing_is_left()

    def wait_until_older_than(self, name, seconds):
        pattern = ["pgrep", "-x", "--older", str(int(seconds + 1)), name[:15]]
        deadline = time.monotonic() + bench.SECONDS
        while subprocess.run(pattern, stdout=subprocess.DEVNULL, check=False).returncode != 0:
            self.assertLess(time.monotonic(), deadline, f"there is no {name}")
            time.sleep(0.1)

    def test_the_tour_removes_no_file_of_others(self):
        other = self.output / "mine.png"
        other.write_bytes(b"mine")
        self.wait_for(self.start("--output", self.output))
        self.assertEqual(other.read_bytes(), b"mine")

    def test_it_says_what_does_not_start(self):
        with socket.create_server(("127.0.0.1", 30000)):
            session = self.start("--output", self.output)
            _, err = self.wait_for(session)
        self.assertEqual(session.returncode, 1)
        self.assertIn("instrument did not start", err)
        self.assertFalse(somebody_listens(5900))

    def test_wrong_use(self):
        done = bench.run(SESSION, "--programs", bench.PROGRAMS)
        self.assertEqual(done.returncode, 2)
        self.assertIn("--share", done.stderr)


if __name__ == "__main__":
    unittest.main()
