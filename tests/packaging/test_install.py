# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""The installer, run by the shell and with the tools of the command line on made-up instruments.

usage: test_install.py SHELL [UNITTEST ARGUMENT ...]   SHELL: dash or busybox
"""
import hashlib
import os
import pathlib
import shutil
import stat
import subprocess
import sys
import tempfile
import unittest

INSTALLER = pathlib.Path(os.environ["MPB_SOURCE_DIR"]) / "packaging" / "install.sh"
SHELL = sys.argv.pop(1)
APP = "mnt/user-data/.app"
PLUGIN = f"{APP}/plugins/libMultiPulseBuilder.so"
TOOLKIT = f"{APP}/plugins/libappPlugins.so"
QT = ["Core", "Gui", "Widgets", "Network"]


def elf(machine=0x28, bits=1, flags=0x05000400):
    """The first bytes of a library."""
    return (b"\x7fELF" + bytes([bits, 1, 1]) + bytes(9) + (3).to_bytes(2, "little") +
            machine.to_bytes(2, "little") + bytes(16) + flags.to_bytes(4, "little") + bytes(12))


def tree(folder):
    """All below a folder with what makes it what it is, times of files included."""
    found = {}
    for path in sorted(folder.rglob("*")):
        status = path.lstat()
        what = os.readlink(path) if path.is_symlink() else path.is_file() and path.read_bytes()
        time = status.st_mtime_ns // 10**9 if stat.S_ISREG(status.st_mode) else 0
        found[str(path.relative_to(folder))] = (status.st_mode, what, time)
    return found


class Installer(unittest.TestCase):
    """Each test has an archive and an instrument of its own."""

    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp())
        self.addCleanup(shutil.rmtree, self.folder)
        self.root = self.folder / "instrument"
        self.fakes = self.folder / "fakes"
        self.fakes.mkdir()
        self.tools = "/usr/bin:/bin"
        self.shell = [shutil.which("dash")]
        if SHELL == "busybox":
            applets = self.folder / "applets"
            applets.mkdir()
            subprocess.run([shutil.which("busybox"), "--install", "-s", applets], check=True)
            self.tools = str(applets)
            self.shell = [shutil.which("busybox"), "sh"]
        self.make_qt("usr/lib", "5.15.8")
        self.image = self.make_image("first", "1")

    def write(self, path, content):
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content if isinstance(content, bytes) else content.encode())
        os.utime(path, (10**9, 10**9))

    def make_qt(self, folder, version, header=elf()):
        for name in QT:
            library = self.root / folder / f"libQt5{name}.so.{version}"
            self.write(library, header)
            os.symlink(library.name, library.parent / f"libQt5{name}.so.5")

    def make_image(self, name, mark, more=()):
        image = self.folder / name
        files = {"lib/libMultiPulseBuilder.so": f"plug-in {mark}",
                 "lib/libappPlugins.so": f"toolkit {mark}",
                 "translations/multipulse_en.qm": "texts",
                 "app/appPluginsPics/toggle button.png": f"picture {mark}",
                 "app/libDoublePulsePluginPics/help.png": "help",
                 "examples/double-pulse.json": "{}"}
        files.update({path: f"only {mark}" for path in more})
        sums = sizes = ""
        for path, content in files.items():
            self.write(image / path, content)
            sums += f"{hashlib.sha256(content.encode()).hexdigest()}  {path}\n"
            sizes += f"{len(content)} {path}\n"
        sums += f"{hashlib.sha256(sizes.encode()).hexdigest()}  FILES\n"
        self.write(image / "SHA256SUMS", sums)
        self.write(image / "FILES", sizes)
        shutil.copy(INSTALLER, image)
        return image

    def fake(self, name, script):
        """A command that stands before the real one, which it finds in $real."""
        command = self.fakes / name
        real = pathlib.Path(self.tools.split(":", maxsplit=1)[0]) / name
        command.write_text(f"#!/bin/sh\nreal={real}\ncount={self.folder}/{name}.count\n{script}\n")
        command.chmod(0o755)

    def run_installer(self, *options, image=None, root=True):
        where = ["--root", str(self.root)] if root else []
        return subprocess.run(
            [*self.shell, (image or self.image) / "install.sh", *where, *options], check=False,
            text=True, stdout=subprocess.PIPE, stderr=subprocess.PIPE, stdin=subprocess.DEVNULL,
            env={"PATH": f"{self.fakes}:{self.tools}"})

    def succeed(self, *options, **where):
        result = self.run_installer(*options, **where)
        self.assertEqual((result.returncode, result.stderr), (0, ""), result.stdout)
        return result.stdout

    def refuse(self, text, *options, **where):
        """The installer fails with this text and changes nothing."""
        before = tree(self.root)
        result = self.run_installer(*options, **where)
        self.assertEqual(result.returncode, 1, result.stdout + result.stderr)
        self.assertIn(text, result.stderr)
        self.assertEqual(tree(self.root), before)

    def content(self, path):
        return (self.root / path).read_text()


class TestInstalling(Installer):

    def test_fresh(self):
        said = self.succeed()
        self.assertIn("installed 5 files", said)
        self.assertEqual(self.content(PLUGIN), "plug-in 1")
        self.assertEqual(self.content(TOOLKIT), "toolkit 1")
        self.assertEqual(self.content(f"{APP}/translations/multipulse_en.qm"), "texts")
        self.assertEqual(self.content(f"{APP}/appPluginsPics/toggle button.png"), "picture 1")
        self.assertFalse(list(self.root.rglob("double-pulse.json")))
        self.assertFalse(list(self.root.rglob("*.multi-pulse-new")))

    def test_folders_of_the_host(self):
        self.succeed("--plugins", "/opt/host/plug ins/", "--translations", "/opt/host/texts")
        self.assertEqual(self.content("opt/host/plug ins/libappPlugins.so"), "toolkit 1")
        self.assertEqual(self.content("opt/host/texts/multipulse_en.qm"), "texts")
        self.assertFalse((self.root / APP / "plugins").exists())
        self.succeed("--undo")
        self.assertFalse((self.root / "opt").exists())

    def test_again_changes_nothing(self):
        self.succeed()
        before = tree(self.root)
        self.assertIn("installed already", self.succeed())
        self.assertEqual(tree(self.root), before)

    def test_upgrade_keeps_what_is_the_users(self):
        kept = {"mnt/user-data/mine.json": "mine", "mnt/user-data/sub/x.json": "x",
                "mnt/user-data/appPluginsDefaultSetup.json": "default", f"{APP}/other": "other"}
        for path, content in kept.items():
            self.write(self.root / path, content)
        self.succeed()
        self.assertIn("installed 3 files", self.succeed(image=self.make_image("second", "2")))
        self.assertEqual(self.content(PLUGIN), "plug-in 2")
        for path, content in kept.items():
            self.assertEqual(self.content(path), content)

    def test_dry_run_changes_nothing(self):
        self.write(self.root / TOOLKIT, "of another plug-in")
        before = tree(self.root)
        said = self.succeed("--dry-run")
        self.assertIn(f"would replace {self.root}/{TOOLKIT}\n", said)
        self.assertIn(f"would add {self.root}/{PLUGIN}\n", said)
        self.assertEqual(tree(self.root), before)

    def test_link_is_replaced_and_not_followed(self):
        self.write(self.root / "opt/shared.so", "shared")
        (self.root / TOOLKIT).parent.mkdir(parents=True)
        os.symlink("/opt/shared.so", self.root / TOOLKIT)
        before = tree(self.root)
        self.succeed()
        self.assertEqual(self.content("opt/shared.so"), "shared")
        self.assertEqual(self.content(TOOLKIT), "toolkit 1")
        self.succeed("--undo")
        self.assertEqual(tree(self.root), before)


class TestUndoing(Installer):

    def test_after_the_first(self):
        self.write(self.root / "mnt/user-data/mine.json", "mine")
        before = tree(self.root)
        self.succeed()
        self.assertNotEqual(tree(self.root), before)
        self.succeed("--undo")
        self.assertEqual(tree(self.root), before)

    def test_step_by_step(self):
        self.write(self.root / TOOLKIT, "of another plug-in")
        os.chmod(self.root / TOOLKIT, 0o555)
        before = tree(self.root)
        self.succeed()
        first = tree(self.root)
        self.succeed(image=self.make_image("second", "2", more=["app/new/page.html"]))
        self.assertEqual(self.content(f"{APP}/new/page.html"), "only 2")
        dry = self.succeed("--undo", "--dry-run")
        self.assertIn(f"would put back {self.root}/{PLUGIN}\n", dry)
        self.assertIn(f"would remove {self.root}/{APP}/new/page.html\n", dry)
        self.succeed("--undo")
        self.assertEqual(tree(self.root), first)
        self.succeed("--undo")
        self.assertEqual(tree(self.root), before)
        self.refuse("no installation to take back", "--undo")

    def test_folder_that_others_use_stays(self):
        self.succeed()
        self.write(self.root / APP / "plugins/libOther.so", "other")
        self.succeed("--undo")
        self.assertEqual(self.content(f"{APP}/plugins/libOther.so"), "other")
        self.assertFalse((self.root / PLUGIN).exists())

    def test_without_the_sums(self):
        """What is taken back does not depend on the archive's files."""
        self.succeed()
        shutil.rmtree(self.image / "lib")
        self.succeed("--undo")
        self.assertFalse((self.root / PLUGIN).exists())


