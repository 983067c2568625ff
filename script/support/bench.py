# SPDX-License-Identifier: MIT
"""Runs the benchmarks of a build folder and the program beside its peers, and prints one table of ratios."""
import json
import os
import pathlib
import subprocess
import sys

import processes

BUILD = pathlib.Path(sys.argv[1]).resolve()
QUICK = "--quick" in sys.argv
REPETITIONS = 3 if QUICK else 5
MICROSECONDS = {"ns": 1e-3, "us": 1.0, "ms": 1e3, "s": 1e6}
SIZES = {"1080p": (1920, 1080), "4K": (3840, 2160)}


def micro(program):
    """The least CPU time of each benchmark of one program, in microseconds by name, and the counters."""
    output = subprocess.run(
        [BUILD / "benchmarks" / program, f"--benchmark_repetitions={REPETITIONS}", "--benchmark_format=json",
         "--benchmark_min_time=0.1"], capture_output=True, text=True, check=True).stdout
    least, pixels = {}, {}
    for run in json.loads(output[output.index("{"):])["benchmarks"]:
        if run["run_type"] == "iteration":
            name = run["run_name"].split("/min_")[0].split("/repeats")[0]
            least[name] = min(least.get(name, float("inf")), run["cpu_time"] * MICROSECONDS[run["time_unit"]])
            pixels[name] = run.get("pixels")
    return least, pixels


def row(*cells):
    print("| " + " | ".join(cells) + " |", flush=True)


def frames(times):
    for size, (width, height) in SIZES.items():
        fill = times[f"plainFill/{width}/{height}"]
        row(f"fill, {size}", f"{fill:.0f} µs", "")
        row(f"frame drawn anew, {size}", f"{times[f'frame/{width}/{height}'] / fill:.1f} fills", "")
        row(f"full frame through Qt, {size}", f"{times[f'paint/whole/{width}/{height}'] / fill:.1f} fills",
            "8" if size == "1080p" else "")
        row(f"steady frame through Qt, {size}", f"{times[f'paint/steady/{width}/{height}'] / fill:.2f} fills", "")
        row(f"fading frame through Qt, {size}", f"{times[f'paint/fading/{width}/{height}'] / fill:.1f} fills", "")
    row("artwork load", f"{times['artworkLoad']:.0f} µs", "")


def units():
    for program, what in [("bench_calendar", "calendar"), ("bench_settings", "settings"),
                          ("bench_schedule", "schedule"), ("bench_controls", "controls")]:
        for name, microseconds in micro(program)[0].items():
            row(f"{what}: {name}", f"{microseconds:.2f} µs", "")


def starts():
    start = processes.starts(BUILD, 5 if QUICK else 25)
    row("start to first frame", f"{start.clock * 1000:.0f} ms, {start.clock / start.empty:.2f} empty windows", "1.3")
    row("peak memory at 1080p", f"{start.clock_peak:.0f} MiB, {start.clock_peak - start.empty_peak:.0f} above an "
        "empty window", "one surface: 8 above")


def cpu(pixels, usages, server):
    """CPU of client and server together, against a bare program that puts as many pixels, and one that always puts as
    many."""
    for size, (width, height) in SIZES.items():
        print(f"\n### In motion under {server}, {size}\n\nPer cent of one core, client and server.\n")
        row("what", "client", "server", "together", "floors", "floors of 420 x 420", "wake-ups a second")
        row(*["---"] * 7)
        put = round(pixels[f"paint/steady/{width}/{height}"])
        found = usages(BUILD, width, height, put, half_turns=1 if QUICK else 2, seconds=3)
        floor, fixed = found["floor"].total, found["floor: 420 x 420 pixels"].total
        for name, usage in found.items():
            label = f"floor: {put} pixels" if name == "floor" else name
            row(label, f"{usage.client:.2f}", f"{usage.server:.2f}", f"{usage.total:.2f}",
                f"{usage.total / floor:.2f}", f"{usage.total / fixed:.2f}", f"{usage.wakes:.0f}")


def main():
    os.setpriority(os.PRIO_PROCESS, 0, -5 if os.geteuid() == 0 else 0)
    row("what", "measured", "at most")
    row(*["---"] * 3)
    times, pixels = micro("bench_frame")
    frames(times)
    units()
    starts()
    cpu(pixels, processes.x_usages, "X")
    cpu(pixels, processes.wayland_usages, "sway")


main()
