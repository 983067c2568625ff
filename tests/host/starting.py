#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Starts in sessions that are not well: buses that hang, a display server that resets, lists of platforms; and second
starts, whose window is there already."""
import os
import re
import signal
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from screenreader import start_desktop, xdotool  # noqa: E402
from xhost import ORANGE, Host, check, launch_x_server, wait_for  # noqa: E402

PROGRAM, COMPANION = sys.argv[1:]
start_desktop("1000x1000")
host = Host()
hosts_window = host.window(0, 0, 64, 36)
HOSTED = {"XSCREENSAVER_WINDOW": hex(hosts_window.id)}


def shows_window(program):
    return subprocess.run(["xdotool", "search", "--onlyvisible", "--pid", str(program.pid)], capture_output=True,
                          check=False).stdout


def draws(_):
    return host.shows(ORANGE, 2, 2)


WAYS = [([PROGRAM, "--window"], {}, shows_window), ([PROGRAM], {}, shows_window),
        ([PROGRAM, "--configure"], {}, shows_window), ([COMPANION], {}, shows_window),
        ([PROGRAM, "--root"], HOSTED, draws), ([PROGRAM, "--window-id", hex(hosts_window.id)], {}, draws),
        ([PROGRAM, "--snapshot", os.environ["TMPDIR"] + "/clock.png"], {}, lambda program: program.poll() == 0)]


def called(address, *call):
    said = subprocess.run(["gdbus", "call", *address, *call], check=True, capture_output=True, text=True).stdout
    return re.search(r"'(.+)'|(\d+),", said)


def daemon(*address):
    bus = "org.freedesktop.DBus"
    return int(called(address, "-d", bus, "-o", "/", "-m", f"{bus}.GetConnectionUnixProcessID", bus)[2])


def expect_start(what, command, variables, is_there):
    hosts_window.clear_area()
    host.display.sync()
    program = subprocess.Popen(command, env={**os.environ, **variables}, stderr=subprocess.DEVNULL)
    wait_for(f"{command} with {what}", lambda: is_there(program), 4)
    if program.poll() is None:
        program.kill()
    program.wait()


assistive = called(["--session"], "-d", "org.a11y.Bus", "-o", "/org/a11y/bus", "-m", "org.a11y.Bus.GetAddress")[1]
for name, bus in (("session", daemon("--session")), ("assistive", daemon("--address", assistive))):
    os.kill(bus, signal.SIGSTOP)
    for way in WAYS:
        expect_start(f"a hanging {name} bus", *way)
    os.kill(bus, signal.SIGCONT)

for platforms in ("wayland;xcb", "wayland-egl:option;xcb:option", "nonsense;xcb"):
    expect_start(platforms, [PROGRAM, "--window"], {"QT_QPA_PLATFORM": platforms}, shows_window)

# A second start brings back a window that was minimised.
manager = subprocess.Popen(["openbox"], stderr=subprocess.DEVNULL)
wait_for("the window manager", lambda: subprocess.run(["xdotool", "get_num_desktops"], capture_output=True,
                                                      check=False).returncode == 0)
for command in ([PROGRAM, "--configure"], [COMPANION]):
    first = subprocess.Popen(command)
    xdotool("windowminimize", wait_for(f"{command}", lambda: shows_window(first)).split()[-1].decode())
    wait_for("a minimised window", lambda: not shows_window(first))
    subprocess.run(command, check=True, timeout=20)
    wait_for(f"the window of {command} again", lambda: shows_window(first))
    first.kill()
    first.wait()
manager.kill()
manager.wait()

# Nobody else uses this server: it begins afresh whenever a client leaves it alone.
launch_x_server("-screen", "0", "64x64x24", resets=True)
for _ in range(20):
    for command in ([PROGRAM], [COMPANION]):
        program = subprocess.Popen(command)
        try:
            check(False, f"{command} ends with {program.wait(0.25)} on a server that resets")
        except subprocess.TimeoutExpired:
            program.kill()
            program.wait()