class TestRefusing(Installer):

    def replace_qt(self, version="5.15.8", **header):
        shutil.rmtree(self.root / "usr")
        self.make_qt("usr/lib", version, elf(**header))

    def test_wrong_machine(self):
        self.fake("uname", "echo x86_64")
        self.refuse("this machine is x86_64", root=False)

    def test_wrong_processor(self):
        for header in [{"machine": 0x3e, "bits": 2}, {"machine": 0xb7, "bits": 2},
                       {"flags": 0x05000200}, {"machine": 0x08}]:
            with self.subTest(**header):
                self.replace_qt(**header)
                self.refuse("not for 32-bit ARM with hard float")

    def test_wrong_qt(self):
        for version in ["5.9.5", "5.14.2"]:
            with self.subTest(version=version):
                self.replace_qt(version)
                self.refuse(f"has Qt {version}; 5.15 or newer")

    def test_odd_qt_version(self):
        self.replace_qt("5.x.1")
        self.refuse("cannot tell the version")

    def test_no_qt(self):
        shutil.rmtree(self.root / "usr")
        self.refuse("found no libQt5Core.so.5")

    def test_incomplete_qt(self):
        (self.root / "usr/lib/libQt5Network.so.5").unlink()
        self.refuse("libQt5Network.so.5")

    def test_qt_elsewhere(self):
        shutil.rmtree(self.root / "usr")
        self.make_qt("srv/qt", "5.15.2")
        self.refuse("--qt tells where")
        self.succeed("--qt", "/srv/qt")

    def test_damaged_archive(self):
        self.write(self.image / "lib/libappPlugins.so", "toolkit l")
        self.refuse("is damaged")

    def test_shortened_list(self):
        self.write(self.image / "FILES", (self.image / "FILES").read_text().split("\n")[0])
        self.refuse("is damaged")

    def test_incomplete_archive(self):
        (self.image / "app/libDoublePulsePluginPics/help.png").unlink()
        self.refuse("is damaged")
        (self.image / "SHA256SUMS").unlink()
        self.refuse("not an unpacked archive")

    def test_no_room(self):
        self.fake("df", "$real \"$@\" | awk 'NR == 2 { $4 = 7 } { print }'")
        self.refuse("has room for 7 KiB")

    def test_folder_in_the_way(self):
        (self.root / PLUGIN).mkdir(parents=True)
        self.refuse("is a folder")

    def test_wrong_options(self):
        for options in [["--fast"], ["--plugins"], ["--plugins", "relative"]]:
            with self.subTest(options=options):
                result = self.run_installer(*options)
                self.assertEqual(result.returncode, 2)
                self.assertIn("usage: install.sh", result.stderr)
        self.assertIn("usage: install.sh", self.succeed("--help"))


