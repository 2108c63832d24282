# SPDX-FileCopyrightText: 2026 The multi-pulse builder developers
# SPDX-License-Identifier: MIT
"""Measures the desk in the world that it runs in: time to a usable front, latency, idle processor use.

usage: desk.py PROGRAMS SHARE SCENARIO [ROUNDS]
"""

import json
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import time

IDLE_SECONDS = 10
PLATFORM = {"kvx-panel": os.environ.get("MPB_PANEL_PLATFORM", "offscreen")}


def start(program, *options, ready):
    """Starts a program and waits for the line that says that it is ready."""
    env = dict(os.environ)
    if program in PLATFORM:
        env["QT_QPA_PLATFORM"] = PLATFORM[program]
    process = subprocess.Popen([str(PROGRAMS / program), *options], stdout=subprocess.PIPE,
                               text=True, env=env)
    line = process.stdout.readline()
    if not line.startswith(ready):
        sys.exit(f"{program} said {line!r}")
    return process


def start_desk(keypad):
    return [start("kvx-instrument", ready="listening on"),
            start("kvx-host", "--keypad", keypad, ready="ready:"),
            start("kvx-panel", "--keypad", keypad, "--no-settings", ready="ready")]


def end(processes):
    for process in reversed(processes):
        process.terminate()
        process.wait()


def cpu_seconds(process):
    fields = pathlib.Path(f"/proc/{process.pid}/stat").read_text().rsplit(")", 1)[1].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


def idle_use(processes):
    """Processor use of each program in percent of one core, while nobody does anything."""
    before = [cpu_seconds(process) for process in processes]
    time.sleep(IDLE_SECONDS)
    return [(cpu_seconds(process) - start) / IDLE_SECONDS * 100
            for process, start in zip(processes, before)]


def report_idle(what, processes):
    uses = idle_use(processes)
    parts = ", ".join(f"{use:.1f}" for use in uses)
    print(f"idle, {what}: {sum(uses):.1f} % of one core (generator, host, panel: {parts})")


def report_latency(keypad, rounds):
    command = [PROGRAMS / "bench_desk", "5900", keypad, f"--benchmark_repetitions={rounds}",
               "--benchmark_format=json"]
    done = subprocess.run([str(part) for part in command], stdout=subprocess.PIPE, text=True,
                          env={**os.environ, "QT_QPA_PLATFORM": "offscreen"}, check=True)
    times = {}
    for entry in json.loads(done.stdout)["benchmarks"]:
        if entry["run_type"] == "iteration":
            times.setdefault(entry["run_name"].split("/")[0], []).append(entry["real_time"])
    for name, values in times.items():
        values.sort()
        print(f"{name}: median {statistics.median(values):.1f} ms, "
              f"nine in ten below {values[len(values) * 9 // 10]:.1f} ms ({len(values)} times)")


def main():
    rounds = int(sys.argv[4]) if len(sys.argv) > 4 else 40
    with tempfile.TemporaryDirectory() as folder:
        keypad = folder + "/keypad"
        starts = []
        for _ in range(5):
            begin = time.monotonic()
            processes = start_desk(keypad)
            starts.append(time.monotonic() - begin)
            end(processes)
        print(f"three programs started to a shown screen: median {statistics.median(starts):.2f} s")
        processes = start_desk(keypad)
        try:
            report_idle("home screen", processes)
            subprocess.run([str(PROGRAMS / "kvx-scenario"), "--keypad", keypad, sys.argv[3],
                            "--output", folder], check=True, stdout=subprocess.DEVNULL)
            report_latency(keypad, rounds)
            report_idle("editor open", processes)
        finally:
            end(processes)


PROGRAMS = pathlib.Path(sys.argv[1])
os.environ["MPB_TRANSLATIONS_DIR"] = sys.argv[2] + "/translations"
main()
