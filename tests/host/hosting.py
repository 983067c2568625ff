#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The program inside windows of another process, as the screen-saver hosts make them."""
import itertools
import os
import pathlib
import plistlib
import shutil
import signal
import socket
import subprocess
import sys
import tempfile
import time

from Xlib import Xatom

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from xhost import ORANGE, Host, X, check, is_alive, launch_x_server, stop, wait_for  # noqa: E402

PROGRAM = sys.argv[1]
server = launch_x_server("-screen", "0", "1280x720x24")
host = Host()
HOSTS_OWN = (255, 0, 255)


def start(*arguments, **variables):
    return subprocess.Popen([PROGRAM, *arguments], env={**os.environ, **variables},
                            stderr=subprocess.PIPE, text=True)


def fills(window_x, window_y, width, height):
    return (host.shows(ORANGE, window_x, window_y)
            and host.shows(ORANGE, window_x + width - 1, window_y + height - 1))


def ways_to_name_the_window():
    window = host.window()
    ways = [(["--root"], {"XSCREENSAVER_WINDOW": f"0x{window.id:X}"}),
            (["-root"], {"XSCREENSAVER_WINDOW": str(window.id)}),
            (["--root", "--window-id", hex(window.id)], {"XSCREENSAVER_WINDOW": "0x1"}),
            (["--window-id", str(window.id)], {"QT_QPA_PLATFORM": "wayland", "WAYLAND_DISPLAY": "wayland-7"})]
    for arguments, variables in ways:
        window.clear_area()
        host.display.sync()
        program = start(*arguments, **variables)
        wait_for(f"a picture with {arguments}", lambda: fills(100, 50, 240, 135))
        check(len(window.query_tree().children) == 1, "one child window")
        check(stop(program, signal.SIGTERM) == 0, "SIGTERM ends with status 0")
        check(program.stderr.read() == "", "a hosted saver is silent")
    window.destroy()


def sizes_follow_the_window():
    window = host.window()
    program = start("--root", XSCREENSAVER_WINDOW=hex(window.id))
    wait_for("a picture", lambda: fills(100, 50, 240, 135))
    for width, height in [(601, 399), (33, 600), (240, 135)]:
        window.configure(width=width, height=height)
        host.display.sync()
        wait_for(f"a picture of {width}x{height}", lambda: fills(100, 50, width, height))
        geometry = window.query_tree().children[0].get_geometry()
        check((geometry.width, geometry.height) == (width, height), "the child has the window's size")
    start_time = time.monotonic()
    window.destroy()
    host.display.sync()
    check(program.wait(5) == 0, "a destroyed window ends the program with status 0")
    check(time.monotonic() - start_time < 0.4, "a destroyed window ends the program at once")
    check(program.stderr.read() == "", "the end is quiet")


def any_density_leaves_no_strip():
    for density in ["3", "0", "-1", "nan", "1e9"]:
        window = host.window(100, 50, 1000, 601)
        program = start("--root", XSCREENSAVER_WINDOW=hex(window.id), QT_SCALE_FACTOR=density)
        wait_for(f"a picture at density {density}", lambda: fills(100, 50, 1000, 601))
        stop(program, signal.SIGTERM)
        window.destroy()


def the_host_keeps_pointer_and_clicks():
    window = host.window()
    program = start("--root", XSCREENSAVER_WINDOW=hex(window.id))
    wait_for("a picture", lambda: fills(100, 50, 240, 135))
    while host.display.pending_events():
        host.display.next_event()
    subprocess.run(["xdotool", "mousemove", "150", "100", "mousemove", "200", "150", "click", "1", "key", "a"],
                   check=True)

    def clicked():
        while host.display.pending_events():
            event = host.display.next_event()
            if event.type == X.ButtonPress:
                return event
        return None

    check(wait_for("a click in the host's window", clicked).window.id == window.id, "the click is the host's")
    check(is_alive(program), "input does not end a hosted saver")
    # Unlock dialogs stop the saver and let it go on later.
    program.send_signal(signal.SIGSTOP)
    program.send_signal(signal.SIGCONT)
    window.unmap()
    window.map()
    host.display.sync()
    wait_for("a picture after the window came back", lambda: fills(100, 50, 240, 135))
    check(stop(program, signal.SIGINT) == 0 and not is_alive(program), "SIGINT ends with status 0")
    window.destroy()


