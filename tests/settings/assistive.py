#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The whole options window as a screen reader finds it: what each control is, is called, says and tells as help, in the
order in which the Tab key goes through them; in English or, with its catalogue, in another language."""
import os
import plistlib
import sys
import time
import xml.etree.ElementTree as xml

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from optionswindow import FOLDER, SUITE, OptionsWindow  # noqa: E402
from screenreader import act, actions, click, has, middle, role_of, start_desktop, text_of, until, xdotool  # noqa: E402
from xhost import check, wait_for  # noqa: E402

PROGRAM, *CATALOGUE = sys.argv[1:]
TEXTS = {message.find("source").text: message.find("translation").text
         for file in CATALOGUE for message in xml.parse(file).iter("message")}


def say(text):
    return TEXTS.get(text, text)


EQUAL_TIMES = "Night mode start and end times must be different."
NO_PLACE = "Sun times need location permission."
# role, name, help or description, text or whether it is checked
THEMES = [
    ("radio button", "Cream", "#FFF5E8", False),
    ("radio button", "Orange", "#FF4600", False),
    ("radio button", "Blue", "#0021D0", False),
    ("radio button", "Nero", "#000000", False),
    ("radio button", "Custom", "Custom", True),
]
EXPECTED = [
    ("radio button", "Preview day colors", "", True),
    ("radio button", "Preview night colors", "", False),
    *THEMES,
    ("text", "Day primary hex color", "", "#AABBCC"),
    ("push button", "Day primary color", "#AABBCC", None),
    ("text", "Day background hex color", "", "#112233"),
    ("push button", "Day background color", "#112233", None),
    ("push button", "Swap colors", "Swap day colors", None),
    ("check box", "Monthly calendar", "", False),
    ("check box", "Night Mode", "", True),
    ("text", "Night primary hex color", "", "#FFF5E8"),
    ("push button", "Night primary color", "#FFF5E8", None),
    ("text", "Night background hex color", "", "#000000"),
    ("push button", "Night background color", "#000000", None),
    ("push button", "Swap colors", "Swap night colors", None),
    ("spin button", "Night mode starts at", "", "20:00"),
    ("push button", "Night mode start setting", NO_PLACE, None),
    ("spin button", "Night mode ends at", EQUAL_TIMES, "20:00"),
    ("push button", "Night mode end setting", NO_PLACE, None),
    ("push button", "Cancel", "", None),
]
EXPECTED = [(role, say(name), say(description), value) for role, name, description, value in EXPECTED]


def described(node):
    role = role_of(node)
    value = None
    if role in ("text", "spin button"):
        value = text_of(node)
    elif role in ("radio button", "check box"):
        value = has(node, "CHECKED")
    return role, node.get_name(), node.get_description(), value


def tab_order():
    """What has the keyboard, one after the other; the hour and the minute of a time are one control."""
    order = []
    while len(order) < 2 or order[-1] != order[0]:
        focused = described(until(window.application.focused))[:3]  # leaving a colour field shows its palette
        if not order or order[-1] != focused:
            order.append(focused)
        xdotool("key", "Tab")
        check(len(order) < 40, f"Tab comes round: {order}")
    return order[:-1]


def expect(found, expected, what):
    for left, right in zip(found + [None] * len(expected), expected):
        check(left == right, f"{what}: {left} instead of {right}")
    check(len(found) == len(expected), f"{what}: {found[len(expected):]} as well")


FOLDER.mkdir(parents=True)
SUITE.write_bytes(plistlib.dumps({
    "SelectedVariant": "custom", "CustomBaseColor": "#112233", "CustomMarkColor": "#AABBCC",
    "NightSettings": {"enabled": True, "from": 1200, "to": 1200, "fromMode": "custom", "toMode": "custom"}}))
start_desktop("900x720")
for file in CATALOGUE:
    os.environ["LANGUAGE"] = xml.parse(file).getroot().get("language")
window = OptionsWindow(PROGRAM, say)
ok = window.control("push button", "OK")
check(not has(ok, "ENABLED"), "OK is disabled with a night without length")
in_reading_order = [described(n) for n in window.application.nodes() if has(n, "SHOWING") and has(n, "ENABLED")
                    and (has(n, "FOCUSABLE") or role_of(n) == "radio button")]
expect(in_reading_order, EXPECTED, "reading order")
# Of the themes only the chosen one, which has the focus first, is on the way; arrow keys choose another.
chosen = EXPECTED.index(("radio button", say("Custom"), say("Custom"), True))
on_the_way = EXPECTED[chosen:] + EXPECTED[:chosen - len(THEMES) + 1]
expect(tab_order(), [control[:3] for control in on_the_way], "tab order")
xdotool("key", "shift+Tab")
is_mirrored = os.environ.get("LANGUAGE") == "ar"
for key, theme in ("Right" if is_mirrored else "Left", "Nero"), ("Left" if is_mirrored else "Right", "Custom"):
    xdotool("key", key)
    wait_for(f"{theme} by an arrow key", lambda: has(window.control("radio button", theme), "CHECKED"))

for title in ("Theme", "Custom", "Primary", "Background", "Monthly calendar", "Night Mode", "From", "To"):
    window.control("label", title)
roles = [role_of(node) for node in window.application.nodes()]
check(roles.count("separator") == 4 and "ShowMenu" in actions(window.control("push button", "Night mode end setting")),
      "separators and menus are told")

# A colour's editor is a dialog inside its swatch; whichever way it closes, the swatch tells.
swatch = window.control("push button", "Day primary color")
for close in (lambda: click(window.control("label", "Theme")), lambda: click(swatch), lambda: xdotool("key", "Escape")):
    check(act(swatch, "Press"), "the swatch is pressed")
    wait_for("an expanded swatch", lambda: has(swatch, "EXPANDED"))
    window.control("dialog", "Day primary color")
    hue = window.control("slider", "Hue")
    check((hue.get_minimum_value(), hue.get_maximum_value()) == (0, 1), "the range of a slider")
    hue.set_current_value(0.25)
    wait_for("a value that is set", lambda: abs(hue.get_current_value() - 0.25) < 1e-6)
    close()
    wait_for("a collapsed swatch", lambda: not has(swatch, "EXPANDED"))
    time.sleep(0.2)
    check(not has(swatch, "EXPANDED"), "the click that closed it does not open it again")
check(swatch.get_description() == window.text("Day primary hex color") == "#BBCCAA", "colour and text go together")

# The wheel scrolls the sheet past a time that is not being edited.
start = window.control("spin button", "Night mode starts at")
xdotool("mousemove", *middle(window.control("label", "Theme")), "click", "--repeat", 9, 5)
wait_for("the end of the sheet", lambda: middle(ok)[1] < 700)
before = middle(start)
xdotool("mousemove", *before, "click", 4)
wait_for("a scrolled sheet", lambda: middle(start)[1] > before[1])
check(text_of(start) == "20:00", f"the wheel changes no time: {text_of(start)}")

# What it does to a control counts as the user's own doing.
end = window.control("spin button", "Night mode ends at")
check((end.get_current_value(), end.get_maximum_value()) == (1200, 1439), "a time has a value in minutes")
act(end, "Increase")
wait_for("another end", lambda: has(ok, "ENABLED") and end.get_description() == "")
check(text_of(end) == "20:01", "by a minute")
for role, name, present in (("check box", "Night Mode", "push button Night mode end setting"),
                            ("radio button", "Blue", "push button Swap colors")):
    check(act(window.control(role, name), "Toggle"), f"{name} is switched")
    gone_role, gone_name = " ".join(present.split()[:2]), " ".join(present.split()[2:])
    wait_for(f"the end of {present}", lambda: not window.shown(gone_role, gone_name))
check(not window.application.find("radio button", say("Preview night colors")), "nothing hidden in the preview is told")
check(act(ok, "Press"), "OK is pressed")
window.expect_end(0)
