#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The full-screen program: every screen covered, screens that come and go followed, ended by a person only."""
import os
import signal
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from xhost import ORANGE, Host, check, is_alive, start_x_server, stop, wait_for  # noqa: E402

PROGRAM = sys.argv[1]
start_x_server("-screen", "0", "1280x720x24")
host = Host()
BLACK = (0, 0, 0)


def start(*arguments):
    return subprocess.Popen([PROGRAM, *arguments], stderr=subprocess.PIPE, text=True)


def monitors(*names_and_geometries):
    listed = subprocess.run(["xrandr", "--listmonitors"], capture_output=True, text=True).stdout
    for line in listed.splitlines()[1:]:
        subprocess.run(["xrandr", "--delmonitor", line.split()[1].lstrip("+*")], stderr=subprocess.DEVNULL)
    output = "screen"
    for name, geometry in names_and_geometries:
        subprocess.run(["xrandr", "--setmonitor", name, geometry, output], check=True, capture_output=True)
        output = "none"


def xdotool(*arguments):
    subprocess.run(["xdotool", *arguments], check=True)


def xrandr(*arguments):
    subprocess.run(["xrandr", *arguments], check=True)


def dial_at(x, y):
    """Whether a dial stands around this point: its hub is dark, the corners of its square are paper."""
    return host.shows(BLACK, x + 8, y) and host.shows(ORANGE, x - 150, y - 170)


def clock_windows():
    search = ["xdotool", "search", "--onlyvisible", "--name", "Tamsel Clock"]
    return len(subprocess.run(search, capture_output=True, text=True).stdout.split())


LEFT = ("L", "640/160x720/180+0+0")
RIGHT = ("R", "640/160x720/180+640+0")


def every_screen_has_its_dial():
    monitors(LEFT, RIGHT)
    program = start()
    wait_for("two dials", lambda: dial_at(320, 360) and dial_at(960, 360))
    monitors(("W", "1280/320x720/180+0+0"))
    wait_for("one dial after a screen went", lambda: dial_at(640, 360))
    monitors(LEFT, RIGHT)
    wait_for("two dials after a screen came", lambda: dial_at(320, 360) and dial_at(960, 360))
    whole = "1280/320x720/180+0+0"
    monitors(("A", whole), ("B", whole))
    wait_for("one dial for two screens that show the same", lambda: dial_at(640, 360) and clock_windows() == 1)
    check(is_alive(program), "screens that come and go do not end the program")
    check(stop(program, signal.SIGTERM) == 0, "SIGTERM ends with status 0")
    check(program.stderr.read() == "", "the program is silent")


def pointer_is_hidden():
    from Xlib.ext import xfixes  # noqa: F401
    host.display.xfixes_query_version()
    cursor = host.display.xfixes_get_cursor_image(host.screen.root)
    check(not any(pixel >> 24 for pixel in cursor.cursor_image), "the pointer is invisible")


def only_a_person_ends_it():
    monitors(LEFT, RIGHT)
    xdotool("mousemove", "300", "300")
    program = start()
    wait_for("two dials", lambda: dial_at(320, 360) and dial_at(960, 360))
    time.sleep(0.3)  # the synthetic movements of new windows have come and gone
    check(is_alive(program), "windows that appear under the pointer do not end the program")
    pointer_is_hidden()
    xdotool("mousemove_relative", "3", "2")
    time.sleep(0.2)
    check(is_alive(program), "a tremble does not end the program")
    for name, act in [("movement", ["mousemove_relative", "40", "0"]), ("click", ["click", "1"]),
                      ("key", ["key", "space"]), ("wheel", ["click", "4"])]:
        if not is_alive(program):
            program = start()
            wait_for("two dials", lambda: dial_at(320, 360) and dial_at(960, 360))
        xdotool(*act)
        check(wait_for(f"the end by {name}", lambda: program.poll() is not None) and program.returncode == 0,
              f"status 0 after {name}")


def ordinary_window():
    monitors(("W", "1280/320x720/180+0+0"))
    program = start("--window", "--size", "400x300")
    window = wait_for("an ordinary window", lambda: subprocess.run(
        ["xdotool", "search", "--onlyvisible", "--name", "Tamsel Clock"], capture_output=True,
        text=True).stdout.split())[0]
    geometry = host.display.create_resource_object("window", int(window)).get_geometry()
    check((geometry.width, geometry.height) == (400, 300), "--size is the window's size")
    xdotool("mousemove", "200", "150", "mousemove", "260", "190", "click", "1", "key", "a")
    check(is_alive(program), "an ordinary window stays while it is used")
    check(stop(program, signal.SIGTERM) == 0, "SIGTERM ends with status 0")


def a_server_that_moves_the_pointer_is_no_person():
    xrandr("--newmode", "small", *"38.25 800 832 912 1024 600 603 607 624".split())
    xrandr("--addmode", "screen", "small")
    xdotool("mousemove", "1200", "700")
    program = start()
    wait_for("a dial", lambda: dial_at(640, 360))
    for change in ["--mode small", "--mode 1280x720", "--off --fb 64x64", "--mode 1280x720 --fb 1280x720"]:
        xrandr("--output", "screen", *change.split())
        time.sleep(0.7)
        check(is_alive(program), f"{change} does not end the program")
    wait_for("a dial", lambda: dial_at(640, 360))
    xdotool("mousemove", "900", "600", "sleep", "0.05", "mousemove", "850", "500")
    wait_for("the end by a person", lambda: not is_alive(program), 0.5)


every_screen_has_its_dial()
only_a_person_ends_it()
ordinary_window()
a_server_that_moves_the_pointer_is_no_person()