def dead_windows_open_nothing():
    window = host.window()
    dead = window.id
    window.destroy()
    host.display.sync()
    before = len(host.screen.root.query_tree().children)
    for name in [hex(dead), "0x7", "0", "4294967295"]:
        for arguments, variables in [(["--window-id", name], {}), (["--root"], {"XSCREENSAVER_WINDOW": name})]:
            program = start(*arguments, **variables)
            check(program.wait(5) == 1, f"status 1 for window {name}")
            error = program.stderr.read()
            check(error.count("\n") == 1 and "window" in error, f"one line for window {name}, not: {error}")
    check(len(host.screen.root.query_tree().children) == before, "no window of its own")


def the_root_window_is_drawn_when_no_other_is_named():
    # Old window managers cover the root window by one of their own, and say so.
    virtual = host.window(100, 50, 400, 300)
    virtual.change_property(host.display.intern_atom("__SWM_VROOT"), Xatom.WINDOW, 32, [virtual.id])
    host.display.sync()
    program = start("--root")
    wait_for("a picture on the virtual root window", lambda: fills(100, 50, 400, 300))
    check(host.pixel(700, 600) != ORANGE, "nothing beyond it")
    stop(program, signal.SIGTERM)
    virtual.destroy()
    program = start("--root")
    wait_for("a picture on the root window", lambda: fills(0, 0, 1280, 720))
    check(stop(program, signal.SIGHUP) == 0, "SIGHUP ends with status 0")


def resources_may_vanish():
    """As when a package is removed under a running clock."""
    root = pathlib.Path(tempfile.mkdtemp())
    (root / "bin").mkdir()
    shutil.copy(PROGRAM, root / "bin")
    shutil.copytree(pathlib.Path(PROGRAM).parents[1] / "lib" / "tamsel-clock", root / "lib" / "tamsel-clock")
    settings = pathlib.Path(os.environ["XDG_CONFIG_HOME"], "tamsel-clock", "org.tamsel.VornakClockSaver.plist")
    window = host.window()
    program = subprocess.Popen([root / "bin" / "tamsel-clock", "--root"], stderr=subprocess.PIPE, text=True,
                               env={**os.environ, "XSCREENSAVER_WINDOW": hex(window.id)})
    wait_for("a picture", lambda: fills(100, 50, 240, 135))
    shutil.rmtree(root)
    settings.parent.mkdir(parents=True)
    minute = time.localtime().tm_hour * 60 + time.localtime().tm_min
    settings.write_bytes(plistlib.dumps({
        "SelectedVariant": "blue", "CalendarEnabled": True, "NightSettings": {
            "enabled": True, "from": (minute + 1439) % 1440, "to": 0, "toMode": "sunrise", "base": "#123456"}}))
    window.configure(width=640, height=360)
    host.display.sync()
    wait_for("the window covered", lambda: not host.shows(HOSTS_OWN, 638, 358), 3)
    time.sleep(0.3)
    check(is_alive(program), "a clock without resources goes on")
    settings.unlink()
    program.send_signal(signal.SIGKILL)
    wait_for("the window empty", lambda: not window.query_tree().children)
    check(program.wait(5) and program.stderr.read() == "", "the clock is silent")
    window.destroy()


def signals_end_it_whoever_does_not_answer():
    window = host.window()
    silent_bus = socket.socket(socket.AF_UNIX)
    silent_bus.bind(os.path.join(os.environ["TMPDIR"], "bus"))
    silent_bus.listen()
    bus = {"DBUS_SESSION_BUS_ADDRESS": f"unix:path={silent_bus.getsockname()}"}
    # How long it runs before the server stops, and how long with it.
    states = [({}, 0.5, 0), (bus, 0.5, 0), ({}, 0.5, 0.1), ({}, 0, 0.3), (bus, 0, 0.3)]
    programs = [[PROGRAM, "--window-id", hex(window.id)], [PROGRAM], [PROGRAM, "--configure"],
                [os.path.join(os.path.dirname(PROGRAM), "pelko-location")]]
    numbers = itertools.cycle([signal.SIGTERM, signal.SIGINT, signal.SIGHUP])
    for (variables, running, stopped), command in itertools.product(states, programs):
        if running == 0:
            server.send_signal(signal.SIGSTOP)
        program = subprocess.Popen(command, env={**os.environ, **variables})
        time.sleep(running)
        if stopped:
            server.send_signal(signal.SIGSTOP)
        time.sleep(stopped)
        number = next(numbers)
        try:
            status = stop(program, number)
        finally:
            server.send_signal(signal.SIGCONT)
        check(status in (0, 3, -number), f"signal {number} ends {command}, not {status}")
    window.destroy()


ways_to_name_the_window()
sizes_follow_the_window()
any_density_leaves_no_strip()
the_host_keeps_pointer_and_clicks()
dead_windows_open_nothing()
the_root_window_is_drawn_when_no_other_is_named()
resources_may_vanish()
signals_end_it_whoever_does_not_answer()
