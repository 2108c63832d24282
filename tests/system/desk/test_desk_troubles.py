# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""Programs of the desk that are killed in the middle of things and started again."""

import ctypes
import os
import pathlib
import sys
import unittest

sys.path.insert(0, os.environ["MPB_SOURCE_DIR"] + "/tests/support")
import bench  # noqa: E402
import desk  # noqa: E402

SCENARIOS = bench.SOURCE / "tests/scenarios"
SAVED = desk.USER_DATA / "double_pulse.json"

OPEN_EDITOR = """
touch {HOSTID_PLUGIN_MultiPulseBuilder}
expect enabled {STR_UTILITY_RUN}
"""
PRESS_RUN = "touch {STR_UTILITY_RUN}\n"
PRESS_STOP = "touch {STR_ID_SWEEP_STOP}\n"
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
SAVE = """
touch {ARBID_SAVEAS}
touch {HOSTID_DLG_SAVE}
expect file double_pulse.json
expect no text {HOSTID_DLG_CANCEL}
"""
OPEN_SAVED = """
touch {ARBID_OPEN}
touch "double_pulse.json"
touch {HOSTID_DLG_OPEN}
expect no text {HOSTID_DLG_CANCEL}
expect text "4" right of {STR_ID_PULSES_NUMS}
"""
COUNT = "touch right of {STR_ID_PULSES_NUMS}\nnumber "
# Where a program may be killed: the way there from the editor with a saved setup, what is to be seen
# there, and the way back to the editor.
PLACES = {
    "home screen": (CLOSE, "expect text {HOSTID_LAST_OPENED}", OPEN_EDITOR),
    "editor": ("", "expect enabled {STR_UTILITY_RUN}", ""),
    "file browser": ("touch {ARBID_OPEN}", 'expect text "double_pulse.json"',
                     "touch {HOSTID_DLG_CANCEL}"),
    "question whether to replace": (
        COUNT + "5\ntouch {ARBID_SAVEAS}\ntouch {HOSTID_DLG_SAVE}",
        'expect text "...double_pulse.json..."\nexpect enabled {HOSTID_DLG_REPLACE}',
        "touch {HOSTID_DLG_CANCEL}\nexpect no text {HOSTID_DLG_REPLACE}\n"
        "touch {HOSTID_DLG_CANCEL}"),
    "question for the defaults": ("touch {DBID_POWERON_STATE_DEFAULT_SETTING}",
                                  "expect text {STR_ID_SUREQ_DEFAULT}", "touch {HOSTID_DLG_NO}"),
    "warning": (COUNT + "99", "expect text {HOSTID_DLG_WARNING}", "touch {HOSTID_DLG_OK}"),
}
KEYPAD = """
key help
expect text {HOSTID_KEY_UNITS}
key home
expect no text {HOSTID_KEY_UNITS}
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

    def check_run(self, stand, text):
        """Plays lines with one run; commands of earlier runs in the transcript do not count."""
        runs = stand.transcript.read_text().count("OUTP1 ON")
        stand.check(text=text)
        self.assertEqual(stand.transcript.read_text().count("OUTP1 ON"), runs + 1)

    def hold_in_sequence(self, stand, press, middle):
        """The host has begun a sequence and waits for the instrument; returns who pressed."""
        stand.kill("instrument")
        arrived = middle(stand)
        playing = stand.begin(press)
        desk.wait_until(lambda: flags() == (1, 1) and arrived(), "the middle of a sequence")
        return playing

    def in_each_sequence(self, cause_trouble):
        """Run and Stop, each held in each of its middles, at a desk of its own."""
        for middle in MIDDLES:
            for press, before in ((PRESS_RUN, ""), (PRESS_STOP, RUN)):
                with self.subTest(press=press, middle=middle.__name__), desk.Desk() as stand:
                    stand.start("instrument", "host")
                    stand.check(text=OPEN_EDITOR + SAVE + before)
                    saved = SAVED.read_bytes()
                    with self.hold_in_sequence(stand, press, middle) as playing:
                        cause_trouble(stand, press, playing)
                    self.assertEqual(SAVED.read_bytes(), saved)
                desk.clear_user_data()

    def at_each_place(self, cause_trouble, *names):
        """One desk that is brought to each place from the editor, where the trouble has to end."""
        stand = self.desk(*names)
        stand.check(text="\n".join((OPEN_EDITOR, COUNT + "4", SAVE)))
        saved = SAVED.read_bytes()
        for place, (way, seen, back) in PLACES.items():
            with self.subTest(place=place):
                stand.check(text=way + "\n" + seen)
                cause_trouble(stand, seen, back)
                self.assertEqual(SAVED.read_bytes(), saved)


def sent(stand, command):
    return stand.transcript.exists() and command in stand.transcript.read_text()


def frozen_before_it_answers(stand):
    stand.start_instrument()
    stand.freeze("instrument")
    return lambda: True


def silent_after_the_first_command(stand):
    stand.start_instrument("--fault", "no-reply")
    return lambda: sent(stand, "OUTP1 OFF")


def silent_at_the_closing_question(stand):
    stand.start_instrument("--fault", "no-reply")
    return lambda: sent(stand, "*IDN?")


# Each starts an instrument with which the next sequence stays in its middle, and returns what tells
# that it has got there.
MIDDLES = (frozen_before_it_answers, silent_after_the_first_command,
           silent_at_the_closing_question)


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

    def test_in_the_middle_of_a_sequence(self):
        def cause_trouble(stand, press, playing):
            stand.kill("instrument")
            desk.wait_until(lambda: flags() == (0, 0), "the end of the sequence")
            self.assertEqual(playing.wait(bench.SECONDS), 0)
            self.assertFalse(stand.describe()["busy"])
            stand.start("instrument")
            # The toggle has gone over. Its text has, too, if the last command had left.
            again = PRESS_RUN if "Run" in stand.texts() else PRESS_STOP
            if press == PRESS_RUN:
                stand.check(text=again + 'expect command "OUTP1 OFF"\n'
                            "expect unchecked {STR_UTILITY_RUN}" + RUN + STOP + CLOSE + KEYPAD)
            else:
                stand.check(text=again + 'expect command "OUTP1 ON"\n'
                            "expect checked {STR_ID_SWEEP_STOP}" + STOP + CLOSE + KEYPAD)

        self.in_each_sequence(cause_trouble)

    def test_at_each_place(self):
        def cause_trouble(stand, seen, back):
            stand.kill("instrument")
            stand.check(text=seen)
            self.assertEqual(flags(), (0, 0))
            stand.start("instrument")
            self.check_run(stand, "\n".join((seen, back, RUN, STOP)))

        self.at_each_place(cause_trouble, "instrument", "host")

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

    def test_while_it_runs(self):
        stand = self.desk("instrument", "host")
        stand.check(text=OPEN_EDITOR + RUN)
        waveform = (desk.USER_DATA / "run.mpwv").read_bytes()
        self.restart_host(stand)
        self.assertEqual((desk.USER_DATA / "run.mpwv").read_bytes(), waveform)
        # The instrument plays on, and the home screen shows it.
        stand.check(text='expect text {HOSTID_ON} right of "{HOSTID_CHANNEL}"' + OPEN_EDITOR +
                    RUN + STOP + CLOSE)

    def test_at_each_place(self):
        def cause_trouble(stand, *_):
            self.restart_host(stand)
            self.check_run(stand, KEYPAD + OPEN_EDITOR + OPEN_SAVED + RUN + STOP)

        self.at_each_place(cause_trouble, "instrument", "host")

    def test_in_the_middle_of_a_sequence(self):
        def cause_trouble(stand, _, playing):
            self.assertEqual(flags(), (1, 1))
            self.restart_host(stand)
            self.assertEqual(playing.wait(bench.SECONDS), 1)
            self.assertIn("is gone", playing.stderr.read())
            stand.kill("instrument")
            stand.start("instrument")
            self.check_run(stand, KEYPAD + OPEN_EDITOR + RUN + STOP + CLOSE)

        self.in_each_sequence(cause_trouble)

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

    def test_at_each_place(self):
        def cause_trouble(stand, seen, back):
            others = [stand.programs[name] for name in ("instrument", "host")]
            stand.kill("panel")
            stand.check(text=seen)
            self.assertEqual(flags(), (0, 0))
            stand.start("panel")
            self.check_run(stand, "\n".join((seen, back, RUN, STOP)))
            self.assertTrue(all(program.running() for program in others))

        self.at_each_place(cause_trouble, "instrument", "host", "panel")

    def test_in_the_middle_of_a_sequence(self):
        stand = self.desk("instrument", "host", "panel")
        stand.check(text=OPEN_EDITOR)
        with self.hold_in_sequence(stand, PRESS_RUN, frozen_before_it_answers) as playing:
            stand.kill("panel")
            self.assertEqual(flags(), (1, 1))
            stand.thaw("instrument")
            self.assertEqual(playing.wait(bench.SECONDS), 0, playing.stderr.read())
            stand.start("panel")
        desk.wait_until(lambda: flags() == (0, 0), "the end of the sequence")
        stand.check(text='expect command "OUTP1 ON"\nexpect command "*IDN?"' + STOP + CLOSE)

    def test_it_outlives_the_others(self):
        stand = self.desk("instrument", "host", "panel")
        panel = stand.programs["panel"]
        stand.kill("host")
        stand.kill("instrument")
        stand.start("instrument", "host")
        stand.check(text=OPEN_EDITOR + RUN + STOP + CLOSE)
        self.assertTrue(panel.running())
        self.assertEqual(stand.programs.pop("panel").end(), 0)



if __name__ == "__main__":
    unittest.main()
