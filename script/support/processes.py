# SPDX-License-Identifier: MIT
"""What whole programs cost on an X server or a Wayland compositor: CPU of client and server, wake-ups, start, memory."""
import contextlib
import os
import pathlib
import plistlib
import re
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import threading
import time
from collections.abc import Callable
from dataclasses import dataclass, fields

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent.parent / "tests" / "support"))
import swayhost  # noqa: E402
import xhost  # noqa: E402

NO_COLOUR = (255, 0, 255)
SETTLING_SECONDS = 2.0
FADE_SECONDS = 3.0
# What a sweeping hand costs differs with the rows it lies in. It has all its slants in half a turn, which is watched in
# two parts, so that a change of the processor's pace meets all programs.
HALF_TURN = 30.0
SWEEP_SECONDS = HALF_TURN / 2
HACKS = pathlib.Path("/usr/libexec/xscreensaver")
NIGHT = {"from": 0, "to": 1439, "fromMode": "custom", "toMode": "custom"}


@dataclass
class Usage:
    """Per cent of one core, and how often the client wakes up in a second."""
    client: float
    server: float
    wakes: float

    @property
    def total(self):
        return self.client + self.server


@dataclass
class Case:
    """A program, what else goes on while it is watched, and whether it shows the second hand, whose slant decides."""
    command: list
    around: Callable = contextlib.nullcontext
    sweeps: bool = False


@dataclass
class Start:
    """Median seconds to the first frame, and peak memory in MiB."""
    clock: float
    empty: float
    clock_peak: float
    empty_peak: float


def on_display():
    return {k: v for k, v in os.environ.items() if k != "QT_QPA_PLATFORM"}


def consumed(pid):
    """CPU seconds and wake-ups of all threads of a process so far."""
    seconds = wakes = 0
    for task in pathlib.Path(f"/proc/{pid}/task").iterdir():
        seconds += int((task / "schedstat").read_text().split()[0]) / 1e9
        wakes += int(re.search(r"\nvoluntary_ctxt_switches:\s*(\d+)", (task / "status").read_text())[1])
    return seconds, wakes


