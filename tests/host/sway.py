#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The clock under sway, whose outputs are windows of an X server and can so be plugged, unplugged and pointed at."""
import json
import os
import signal
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from swayhost import LEFT_TO_TOOLKIT, launch_sway  # noqa: E402
from xhost import ORANGE, Host, check, is_alive, start_x_server, stop, wait_for  # noqa: E402
from Xlib.error import BadDrawable, BadMatch  # noqa: E402
from Xlib.protocol import event  # noqa: E402

start_x_server("-screen", "0", "2500x820x24")
os.environ.pop("WAYLAND_DISPLAY", None)
host = Host()
host.display.xfixes_query_version()
# Known before sway starts, since it only takes what is there.
WM_PROTOCOLS, WM_DELETE_WINDOW = map(host.display.intern_atom, ["WM_PROTOCOLS", "WM_DELETE_WINDOW"])
BLACK = (0, 0, 0)


def start_sway():
    sway = launch_sway("resolution 1280x720 position 0,0 scale 2", "resolution 1200x810 position 640,0 scale 1.5",
                       backend="x11")
    wait_for("two outputs", lambda: [window.get_geometry().width for window in output_windows()] == [1280, 1200])
    return sway


def sway_message(*arguments):
    return json.loads(subprocess.run(["swaymsg", "-r", *arguments], check=True, capture_output=True).stdout)


def output_windows():
    """The windows that are outputs, the widest first."""
    found = []
    for window in host.screen.root.query_tree().children:
        try:
            found.append((-window.get_geometry().width, window.id, window))
        except BadDrawable:  # it went in between
            pass
    return [window for width, _, window in sorted(found) if width < -100]


def place(window, x):
    """Moves an output's window to its place on the screen, so that none hides another."""
    window.configure(x=x, y=0)
    host.display.sync()


def unplug(window):
    left = len(output_windows()) - 1
    window.send_event(event.ClientMessage(window=window, client_type=WM_PROTOCOLS,
                                          data=(32, [WM_DELETE_WINDOW, 0, 0, 0, 0])))
    host.display.sync()
    wait_for("an output unplugged", lambda: len(output_windows()) == left)


def plug_in(x):
    before = output_windows()
    sway_message("create_output")
    window = wait_for("an output plugged in", lambda: [new for new in output_windows() if new not in before])[0]
    place(window, x)
    return window


def is_covered(window):
    """Whether the output's pixels are paper up to its corners, with the marks of XII and III where they belong."""
    area = window.get_geometry()
    width, height = area.width, area.height

    def at(colour, x, y):
        try:
            return host.shows(colour, area.x + int(x), area.y + int(y))
        except BadMatch:  # a new output that is not at its place yet reaches beyond the screen
            return False
    return (at(ORANGE, 1, 1) and at(ORANGE, width - 2, height - 2)
            and at(BLACK, width / 2, 0.145 * height) and at(ORANGE, width / 2, 0.05 * height)
            and at(BLACK, width / 2 + 0.355 * height, height / 2)
            and at(ORANGE, width / 2 + 0.45 * height, height / 2))


def surfaces():
    """The clock's windows in sway's tree: (output, whether full screen)."""
    found = []

    def visit(node, output):
        output = node["name"] if node["type"] == "output" else output
        if node.get("app_id") == "org.tamsel.clock":
            found.append((output, node["fullscreen_mode"] == 1))
        for child in node["nodes"] + node["floating_nodes"]:
            visit(child, output)
    visit(sway_message("-t", "get_tree"), None)
    return sorted(found)


def look(name):
    """Leaves a picture of every output in the folder LOOK, if one is named."""
    for output in sway_message("-t", "get_outputs") if "LOOK" in os.environ else []:
        subprocess.run(["grim", "-o", output["name"], f"{os.environ['LOOK']}/{name}-{output['name']}.png"], check=True)


def xdotool(*arguments):
    subprocess.run(["xdotool", *arguments], check=True)


def type_key():
    # The seat has no keyboard before wtype comes; a key in the first moment would be lost.
    subprocess.run(["wtype", "-s", "500", "a", "-s", "200"], check=True)


def start_clock(**variables):
    clock = subprocess.Popen(["tamsel-clock"], stderr=subprocess.PIPE, text=True, env={**os.environ, **variables})
    wait_for("every output covered", lambda: all(map(is_covered, output_windows())))
    return clock


def ended(clock, how):
    wait_for(f"the end by {how}", lambda: not is_alive(clock))
    check(clock.returncode == 0 and clock.stderr.read() == "", f"a quiet end with status 0 by {how}")


