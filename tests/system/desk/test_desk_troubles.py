# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""Programs of the desk that are killed in the middle of things and started again, and plug-ins that fail."""

import ctypes
import os
import pathlib
import shutil
import subprocess
import sys
import unittest

sys.path.insert(0, os.environ["MPB_SOURCE_DIR"] + "/tests/support")
import bench  # noqa: E402
import desk  # noqa: E402

SCENARIOS = bench.SOURCE / "tests/scenarios"
LIBRARIES = pathlib.Path(os.environ["MPB_LIB_DIR"])

OPEN_EDITOR = """
touch {HOSTID_PLUGIN_MultiPulseBuilder}
expect enabled {STR_UTILITY_RUN}
"""
RUN = """
touch {STR_UTILITY_RUN}
expect text {STR_ID_SWEEP_STOP}
expect command "OUTP1 ON"
expect command "*IDN?"
"""
STOP = """
touch {STR_ID_SWEEP_STOP}
expect text {STR_UTILITY_RUN}
expect command "OUTP1 OFF"
expect command "*RST"
"""
CLOSE = """
touch {ARBID_CLOSE}
expect text {HOSTID_LAST_OPENED}
"""
WARNED = """
expect text "TcpSocket connect error! port:30000, reason:..."
touch {HOSTID_DLG_OK}
expect no text {HOSTID_DLG_WARNING}
"""


def flags():
    """The first two bytes of the one segment of shared memory in this world; None without one."""
    segments = pathlib.Path("/proc/sysvipc/shm").read_text().splitlines()[1:]
    assert len(segments) <= 1, segments
    if not segments:
        return None
    libc = ctypes.CDLL(None, use_errno=True)
    libc.shmat.restype = ctypes.c_void_p
    readonly = 0o10000
    address = libc.shmat(int(segments[0].split()[1]), None, readonly)
    assert address != ctypes.c_void_p(-1).value, os.strerror(ctypes.get_errno())
    try:
        return tuple(ctypes.string_at(address, 2))
    finally:
        libc.shmdt(ctypes.c_void_p(address))


class TroubleTest(unittest.TestCase):
    def setUp(self):
        self.addCleanup(desk.clear_user_data)

    def desk(self, *names, **options):
        stand = desk.Desk(**options)
        stand.__enter__()
        self.addCleanup(stand.__exit__)
        return stand.start(*names)


class KilledInstrument(TroubleTest):
    def test_on_the_home_screen(self):
        stand = self.desk("instrument", "host")
        stand.check(text="expect text {HOSTID_ANSWERING}")
        stand.kill("instrument")
        stand.check(text="expect text {HOSTID_SILENT}")
        stand.start("instrument")
        stand.check(text="expect text {HOSTID_ANSWERING}" + OPEN_EDITOR + RUN + STOP + CLOSE)

    def test_before_run(self):
        stand = self.desk("instrument", "host")
        stand.check(text=OPEN_EDITOR)
        stand.kill("instrument")
        stand.check(text="touch {STR_UTILITY_RUN}" + WARNED)
        self.assertEqual(flags(), (0, 0))
        stand.start("instrument")
        # The toggle stayed down: the next press is a Stop, the one after it runs.
        stand.check(text='touch {STR_UTILITY_RUN}\nexpect command "OUTP1 OFF"\n'
                    "expect unchecked {STR_UTILITY_RUN}" + RUN + STOP)

    def test_while_it_runs(self):
        stand = self.desk("instrument", "host")
        stand.check(text=OPEN_EDITOR + RUN)
        stand.kill("instrument")
        stand.check(text="touch {STR_ID_SWEEP_STOP}" + WARNED)
        self.assertEqual(flags(), (0, 0))
        stand.start("instrument")
        # The text stayed, the toggle is up: the next press runs again.
        stand.check(text='touch {STR_ID_SWEEP_STOP}\nexpect command "OUTP1 ON"\n' + STOP + CLOSE)

    def test_never_there(self):
        stand = self.desk("host")
        stand.check(SCENARIOS / "without-instrument.scenario", output=desk.output_folder("troubles"))
        self.assertEqual(flags(), (0, 0))
        stand.start("instrument")
        stand.check(text="expect text {HOSTID_ANSWERING}" + OPEN_EDITOR + RUN + STOP)


