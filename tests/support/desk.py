# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""The three programs of the desk as processes of their own, and a keypad client without the front's code.

They stand on the instrument's own port and folder: whoever uses them is in a world of his own.
"""

import json
import os
import pathlib
import selectors
import shutil
import signal
import socket
import subprocess
import tempfile
import time

import bench

USER_DATA = pathlib.Path("/mnt/user-data")
SCREEN_PORT = 5900
LANGUAGES = ("en", "de", "zh_CN", "ja")


def wait_until(condition, what, seconds=bench.SECONDS):
    """Returns the first true value of the condition, looked at again and again."""
    end = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain for {what}")
        time.sleep(0.02)


class Program:
    """One of the programs, with what it writes kept for the test."""

    def __init__(self, name, command, ready, environment, folder):
        self.name = name
        self.log = open(folder / f"{name}.log", "ab+")
        self.process = subprocess.Popen([str(part) for part in command], stdout=subprocess.PIPE,
                                        stderr=self.log, stdin=subprocess.DEVNULL, env=environment)
        self.ready_line = self._first_line()
        assert self.ready_line.startswith(ready), \
            f"{name} said {self.ready_line!r} instead of {ready!r}:\n{self.errors()}"

    def _first_line(self):
        with selectors.DefaultSelector() as selector:
            selector.register(self.process.stdout, selectors.EVENT_READ)
            if not selector.select(bench.SECONDS):
                self.process.kill()
                raise AssertionError(f"{self.name} does not get ready:\n{self.errors()}")
        return self.process.stdout.readline().decode()

    def errors(self):
        """All that it wrote to its standard error, in every life so far."""
        self.log.seek(0)
        return self.log.read().decode(errors="replace")

    def running(self):
        return self.process.poll() is None

    def end(self, how=signal.SIGTERM):
        """Ends it, returns its exit code."""
        if self.running():
            # One that is frozen has to go on before it can end. Not after it was asked to: a sanitized
            # program may look for leaks by then, and hangs if it is sent a signal.
            if how != signal.SIGKILL:
                self.process.send_signal(signal.SIGCONT)
            self.process.send_signal(how)
        try:
            return self.process.wait(bench.SECONDS)
        finally:
            if self.running():
                self.process.kill()
                self.process.wait()
            self.process.stdout.close()
            self.log.close()


class Keypad:
    """The host's keypad socket."""

    def __init__(self, path):
        self.socket = socket.socket(socket.AF_UNIX)
        self.socket.settimeout(bench.SECONDS)
        self.socket.connect(str(path))
        self.lines = self.socket.makefile("rb")
        self.hello = self.lines.readline().decode().strip()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.lines.close()
        self.socket.close()

    def send(self, line):
        self.socket.sendall(line.encode() + b"\n")

    def reply(self):
        return self.lines.readline().decode().strip()

    def describe(self):
        self.send("describe")
        word, _, rest = self.reply().partition(" ")
        assert word == "screen", (word, rest)
        return json.loads(rest)