class TestInterrupted(Installer):
    """The copying fails or is cut short at each of its steps."""

    # cp is called once for each file kept (2) and once for each installed (5).
    COPIES = 7

    def setUp(self):
        super().setUp()
        self.write(self.root / TOOLKIT, "of another plug-in")
        self.write(self.root / APP / "appPluginsPics/toggle button.png", "another picture")
        self.before = tree(self.root)

    def fail_at(self, step, how):
        """The cp of this step does this and fails."""
        self.fake("cp", "echo x >>$count; n=$(wc -l <$count)\n"
                  f"if [ $n -eq {step} ]; then {how}; exit 1; fi\nexec $real \"$@\"")

    def forget_failure(self):
        (self.fakes / "cp").unlink()
        (self.folder / "cp.count").unlink()

    def test_full_disk(self):
        for step in range(1, self.COPIES + 1):
            with self.subTest(step=step):
                self.fail_at(step, "echo 'cp: no space left' >&2")
                result = self.run_installer()
                self.assertEqual(result.returncode, 1)
                self.assertIn("no space left", result.stderr)
                self.assertIn("taking back what was done", result.stderr)
                self.assertEqual(tree(self.root), self.before)
                self.forget_failure()

    def lose_power_at(self, step):
        """The installer runs in a process group of its own, which its cp ends."""
        self.fail_at(step, "kill -KILL 0")
        process = subprocess.run(
            [*self.shell, self.image / "install.sh", "--root", str(self.root)], check=False,
            stdout=subprocess.PIPE, stderr=subprocess.PIPE, start_new_session=True,
            env={"PATH": f"{self.fakes}:{self.tools}"})
        self.assertEqual(process.returncode, -9)
        self.assertNotEqual(tree(self.root), self.before)
        self.forget_failure()

    def test_lost_power_then_undo(self):
        for step in range(1, self.COPIES + 1):
            with self.subTest(step=step):
                self.lose_power_at(step)
                self.assertIn("did not end", self.succeed("--undo"))
                self.assertEqual(tree(self.root), self.before)

    def test_lost_power_then_again(self):
        for step in range(1, self.COPIES + 1):
            with self.subTest(step=step):
                self.lose_power_at(step)
                self.assertIn("did not end", self.succeed())
                self.assertEqual(self.content(PLUGIN), "plug-in 1")
                self.succeed("--undo")
                self.assertEqual(tree(self.root), self.before)

    def test_full_disk_when_taking_back(self):
        """What cannot be put back now can be later."""
        self.succeed()
        self.fail_at(2, "echo 'cp: no space left' >&2")
        result = self.run_installer("--undo")
        self.assertEqual(result.returncode, 1)
        self.assertIn("cannot put back", result.stderr)
        self.forget_failure()
        self.succeed("--undo")
        self.assertEqual(tree(self.root), self.before)

    def test_ended_by_a_key(self):
        for step in range(1, self.COPIES + 1):
            with self.subTest(step=step):
                self.fail_at(step, "kill -TERM $PPID")
                result = self.run_installer()
                self.assertEqual(result.returncode, 1)
                self.assertEqual(tree(self.root), self.before)
                self.forget_failure()


if __name__ == "__main__":
    unittest.main()
