#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A night from sunset to sunrise without a known place: the options window asks, starts the companion program, and shows
the sun's times as soon as that has saved one."""
import os
import signal
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from optionswindow import OptionsWindow, stored  # noqa: E402
from screenreader import start_desktop, xdotool  # noqa: E402
from xhost import check, is_alive, wait_for  # noqa: E402

PROGRAM, COMPANION = sys.argv[1:]
QUESTION = "Sunrise and sunset need this computer's location"
start_desktop("900x1000")


def companions():
    return subprocess.run(["xdotool", "search", "--class", "pelko-location"], capture_output=True,
                          text=True, check=False).stdout.split()


def save_place(place):
    subprocess.run([COMPANION, "--set", place], check=True, timeout=20)


def sun():
    """Today's (sunset, sunrise) as the companion prints them."""
    shown = subprocess.run([COMPANION, "--show"], check=True, capture_output=True, text=True).stdout
    lines = dict(line.split(":", 1) for line in shown.splitlines())
    return lines["Sunset"].strip(), lines["Sunrise"].strip()


def helps():
    return tuple(options.control("push button", name).get_description() for name in ("Sunset", "Sunrise"))


def expect_question():
    wait_for("the question", lambda: options.shown("alert", QUESTION))


def expect_no_question():
    wait_for("the end of the question", lambda: not options.shown("alert", QUESTION))
    check(is_alive(options.process) and stored() == {}, "nothing is stored without a place")


options = OptionsWindow(PROGRAM)
options.click("check box", "Night Mode")
options.control("push button", "Sunset")
check(helps() == ("Sun times need location permission.",) * 2, f"why there is no time: {helps()}")

# Whatever takes the question back leaves everything as it was.
ok = options.control("push button", "OK")
for back in ("Escape", "Cancel"):
    options.click("push button", "OK")
    expect_question()
    xdotool("key", "Escape") if back == "Escape" else options.click_in(options.control("alert", QUESTION), "Cancel")
    expect_no_question()
check(companions() == [], "no companion is started unasked")

options.click("push button", "OK")
expect_question()
options.click("push button", "Use this computer's location")
wait_for("the companion's window", companions)
expect_no_question()
process = int(xdotool("getwindowpid", companions()[-1]))
save_place("60.17,24.94")
wait_for("today's times in the rows", lambda: helps() == sun())
os.kill(process, signal.SIGTERM)
wait_for("the end of the companion", lambda: not companions())

# Its item in the menu starts it, too.
options.click("push button", "Sunset")
xdotool("key", "Up", "key", "Return")
wait_for("the companion's window again", companions)
os.kill(int(xdotool("getwindowpid", companions()[-1])), signal.SIGTERM)
wait_for("its end", lambda: not companions())

# A place that comes while a menu is open leaves the menu alone.
options.click("push button", "Sunset")
save_place("-33.87,151.21")
wait_for("the new place's times", lambda: helps() == sun())
xdotool("key", "Down", "key", "Return")
options.control("spin button", "Night mode starts at")

options.click("push button", "OK")
options.expect_end(0)
night = stored()["NightSettings"]
check((night["enabled"], night["fromMode"], night["toMode"]) == (True, "custom", "sunrise"), f"stored: {night}")
