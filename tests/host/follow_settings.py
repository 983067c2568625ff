#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A running clock follows its settings files, whoever writes them and however, and outlives what is wrong with them."""
import os
import pathlib
import plistlib
import signal
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from xhost import ORANGE, Host, check, is_alive, start_x_server, stop, wait_for  # noqa: E402

PROGRAM = sys.argv[1]
BLUE, CREAM, NERO = (0, 33, 208), (255, 245, 232), (0, 0, 0)
start_x_server("-screen", "0", "640x360x24")
host = Host()
window = host.window(0, 0, 320, 180)
folder = pathlib.Path(os.environ["XDG_CONFIG_HOME"], "tamsel-clock")
suite = folder / "org.tamsel.VornakClockSaver.plist"


def replace(path, values, form=plistlib.FMT_XML):
    """As an editor does it: a new file takes the old one's place."""
    new = path.with_suffix(".new")
    new.write_bytes(plistlib.dumps(values, fmt=form))
    new.rename(path)


def shown_soon(colour, what):
    """On screen within a frame; the X server and this test get another tenth of a second."""
    start = time.monotonic()
    wait_for(what, lambda: host.shows(colour, 2, 2), 2)
    check(time.monotonic() - start < 0.15, f"{what} within a frame, not {time.monotonic() - start:.3f} s")


program = subprocess.Popen([PROGRAM, "--root"], stderr=subprocess.PIPE, text=True,
                           env={**os.environ, "XSCREENSAVER_WINDOW": hex(window.id)})
wait_for("the default", lambda: host.shows(ORANGE, 2, 2))  # no folder of settings exists yet

folder.mkdir(parents=True)
replace(suite, {"SelectedVariant": "blue"})
shown_soon(BLUE, "a store that came into being")
replace(suite, {"SelectedVariant": "cream"}, plistlib.FMT_BINARY)
shown_soon(CREAM, "a binary store")
suite.write_bytes(plistlib.dumps({"SelectedVariant": "nero"}))
shown_soon(NERO, "a store written in place")
suite.write_bytes(b"<plist><dict><key>Selec")
shown_soon(ORANGE, "the default of a damaged store")
replace(suite, {"SelectedVariant": ["blue"], "CalendarEnabled": "maybe", "NightSettings": 7, "CustomBaseColor": {}})
time.sleep(0.1)
check(host.shows(ORANGE, 2, 2), "wrong types everywhere give the defaults")
replace(folder / "screensaver.plist", {})
(folder / "screensaver").mkdir()
replace(folder / "screensaver" / "VornakClockSaver.plist", {"SelectedVariant": "blue"})
shown_soon(BLUE, "the last store that is asked")

suite.unlink()
os.mkfifo(suite)
time.sleep(0.1)
check(host.shows(BLUE, 2, 2) and is_alive(program), "a FIFO counts as empty and holds nothing up")
suite.unlink()
suite.symlink_to(suite)
time.sleep(0.1)
check(host.shows(BLUE, 2, 2) and is_alive(program), "a loop of links counts as empty")
suite.unlink()
with open(suite, "wb") as sparse:
    sparse.truncate(1 << 30)
time.sleep(0.1)
check(host.shows(BLUE, 2, 2) and suite.stat().st_size == 1 << 30, "a huge file counts as empty and is left alone")
suite.unlink()

minute = time.localtime().tm_hour * 60 + time.localtime().tm_min
replace(suite, {"NightSettings": {"enabled": True, "from": (minute + 1439) % 1440, "to": (minute + 60) % 1440,
                                  "base": "#123456", "mark": "#FEDCBA"}})
wait_for("the end of the fade into the night", lambda: host.shows((0x12, 0x34, 0x56), 2, 2), 5)

check(stop(program, signal.SIGTERM) == 0 and program.stderr.read() == "", "a quiet end")
