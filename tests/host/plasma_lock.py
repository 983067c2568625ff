#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The clock on Plasma's lock screen: it is the picture of the same moment, follows the settings at once, and nothing
that happens to these or to the bus ends the locker."""
import datetime
import math
import os
import pathlib
import signal
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from xhost import ORANGE, Host, check, is_alive, start_x_server, stop, wait_for  # noqa: E402

LOCKER = sys.argv[1]
SCALE = float(sys.argv[2])
# Of the scene graph. Emulated, a graphics card is behind by several frames.
BACKEND = sys.argv[3]
BLUE = (0, 33, 208)
WIDTH, HEIGHT = 960, 600
POINTS = f"{WIDTH / SCALE:.0f}", f"{HEIGHT / SCALE:.0f}"
EDGE_TOLERANCE = 4
SOCKET = "wayland-lock"
folder = pathlib.Path(os.environ["XDG_CONFIG_HOME"], "tamsel-clock")
# Plasma's own time would stand on the dial.
pathlib.Path(os.environ["XDG_CONFIG_HOME"], "kscreenlockerrc").write_text(
    "[Greeter]\nWallpaperPlugin=org.tamsel.clock\n[Greeter][LnF][General]\nalwaysShowClock=false\n")
start_x_server("-screen", "0", f"{WIDTH}x{HEIGHT}x24")
os.environ.pop("QT_QPA_PLATFORM", None)
os.environ.update(LIBGL_ALWAYS_SOFTWARE="1", QT_QUICK_BACKEND=BACKEND,
                  DBUS_SYSTEM_BUS_ADDRESS=os.environ["DBUS_SESSION_BUS_ADDRESS"])
host = Host()


def start(*command):
    return subprocess.Popen(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)


def pixels(picture):
    return subprocess.run(["convert", picture, "-depth", "8", "rgb:-"], check=True, capture_output=True).stdout


def screen():
    name = f"{os.environ['TMPDIR']}/screen.png"
    subprocess.run(["import", "-window", "root", name], check=True)
    if "LOOK" in os.environ:
        subprocess.run(["cp", name, f"{os.environ['LOOK']}/plasma-lock-{SCALE}-{BACKEND}.png"], check=True)
    return pixels(name)


def snapshot(at):
    name = f"{os.environ['TMPDIR']}/snapshot.png"
    subprocess.run(["tamsel-clock", "--snapshot", name, "--at", at.isoformat(timespec="milliseconds"), "--scale",
                    str(SCALE), "--size", "x".join(POINTS)], check=True)
    return pixels(name)


def passes_second_hand(x, y, second):
    """Whether the hand or its tail comes near there within the time that a picture takes."""
    x, y = x - WIDTH / 2, y - HEIGHT / 2
    behind = (math.degrees(math.atan2(x, -y)) - 6 * second + 8) % 180  # from 8 degrees before the hand's place
    return math.hypot(x, y) < 0.05 * HEIGHT or behind < 16


def is_picture_of_now():
    now = datetime.datetime.now()
    if now.second >= 58:
        return False
    shown, expected = screen(), snapshot(now)
    wrong = {i // 3 for i, (a, b) in enumerate(zip(shown, expected)) if abs(a - b) > EDGE_TOLERANCE}
    second = now.second + now.microsecond / 1e6
    return all(passes_second_hand(i % WIDTH, i // WIDTH, second) for i in wrong)


compositor = start("kwin_wayland", "--x11-display", os.environ["DISPLAY"], "--no-lockscreen", "--no-global-shortcuts",
                   "--width", POINTS[0], "--height", POINTS[1], "--scale", str(SCALE), "--socket", SOCKET)
wait_for("a compositor", lambda: os.path.exists(os.path.join(os.environ["XDG_RUNTIME_DIR"], SOCKET)), 30)
del os.environ["DISPLAY"]
os.environ["WAYLAND_DISPLAY"] = SOCKET
locker = start(LOCKER, "--testing")
os.environ["DISPLAY"] = host.display.get_display_name()
wait_for("a clock", lambda: host.shows(ORANGE, 2, 2), 30)
wait_for("the picture of now", is_picture_of_now, 30)

subprocess.run(["tamsel-clock", "--set", "SelectedVariant", "blue"], check=True)
start_of_change = time.monotonic()
wait_for("another variant", lambda: host.shows(BLUE, 2, 2))
passed = time.monotonic() - start_of_change
check(passed < 0.15 or BACKEND != "software", f"a setting is followed within 0.1 s and what this test takes, not {passed:.3f} s")
store = folder / "org.tamsel.VornakClockSaver.plist"
for path in folder.rglob("*.plist"):
    if path != store:
        path.unlink()
store.write_bytes(b"<plist><dict><key>\xff" * 1000)
wait_for("what damaged settings count as", lambda: host.shows(ORANGE, 2, 2))

daemon = int(subprocess.run(["pgrep", "--newest", "--exact", "dbus-daemon"], check=True, capture_output=True).stdout)
os.kill(daemon, signal.SIGSTOP)
before = screen()
wait_for("a second hand that goes on", lambda: screen() != before)
os.kill(daemon, signal.SIGCONT)
wait_for("the picture of now", is_picture_of_now, 30)
check(is_alive(locker), "the locker runs")
stop(locker, signal.SIGKILL)
compositor.terminate()
compositor.wait()
