#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The clock under the compositor of a desktop, kwin or gnome, whose outputs are in windows of an X server: every output
is covered, at its scale where they differ, by a clock that is started and by one that waits for an idle user."""
import os
import signal
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from xhost import ORANGE, Host, check, start_x_server, stop, wait_for  # noqa: E402
from Xlib.error import BadDrawable, BadMatch  # noqa: E402

WIDTH, HEIGHT = 1200, 700
BLACK = (0, 0, 0)
SOCKET = "wayland-desktop"
desktop = sys.argv[1]
start_x_server("-screen", "0", f"{2 * WIDTH}x{HEIGHT}x24")
os.environ.pop("QT_QPA_PLATFORM", None)
# No daemon of the system is there to be asked.
os.environ.update(LIBGL_ALWAYS_SOFTWARE="1", DBUS_SYSTEM_BUS_ADDRESS=os.environ["DBUS_SESSION_BUS_ADDRESS"])
host = Host()


def run(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def start(*command, **variables):
    process = subprocess.Popen(command, env={**os.environ, **variables}, stdout=subprocess.DEVNULL,
                               stderr=subprocess.DEVNULL)
    path = os.path.join(os.environ["XDG_RUNTIME_DIR"], SOCKET)
    wait_for(f"{desktop}", lambda: os.path.exists(path), 30)
    return process


def outputs():
    """The compositor's windows, oldest first."""
    found = []
    for window in host.screen.root.query_tree().children:
        try:
            if window.get_geometry().width >= WIDTH:
                found.append((window.id, window))
        except BadDrawable:
            pass
    return [window for _, window in sorted(found)]


def start_kwin():
    compositor = start("kwin_wayland", "--x11-display", os.environ["DISPLAY"], "--no-lockscreen",
                       "--no-global-shortcuts", "--width", str(WIDTH), "--height", str(HEIGHT), "--output-count", "2",
                       "--socket", SOCKET)
    wait_for("two outputs", lambda: len(outputs()) == 2)
    for i, window in enumerate(outputs()):
        window.configure(x=i * WIDTH, y=0)
    host.display.sync()
    os.environ["WAYLAND_DISPLAY"] = SOCKET
    run("kscreen-doctor", "output.2.scale.1.5")
    return compositor


def start_gnome():
    compositor = start("gnome-shell", "--nested", "--wayland", "--wayland-display", SOCKET, "--no-x11",
                       MUTTER_DEBUG_NUM_DUMMY_MONITORS="2", MUTTER_DEBUG_DUMMY_MODE_SPECS=f"{WIDTH}x{HEIGHT}")
    os.environ["WAYLAND_DISPLAY"] = SOCKET
    run("gdbus", "wait", "--session", "--timeout=30", "org.gnome.Shell")
    return compositor


def is_covered(x):
    def at(colour, across, down):
        try:
            return host.shows(colour, int(x + across), int(down))
        except BadMatch:
            return False
    return (at(ORANGE, 1, 1) and at(ORANGE, WIDTH - 2, HEIGHT - 2)
            and at(BLACK, WIDTH / 2, 0.145 * HEIGHT) and at(ORANGE, WIDTH / 2, 0.05 * HEIGHT)
            and at(BLACK, WIDTH / 2 + 0.355 * HEIGHT, HEIGHT / 2))


def leave_overview():
    """The shell starts in its overview, which has no full-screen windows, and returns to it while it starts."""
    call = ["gdbus", "call", "--session", "--dest", "org.gnome.Shell", "--object-path", "/org/gnome/Shell", "--method",
            "org.freedesktop.DBus.Properties.Set", "org.gnome.Shell", "OverviewActive", "<false>"]
    time.sleep(1.0)  # it gets nowhere when it is told all the time
    return subprocess.run(call, capture_output=True, check=False).returncode == 0


compositor = start_kwin() if desktop == "kwin" else start_gnome()
clock = subprocess.Popen(["tamsel-clock"])
wait_for("a clock on both outputs", lambda: (desktop == "kwin" or leave_overview()) and is_covered(0)
         and is_covered(WIDTH), 60)
if "LOOK" in os.environ:
    run("import", "-window", "root", f"{os.environ['LOOK']}/{desktop}.png")
check(stop(clock, signal.SIGTERM) == 0, "SIGTERM ends with status 0")

waiting = subprocess.Popen(["tamsel-clock", "--idle", "0.05"])
wait_for("a clock when nobody is there", lambda: is_covered(0) and is_covered(WIDTH), 30)
for place in 300, 600:
    run("xdotool", "mousemove", str(place), "400")
wait_for("the clock to leave", lambda: not is_covered(0), 10)
wait_for("the clock again", lambda: is_covered(0) and is_covered(WIDTH), 30)
check(stop(waiting, signal.SIGTERM) == 0, "SIGTERM ends the waiting with status 0")
compositor.terminate()
compositor.wait()