def every_output_is_covered_at_its_scale():
    xdotool("mousemove", "300", "300")
    clock = start_clock()
    check(surfaces() == [("X11-1", True), ("X11-2", True)], f"one full-screen surface per output, not {surfaces()}")
    look("sway")
    time.sleep(0.3)
    xdotool("mousemove_relative", "4", "2")
    time.sleep(0.2)
    # Some releases learn only from a movement that the pointer of the X server is over an output.
    cursor = host.display.xfixes_get_cursor_image(host.screen.root)
    check(not any(pixel >> 24 for pixel in cursor.cursor_image), "the pointer is invisible")
    check(is_alive(clock), "a tremble does not end the clock")
    for change in ["scale 1", "scale 2", "scale 1.5", "disable", "enable", "scale 2"]:
        sway_message(f"output X11-1 {change}")
        time.sleep(0.5)
        wait_for(f"a whole clock after: {change}",
                 lambda: is_alive(clock) and (change == "disable" or is_covered(output_windows()[0])), 2.0)
    look("sway-scaled")
    for _ in range(12):  # as a hand does it; where the outputs have just changed, the first are not taken for one
        xdotool("mousemove_relative", "9", "4")
        time.sleep(0.1)
    ended(clock, "a movement")

    clock = start_clock()
    time.sleep(0.4)  # sway gives a new window the pointer a moment later
    xdotool("click", "1")
    ended(clock, "a click")
    clock = start_clock()
    type_key()
    ended(clock, "a key")


def outputs_come_and_go():
    xdotool("mousemove", "5", "800")  # on no output
    clock = start_clock()
    sway_message("focus output X11-2")  # some releases then hide what is full screen on the other one
    unplug(output_windows()[1])
    wait_for("one surface left", lambda: surfaces() == [("X11-1", True)] and is_covered(output_windows()[0]))
    new = plug_in(1280)
    wait_for("the new output covered", lambda: is_covered(new))
    look("sway-new")
    for window in output_windows():
        unplug(window)
    time.sleep(0.5)
    check(is_alive(clock), "the clock outlives a moment without any output")
    new = plug_in(0)
    wait_for("the only output covered", lambda: is_covered(new))
    check(stop(clock, signal.SIGTERM) == 0, "SIGTERM ends with status 0")


def swayidle_starts_it():
    window = output_windows()[0]
    idle = subprocess.Popen(["swayidle", "timeout", "1", "tamsel-clock"], stderr=subprocess.DEVNULL)
    wait_for("the clock of an idle user", lambda: is_covered(window))
    type_key()
    wait_for("the desktop of a user who is back", lambda: not host.shows(ORANGE, 1, 1), 1.0)
    wait_for("the clock of a user idle again", lambda: is_covered(window))
    idle.terminate()
    type_key()
    wait_for("the end of its clock", lambda: surfaces() == [])


def waiting_needs_a_protocol():
    """Before 1.8 sway told of idle users through an older protocol only."""
    version = subprocess.run(["sway", "--version"], check=True, capture_output=True, text=True).stdout.split()[2]
    if [int(part) for part in version.split(".")[:2]] < [1, 8]:
        idle = subprocess.run(["tamsel-clock", "--idle", "1"], capture_output=True, text=True, timeout=20)
        check(idle.returncode == 1 and idle.stderr.count("\n") == 1, f"status 1 and one line, not: {idle}")
        return
    window = output_windows()[0]
    idle = subprocess.Popen(["tamsel-clock", "--idle", "0.03"])
    for _ in range(2):
        wait_for("the clock of an idle user", lambda: is_covered(window))
        type_key()
        wait_for("the desktop of a user who is back", lambda: not host.shows(ORANGE, 1, 1), 1.0)
    check(stop(idle, signal.SIGTERM) == 0, "SIGTERM ends the waiting with status 0")


def it_ends_with_the_compositor():
    clocks = [start_clock(), start_clock(**{LEFT_TO_TOOLKIT: "1"})]
    wait_for("the windows of both", lambda: len(surfaces()) == 2 * len(output_windows()))
    sway.kill()
    for clock in clocks:
        wait_for("the end with the compositor", lambda: not is_alive(clock), 2.0)
        check(clock.returncode in (1, 255), f"a failure of a clock without a compositor, not {clock.returncode}")


sway = start_sway()
place(output_windows()[1], 1280)
every_output_is_covered_at_its_scale()
outputs_come_and_go()
swayidle_starts_it()
waiting_needs_a_protocol()
it_ends_with_the_compositor()
