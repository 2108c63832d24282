# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""Plays each scenario at a desk of its own, in one language: test_scenarios.py LANGUAGE."""

import os
import pathlib
import shutil
import sys
import unittest

sys.path.insert(0, os.environ["MPB_SOURCE_DIR"] + "/tests/support")
import bench  # noqa: E402
import desk  # noqa: E402

SCENARIOS = bench.SOURCE / "tests/scenarios"
LIBRARIES = pathlib.Path(os.environ["MPB_LIB_DIR"])
TRIALS = pathlib.Path(os.environ["MPB_TRIAL_PLUGINS"])


def broken_plugins(folder):
    """A damaged plug-in, one that throws and a sound one."""
    folder.mkdir()
    for library in ("MultiPulseBuilder", "appPlugins"):
        shutil.copy(LIBRARIES / f"lib{library}.so", folder)
    shutil.copy(TRIALS / "libTrialFailsShow.so", folder)
    whole = (LIBRARIES / "libMultiPulseBuilder.so").read_bytes()
    (folder / "libDamaged.so").write_bytes(whole[:len(whole) // 2])
    return folder


class ScenarioTest(unittest.TestCase):
    language = "en"

    def play(self, name, programs=("instrument", "host"), with_broken_plugins=False):
        self.addCleanup(desk.clear_user_data)
        with desk.Desk(self.language) as stand:
            if with_broken_plugins:
                stand.host_options += ["--plugins", broken_plugins(stand.folder / "plugins")]
            stand.start(*programs)
            (desk.USER_DATA / "broken.json").write_text("no setup")
            stand.check(SCENARIOS / f"{name}.scenario", output=desk.output_folder(self.language))
            self.assertTrue(stand.programs["host"].running())
            self.assertFalse(stand.describe()["busy"])

    def test_first_run(self):
        self.play("first-run")
        self.assertTrue((desk.output_folder(self.language) / "run.mpwv").stat().st_size > 512)

        plot = (desk.output_folder(self.language) / "channel1.svg").read_text()
        self.assertIn("Channel 1", plot)

    def test_chosen_width(self):
        self.play("chosen-width")

    def test_save_and_open(self):
        self.play("save-and-open")

    def test_touch_only(self):
        self.play("touch-only")

    def test_keys_only(self):
        self.play("keys-only")

    def test_language(self):
        self.play("language")

    def test_example_plugin(self):
        self.play("example-plugin")

    def test_without_instrument(self):
        self.play("without-instrument", programs=["host"])

    def test_broken_plugin(self):
        self.play("broken-plugin", with_broken_plugins=True)

    def test_nothing_is_left_untested(self):
        names = {path.stem.replace("-", "_") for path in SCENARIOS.glob("*.scenario")}
        played = {name[len("test_"):] for name in dir(self) if name.startswith("test_")}
        self.assertEqual(names - played, set())


if __name__ == "__main__":
    if len(sys.argv) > 1 and sys.argv[1] in desk.LANGUAGES:
        ScenarioTest.language = sys.argv.pop(1)
    unittest.main()