class Desk:
    """Instrument, host and panel; use it in a with statement."""

    def __init__(self, language="en"):
        self.language = language
        self.host_options = ["--language", language]
        self.temporary = tempfile.TemporaryDirectory()
        self.folder = pathlib.Path(self.temporary.name)
        self.output = self.folder / "output"
        self.output.mkdir()
        self.runtime = self.folder / "runtime"
        self.runtime.mkdir(mode=0o700)
        self.keypad_path = self.runtime / "keypad"
        self.transcript = self.folder / "scpi.log"
        self.environment = {**os.environ, "XDG_RUNTIME_DIR": str(self.runtime),
                            "XDG_CONFIG_HOME": str(self.folder / "config")}
        self.programs = {}
        self.transcripts = 0

    def __enter__(self):
        furnish()
        return self

    def __exit__(self, *_):
        for name in ("panel", "host", "instrument"):
            if name in self.programs:
                self.programs.pop(name).end()
        self.temporary.cleanup()

    def start(self, *names):
        for name in names:
            getattr(self, f"start_{name}")()
        return self

    def start_instrument(self, *options):
        # A new life overwrites the transcript of the one before.
        self.transcripts += 1
        self.transcript = self.folder / f"scpi{self.transcripts}.log"
        self._start("instrument", ["kvx-instrument", "--transcript", self.transcript, *options],
                    "listening on 127.0.0.1:30000", self.environment)

    def start_host(self):
        environment = dict(self.environment)
        environment.pop("QT_QPA_PLATFORM", None)
        self._start("host", ["kvx-host", "--keypad", self.keypad_path, *self.host_options],
                    f"ready: screen 127.0.0.1:{SCREEN_PORT}", environment)

    def start_panel(self):
        environment = {**self.environment, "QT_QPA_PLATFORM": "offscreen"}
        self._start("panel", ["kvx-panel", "--keypad", self.keypad_path, "--language",
                              self.language], "ready", environment)

    def _start(self, name, command, ready, environment):
        command[0] = bench.PROGRAMS / command[0]
        self.programs[name] = Program(name, command, ready, environment, self.folder)

    def kill(self, name):
        """Ends a program without giving it the time for a word."""
        self.programs.pop(name).end(signal.SIGKILL)

    def freeze(self, name):
        """Stops a program where it is; what is sent to it waits."""
        self.programs[name].process.send_signal(signal.SIGSTOP)

    def thaw(self, name):
        self.programs[name].process.send_signal(signal.SIGCONT)

    def keypad(self):
        return Keypad(self.keypad_path)

    def describe(self):
        with self.keypad() as keypad:
            return keypad.describe()

    def texts(self):
        return [item["text"] for item in self.describe()["items"]]

    def play(self, *files, text=None, output=None):
        """Plays scenario files, or lines, and returns what the program did."""
        return subprocess.run(self._player(files or ["-"], output), input=text,
                              capture_output=True, text=True, timeout=4 * bench.SECONDS,
                              check=False, env=self.environment)

    def begin(self, text):
        """Starts to play lines and does not wait for their end."""
        playing = subprocess.Popen(self._player(["-"]), stdin=subprocess.PIPE,
                                   stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True,
                                   env=self.environment)
        playing.stdin.write(text)
        playing.stdin.close()
        return playing

    def _player(self, files, output=None):
        command = [bench.PROGRAMS / "kvx-scenario", "--keypad", self.keypad_path, "--transcript",
                   self.transcript, "--language", self.language, "--output",
                   output or self.output, "--pictures", bench.SOURCE / "tests/scenarios/pictures"]
        if os.environ.get("MPB_APPROVE"):
            command.append("--approve")
        return [str(part) for part in [*command, *files]]

    def check(self, *files, text=None, output=None):
        """Likewise, and everything has to be as expected."""
        done = self.play(*files, text=text, output=output)
        assert done.returncode == 0, done.stdout + done.stderr + self._complaints()
        return done

    def _complaints(self):
        return "".join(f"{name}: {program.errors()}" for name, program in self.programs.items())


def furnish():
    """The instrument's pictures and the examples in the user-data folder, as on a desk."""
    shutil.copytree(os.environ["MPB_APP_DIR"], USER_DATA / ".app", dirs_exist_ok=True)
    (USER_DATA / "examples").mkdir(exist_ok=True)
    for example in bench.EXAMPLES.glob("*.json"):
        shutil.copy(example, USER_DATA / "examples")


def output_folder(name):
    """Pictures stay in the build tree, to be looked at."""
    folder = pathlib.Path(os.environ["MPB_DESK_OUTPUT"]) / name
    folder.mkdir(parents=True, exist_ok=True)
    return folder


def clear_user_data():
    for path in USER_DATA.iterdir():
        if path.is_dir() and not path.is_symlink():
            shutil.rmtree(path)
        else:
            path.unlink()
