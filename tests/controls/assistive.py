#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What a screen reader finds in the gallery, and what happens when it, a key or a click acts."""
import os
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from screenreader import Application, act, actions, click, has, start_desktop, until, xdotool  # noqa: E402

failures = []


def check(what, condition):
    print(("ok    " if condition else "FAILED"), what)
    if not condition:
        failures.append(what)


environment = start_desktop("900x900")
gallery = subprocess.Popen([sys.argv[1], "--light"], env=environment)
app = Application("gallery", gallery)
find = app.find
until(lambda: find("slider", "Hue"))

# role, name, states it has, states it has not
EXPECTED = [
    ("radio button", "Orange", ["CHECKED", "FOCUSABLE"], []),
    ("radio button", "Cream", ["FOCUSABLE"], ["CHECKED"]),
    ("push button", "Day primary color", ["FOCUSABLE", "EXPANDABLE"], ["EXPANDED"]),
    ("push button", "Swap colors", ["FOCUSABLE", "ENABLED"], []),
    ("text", "Day primary hex color", ["EDITABLE", "FOCUSABLE"], []),
    ("check box", "Off", ["FOCUSABLE"], ["CHECKED"]),
    ("check box", "On", ["CHECKED"], []),
    ("check box", "Disabled", ["CHECKED"], ["ENABLED"]),
    ("push button", "Cancel", ["FOCUSABLE"], []),
    ("radio button", "Preview day colors", ["CHECKED", "FOCUSABLE"], []),
    ("radio button", "Preview night colors", [], ["CHECKED"]),
    ("slider", "Hue", ["FOCUSABLE"], []),
    ("slider", "Saturation", [], []),
    ("slider", "Brightness", [], []),
    ("push button", "Color Picker", ["FOCUSABLE"], []),
    ("spin button", "Night mode ends at", ["FOCUSABLE"], []),
]
for role, name, present, absent in EXPECTED:
    node = find(role, name)
    check(f"{role} {name}", node)
    if node:
        for state in present:
            check(f"  {state.lower()}", has(node, state))
        for state in absent:
            check(f"  not {state.lower()}", not has(node, state))

nodes = app.nodes()
roles = [node.get_role_name() for node in nodes]
menu = find("push button", "Sunset")
check("a time menu shows a menu", "ShowMenu" in actions(menu))
check("the mode control is a group", any(n.get_name() == "Preview palette" for n in nodes))
check("separators are separators", roles.count("separator") >= 3)
check("focus rings are not there", not any(n.get_name() == "" and n.get_role_name() == "push button"
                                           for n in nodes))

orange = find("radio button", "Orange")
check("a swatch tells its colour", orange.get_description() == "#E85D25")
field = find("text", "Day primary hex color")
check("a field tells its text", field.get_text(0, -1) == "#8A1C2B")

hue = find("slider", "Hue")
check("range", (hue.get_minimum_value(), hue.get_maximum_value()) == (0, 1))
hue.set_current_value(0.25)
check("a value is set", until(lambda: abs(hue.get_current_value() - 0.25) < 1e-6))

off = find("check box", "Off")
check("a toggle is thrown", act(off, "Toggle") and until(lambda: has(off, "CHECKED")))
night = find("radio button", "Preview night colors")
check("a segment is chosen", act(night, "Toggle") and until(lambda: has(night, "CHECKED")))

swatch = find("push button", "Day primary color")
check("the popover opens", act(swatch, "Press") and until(lambda: has(swatch, "EXPANDED")))
check("as a dialog", until(lambda: find("dialog", "Day primary color")))
click(orange)
check("a click outside closes it", until(lambda: not has(swatch, "EXPANDED")))
click(swatch)
check("a click on the swatch opens it", until(lambda: has(swatch, "EXPANDED")))
time.sleep(0.2)
click(swatch)
check("another closes it", until(lambda: not has(swatch, "EXPANDED")))
time.sleep(0.3)
check("for good", not has(swatch, "EXPANDED"))
click(swatch)
check("open again", until(lambda: has(swatch, "EXPANDED")))
xdotool("key", "Tab", "Tab", "Left", "Escape")
check("Escape closes it", until(lambda: not has(swatch, "EXPANDED")))
check("keys had reached the brightness", until(lambda: swatch.get_description() != "#8A1C2B"))
check("and the field followed", field.get_text(0, -1) == swatch.get_description())

sys.exit(1 if failures else 0)
