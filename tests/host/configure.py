#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The options window driven as a user drives it, by pointer and by keys alone; then what is stored, by another reader."""
import os
import pathlib
import plistlib
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from xhost import ORANGE, Host, check, is_alive, start_x_server, wait_for  # noqa: E402

PROGRAM = sys.argv[1]
start_x_server("-screen", "0", "900x1000x24")
host = Host()
environment = {k: v for k, v in os.environ.items() if k != "QT_QPA_PLATFORM"}
suite = pathlib.Path(os.environ["XDG_CONFIG_HOME"], "tamsel-clock", "org.tamsel.VornakClockSaver.plist")


def start():
    return subprocess.Popen([PROGRAM, "--configure"], env=environment, stderr=subprocess.PIPE, text=True)


def xdotool(*arguments):
    return subprocess.run(["xdotool", *arguments], check=True, capture_output=True, text=True).stdout


def origin(program):
    found = wait_for("the options window", lambda: subprocess.run(
        ["xdotool", "search", "--onlyvisible", "--pid", str(program.pid)], capture_output=True, text=True).stdout)
    lines = xdotool("getwindowgeometry", "--shell", found.split()[-1]).splitlines()
    values = dict(line.split("=") for line in lines)
    return int(values["X"]), int(values["Y"])


def click(program, x, y):
    left, top = origin(program)
    xdotool("mousemove", str(left + x), str(top + y), "click", "1")


def preview_shows(program, colour):
    left, top = origin(program)
    return host.shows(colour, left + 28 + 12, top + 28 + 12)


def ended(program, status):
    wait_for("the end of the program", lambda: program.poll() is not None)
    check(program.returncode == status, f"status {status}, not {program.returncode}")
    check(program.stderr.read() == "", "a quiet end")


def stored():
    return plistlib.loads(suite.read_bytes()) if suite.exists() else {}


# By pointer: blue with the month, then OK.
program = start()
wait_for("the preview", lambda: preview_shows(program, ORANGE))
click(program, 28 + 182 + 64 + 14, 252 + 21)
wait_for("the preview in blue", lambda: preview_shows(program, (0, 33, 208)))
click(program, 28 + 316, 252 + 52 + 21)
second = start()
ended(second, 0)  # brings the first to the front instead of opening another
check(is_alive(program), "the first window stays")
check(stored() == {}, "nothing is stored before OK")
xdotool("key", "Return")
ended(program, 0)
values = stored()
check(values["SelectedVariant"] == "blue" and values["CalendarEnabled"] is True, f"what was chosen: {values}")
check(values["NightSettings"]["enabled"] is False and values["NightSettings"]["fromMode"] == "sunset",
      f"the night's defaults: {values['NightSettings']}")

# Cancel changes nothing.
before = suite.read_bytes()
program = start()
wait_for("the stored variant", lambda: preview_shows(program, (0, 33, 208)))
click(program, 28 + 182 + 14, 252 + 21)
wait_for("the preview in cream", lambda: preview_shows(program, (255, 245, 232)))
xdotool("key", "Escape")
ended(program, 3)
check(suite.read_bytes() == before, "Cancel stores nothing")

# By keys alone: the variant swatches come first; four times Tab reach black, and Space chooses it.
program = start()
wait_for("the stored variant", lambda: preview_shows(program, (0, 33, 208)))
for _ in range(12):
    if preview_shows(program, (0, 0, 0)):
        break
    xdotool("key", "Tab", "key", "space")
    time.sleep(0.4)
check(preview_shows(program, (0, 0, 0)), "Tab and Space reach every swatch")
xdotool("key", "Return")
ended(program, 0)
check(stored()["SelectedVariant"] == "nero", f"what the keys chose: {stored()}")