def usage(command, server, seconds, phase=None):
    """What a program costs for a while, of which the second hand's half turn is to begin at `phase` seconds."""
    program = subprocess.Popen(command, env=on_display(), stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    time.sleep(SETTLING_SECONDS)
    if phase is not None:
        time.sleep((phase - time.time()) % HALF_TURN)
    begin = time.monotonic()
    (client_before, wakes_before), (server_before, _) = consumed(program.pid), consumed(server)
    time.sleep(seconds)
    (client, wakes), (served, _) = consumed(program.pid), consumed(server)
    passed = time.monotonic() - begin
    program.terminate()
    program.wait()
    return Usage(100 * (client - client_before) / passed, 100 * (served - server_before) / passed,
                 (wakes - wakes_before) / passed)


def store(settings):
    """Stores settings as another process would."""
    folder = pathlib.Path(os.environ["XDG_CONFIG_HOME"]) / "tamsel-clock"
    folder.mkdir(exist_ok=True)
    with tempfile.NamedTemporaryFile(dir=folder, delete=False) as file:
        plistlib.dump(settings, file)
    os.replace(file.name, folder / "org.tamsel.VornakClockSaver.plist")


@contextlib.contextmanager
def stored(settings):
    store(settings)
    yield
    store({})


@contextlib.contextmanager
def fading():
    """Night and day in turns, each as soon as the fade to the last one is over."""
    end = threading.Event()

    def flip():
        enabled = True
        pause = SETTLING_SECONDS / 2
        while not end.wait(pause):
            store({"NightSettings": {**NIGHT, "enabled": enabled}})
            enabled = not enabled
            pause = FADE_SECONDS
    flipping = threading.Thread(target=flip)
    flipping.start()
    yield
    end.set()
    flipping.join()
    store({})


def mean(usages):
    return Usage(*(statistics.mean(getattr(usage, field.name) for usage in usages) for field in fields(Usage)))


def measured(cases, server, half_turns, seconds):
    """The mean usage of each program by name, all measured in turns. Of the second hand's half turn, sweeping ones show
    all; others are watched for some seconds."""
    found = {}
    for part in range(2 * half_turns):
        for name, case in cases.items():
            if not shutil.which(case.command[0]):
                sys.exit(f"{case.command[0]} is not installed")
            phase = part % 2 * SWEEP_SECONDS if case.sweeps else None
            with case.around():
                watched = SWEEP_SECONDS if case.sweeps or name.startswith("floor") else seconds
                found.setdefault(name, []).append(usage(case.command, server, watched, phase))
    return {name: mean(parts) for name, parts in found.items()}


def common_cases(floor, size, pixels, clock):
    return {
        "floor": Case([floor, size, str(pixels)]),
        "floor: 420 x 420 pixels": Case([floor, size, str(420 * 420)]),
        "the clock": Case(clock, sweeps=True),
        "the clock with calendar": Case(clock, lambda: stored({"CalendarEnabled": True}), sweeps=True),
        "the clock in a fade": Case(clock, fading),
    }


def x_usages(build, width, height, pixels, half_turns, seconds):
    size = f"{width}x{height}"
    clock = [build / "bin" / "tamsel-clock"]
    cases = common_cases(build / "benchmarks" / "floor", size, pixels, clock) | {
        "the clock as a thumbnail": Case([*clock, "--window", "--size", "240x135"]),
        "xclock -render": Case(["xclock", "-analog", "-render", "-update", "0.033", "-geometry", f"{size}+0+0"]),
        "swisswatch": Case(["swisswatch", "-tick", "0.033", "-geometry", f"{size}+0+0"]),
        "fuzzyflakes": Case([HACKS / "fuzzyflakes", "-root"]),
    }
    server = xhost.launch_x_server("-screen", "0", f"{size}x24")
    return measured(cases, server.pid, half_turns, seconds)


def wayland_usages(build, width, height, pixels, half_turns, seconds):
    size = f"{width}x{height}"
    clock = [build / "bin" / "tamsel-clock"]
    through_toolkit = ["env", f"{swayhost.LEFT_TO_TOOLKIT}=1", *clock]
    cases = common_cases(build / "benchmarks" / "wayland_floor", size, pixels, clock) | {
        "the clock through the toolkit": Case(through_toolkit, sweeps=True),
        "the clock in a fade through the toolkit": Case(through_toolkit, fading),
    }
    sway = swayhost.launch_sway(f"resolution {size}")
    try:
        return measured(cases, sway.pid, half_turns, seconds)
    finally:
        sway.terminate()
        sway.wait()


def first_frame(command, host):
    """Seconds from starting a program to its first picture in a host's window, and its peak memory in MiB."""
    window = host.window(0, 0, 1920, 1080)
    start = time.monotonic()
    program = subprocess.Popen(command, env={**on_display(), "XSCREENSAVER_WINDOW": hex(window.id)})
    while host.pixel(5, 5) == NO_COLOUR:
        time.sleep(0.001)
    seconds = time.monotonic() - start
    time.sleep(0.5)
    status = pathlib.Path(f"/proc/{program.pid}/status").read_text()
    peak = int(status.split("VmHWM:")[1].split()[0]) / 1024
    program.send_signal(signal.SIGTERM)
    program.wait()
    window.destroy()
    host.display.sync()
    return seconds, peak


def starts(build, times):
    xhost.start_x_server("-screen", "0", "1920x1080x24")
    host = xhost.Host()
    # In turns, so that a busy moment of the machine meets both.
    pairs = [(first_frame([build / "bin" / "tamsel-clock", "--root"], host),
              first_frame([build / "benchmarks" / "empty_window"], host)) for _ in range(times)]
    clocks, empties = zip(*pairs)
    # Not the quickest: that is an accident which comes to one of the two.
    return Start(*(statistics.median(run[part] for run in runs) for part in (0, 1) for runs in (clocks, empties)))