class KilledHost(TroubleTest):
    def restart_host(self, stand):
        stand.kill("host")
        stand.start("host")
        self.assertEqual(flags(), (0, 0))
        self.assertFalse(stand.describe()["busy"])

    def test_on_the_home_screen(self):
        stand = self.desk("instrument", "host")
        self.restart_host(stand)
        stand.check(text=OPEN_EDITOR + RUN + STOP + CLOSE)

    def test_with_a_saved_setup_and_an_open_editor(self):
        stand = self.desk("instrument", "host")
        stand.check(text=OPEN_EDITOR + "touch {ARBID_SAVEAS}\ntouch {HOSTID_DLG_SAVE}\n"
                    "expect file double_pulse.json\nexpect no text {HOSTID_DLG_CANCEL}")
        saved = (desk.USER_DATA / "double_pulse.json").read_bytes()
        self.restart_host(stand)
        self.assertEqual((desk.USER_DATA / "double_pulse.json").read_bytes(), saved)
        stand.check(text=OPEN_EDITOR + "touch {ARBID_OPEN}\ntouch \"double_pulse.json\"\n"
                    "touch {HOSTID_DLG_OPEN}\nexpect no text {HOSTID_DLG_CANCEL}" + RUN + STOP)

    def test_while_it_runs(self):
        stand = self.desk("instrument", "host")
        stand.check(text=OPEN_EDITOR + RUN)
        waveform = (desk.USER_DATA / "run.mpwv").read_bytes()
        self.restart_host(stand)
        self.assertEqual((desk.USER_DATA / "run.mpwv").read_bytes(), waveform)
        # The instrument plays on, and the home screen shows it.
        stand.check(text='expect text {HOSTID_ON} right of "{HOSTID_CHANNEL}"' + OPEN_EDITOR +
                    RUN + STOP + CLOSE)

    def test_in_the_middle_of_a_sequence(self):
        """With both flags up: the last question of the sequence is never answered."""
        stand = self.desk("instrument", "host")
        stand.check(text=OPEN_EDITOR)
        stand.kill("instrument")
        stand.start_instrument("--fault", "no-reply")
        playing = subprocess.Popen([bench.PROGRAMS / "kvx-scenario", "--keypad", stand.keypad_path,
                                    "--output", stand.output, "-"], stdin=subprocess.PIPE,
                                   stderr=subprocess.PIPE, text=True, env=stand.environment)
        playing.stdin.write("touch {STR_UTILITY_RUN}\n")
        playing.stdin.close()
        desk.wait_until(lambda: flags() == (1, 1), "the flags of a sequence")
        self.restart_host(stand)
        with playing:
            self.assertEqual(playing.wait(bench.SECONDS), 1)
            self.assertIn("is gone", playing.stderr.read())
        stand.kill("instrument")
        stand.start("instrument")
        stand.check(text=OPEN_EDITOR + RUN + STOP + CLOSE)

    def test_ended_as_it_should(self):
        stand = self.desk("instrument", "host")
        self.assertEqual(flags(), (0, 0))
        host = stand.programs.pop("host")
        self.assertEqual(host.end(), 0)
        self.assertIsNone(flags())
        self.assertFalse(stand.keypad_path.exists())


class KilledPanel(TroubleTest):
    def test_while_it_runs(self):
        stand = self.desk("instrument", "host", "panel")
        stand.check(text=OPEN_EDITOR + RUN)
        stand.kill("panel")
        stand.check(text="expect text {STR_ID_SWEEP_STOP}")
        stand.start("panel")
        stand.check(text=STOP + CLOSE)

    def test_it_outlives_the_others(self):
        stand = self.desk("instrument", "host", "panel")
        panel = stand.programs["panel"]
        stand.kill("host")
        stand.kill("instrument")
        stand.start("instrument", "host")
        stand.check(text=OPEN_EDITOR + RUN + STOP + CLOSE)
        self.assertTrue(panel.running())
        self.assertEqual(stand.programs.pop("panel").end(), 0)


class BrokenPlugins(TroubleTest):
    def test_in_the_menu(self):
        stand = self.desk()
        folder = stand.folder / "plugins"
        folder.mkdir()
        for library in ("MultiPulseBuilder", "appPlugins"):
            shutil.copy(LIBRARIES / f"lib{library}.so", folder)
        trials = pathlib.Path(os.environ["MPB_TRIAL_PLUGINS"])
        shutil.copy(trials / "libTrialFailsShow.so", folder)
        whole = (LIBRARIES / "libMultiPulseBuilder.so").read_bytes()
        (folder / "libDamaged.so").write_bytes(whole[:len(whole) // 2])
        stand.host_options += ["--plugins", folder]
        stand.start("instrument", "host")
        stand.check(SCENARIOS / "broken-plugin.scenario", output=desk.output_folder("troubles"))


if __name__ == "__main__":
    unittest.main()
