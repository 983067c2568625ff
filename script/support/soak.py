# SPDX-License-Identifier: MIT
"""Watches running clocks for growth: samples what they hold, and judges the slope of each column against its noise."""
import argparse
import csv
import os
import pathlib
import plistlib
import signal
import subprocess
import sys
import time

from Xlib.error import XError
from Xlib.ext import res

import growth

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent.parent / "tests" / "support"))
import swayhost  # noqa: E402
import xhost  # noqa: E402

SECONDS_BETWEEN = 5.0
SCREEN = "640x360"
COLUMNS = ["seconds", "clock", "rss_kib", "pss_kib", "own_kib", "descriptors", "threads", "server_kib", "resources",
           "pixmap_kib"]
# Twelve hours of day and night each, whatever the season.
PLACE = {"latitude": 0.0, "longitude": 25.0}
NIGHT = {"enabled": True, "fromMode": "sunset", "toMode": "sunrise", "base": "#0B132B", "mark": "#D9A05B"}


def store():
    """What a user would have chosen."""
    preferences = pathlib.Path(os.environ["XDG_CONFIG_HOME"], "tamsel-clock")
    place = pathlib.Path(os.environ["HOME"], "Library", "Application Support", "Tamsel Clock")
    for folder in preferences, place:
        folder.mkdir(parents=True)
    settings = {"CalendarEnabled": True, "NightSettings": NIGHT, "SelectedVariant": "blue"}
    (preferences / "org.tamsel.VornakClockSaver.plist").write_bytes(plistlib.dumps(settings))
    (place / "location.plist").write_bytes(plistlib.dumps(PLACE))


def memory(pid):
    """Kibibytes: resident, the same with shared ones divided among their users, and from no file."""
    lines = pathlib.Path(f"/proc/{pid}/smaps_rollup").read_text().splitlines()
    kib = {line.split()[0]: int(line.split()[1]) for line in lines[1:]}
    return kib["Rss:"], kib["Pss:"], kib["Anonymous:"]


class XScreen:
    """An X server of its own."""
    name = "X11"

    def __init__(self):
        self.server = xhost.launch_x_server("-screen", "0", SCREEN + "x24")
        self.environment = {"DISPLAY": os.environ.pop("DISPLAY"), "QT_QPA_PLATFORM": "xcb"}
        self.display = xhost.display.Display(self.environment["DISPLAY"])

    def held_for(self, pid):
        """What the server holds for a process: the number of resources, and kibibytes of pixmaps."""
        try:
            pid_of = [{"client": 0, "mask": res.LocalClientPIDMask}]
            owned = [known.spec.client for known in self.display.res_query_client_ids(pid_of).ids
                     if list(known.value) == [pid]]
            count = sum(kind.count for client in owned
                        for kind in self.display.res_query_client_resources(client).types)
            return count, sum(self.display.res_query_client_pixmap_bytes(client).bytes for client in owned) // 1024
        except XError:  # a connection that the process used for a moment ended in between
            return self.held_for(pid)


class WaylandScreen:
    """A compositor of its own, without a picture that anybody sees."""
    name = "Wayland"

    def __init__(self):
        self.server = swayhost.launch_sway(f"resolution {SCREEN}")
        self.environment = {"WAYLAND_DISPLAY": os.environ["WAYLAND_DISPLAY"], "QT_QPA_PLATFORM": "wayland"}

    def held_for(self, _pid):
        return "", ""


class Clock:
    """A clock that fills a screen."""

    def __init__(self, program, speed, screen):
        environment = {**os.environ, **screen.environment}
        if speed != 1:
            library = next(pathlib.Path("/usr/lib").glob("*/faketime/libfaketime.so.1"))
            # What measures pauses keeps its pace, so that as many frames are drawn as ever.
            environment.update(LD_PRELOAD=f"{environment['LD_PRELOAD']}:{library}", FAKETIME=f"+0 x{speed}",
                               FAKETIME_DONT_FAKE_MONOTONIC="1", DONT_FAKE_MONOTONIC="1")
        self.screen = screen
        self.process = subprocess.Popen([program], env=environment)

    def sample(self):
        pid = self.process.pid
        process = pathlib.Path(f"/proc/{pid}")
        counts = (len(list((process / folder).iterdir())) for folder in ("fd", "task"))
        return [self.screen.name, *memory(pid), *counts, memory(self.screen.server.pid)[0],
                *self.screen.held_for(pid)]


def watch(options):
    """Samples until the time is over or a signal ends it; False when a clock ended."""
    store()
    clocks = [Clock(options.program, options.speed, screen()) for screen in (XScreen, WaylandScreen)]
    begin = time.monotonic()
    with open(options.file, "w", newline="", encoding="utf-8") as file:
        samples = csv.writer(file)
        samples.writerow(COLUMNS)
        try:
            while (passed := time.monotonic() - begin) < options.hours * 3600:
                if any(clock.process.poll() is not None for clock in clocks):
                    print("script/soak: a clock ended", file=sys.stderr)
                    return False
                samples.writerows([round(passed, 1), *clock.sample()] for clock in clocks)
                file.flush()
                time.sleep(SECONDS_BETWEEN)
        except KeyboardInterrupt:
            pass
        finally:
            for clock in clocks:
                for process in clock.process, clock.screen.server:
                    process.terminate()
                    process.wait()
    return True


def main():
    parser = argparse.ArgumentParser(prog="script/soak")
    parser.add_argument("--hours", type=float, default=0.125)
    parser.add_argument("--speed", type=float, default=1)
    parser.add_argument("--file")
    parser.add_argument("--program")
    parser.add_argument("--report")
    options = parser.parse_args()
    if options.report:
        return growth.report(options.report)
    signal.signal(signal.SIGTERM, signal.default_int_handler)
    print(f"process {os.getpid()} samples to {options.file}", flush=True)
    alive = watch(options)
    return growth.report(options.file) or not alive


sys.exit(main())
