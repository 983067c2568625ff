#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The options window driven as a user drives it, by pointer and by keys alone; then what is stored, by another reader,
and when a clock in another process shows it."""
import os
import signal
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from optionswindow import FOLDER, MODULE, SUITE, Bells, OptionsWindow, stored  # noqa: E402
from screenreader import click, has, start_desktop, text_of, xdotool  # noqa: E402
from xhost import ORANGE, Host, check, is_alive, stop, wait_for  # noqa: E402

PROGRAM = sys.argv[1]
BLUE, CREAM, NERO, GREEN = (0, 33, 208), (255, 245, 232), (0, 0, 0), (0, 255, 0)
start_desktop("1300x1000")
bells = Bells()


def pull(options, slider, value):
    """Drags the knob of a slider that is 280 points wide, knob included, to its value by way of its ends."""
    node = options.control("slider", slider)
    box = node.get_extents(0)
    y = box.y + 14
    xdotool("mousemove", box.x + 14, y, "mousedown", 1)
    for x in (100, 266, 200):
        xdotool("mousemove", box.x + x, y + 60)
    xdotool("mousemove", box.x + 14 + round(252 * value), y, "mouseup", 1)


# Nothing that is chosen is stored before OK, nor with Cancel; the next opening forgets it.
options = OptionsWindow(PROGRAM)
options.expect_preview(ORANGE)
for name, ground in (("Cream", CREAM), ("Blue", BLUE), ("Nero", NERO), ("Orange", ORANGE), ("Blue", BLUE)):
    options.click("radio button", name)
    options.expect_preview(ground)
options.click("check box", "Monthly calendar")
cover = Host().window(400, 200, 500, 600)
wait_for("something before the window", lambda: not options.preview_shows(BLUE))
second = subprocess.run([PROGRAM, "--configure"], timeout=20, check=False)
check(second.returncode == 0, "a second window is not opened")
options.expect_preview(BLUE)  # and the first one has come to the front
cover.destroy()
xdotool("key", "Escape")
options.expect_end(3)
check(stored() == {}, f"Cancel stores nothing: {stored()}")

# Colours of one's own: typed, pulled, from the full panel, swapped.
options = OptionsWindow(PROGRAM)
options.expect_preview(ORANGE)
options.click("radio button", "Custom")
options.type_into("Day background hex color", "no")
xdotool("key", "Return")
options.expect_text("Day background hex color", "#FF4600")
wait_for("a beep", lambda: bells.count == 1)
options.type_into("Day background hex color", "8a1c2b")
xdotool("key", "Tab")
options.expect_preview((0x8A, 0x1C, 0x2B))
options.click("push button", "Day primary color")
for slider, value in (("Saturation", 1), ("Brightness", 1), ("Hue", 1 / 3)):
    pull(options, slider, value)
options.expect_text("Day primary hex color", "#00FF00")
options.click("push button", "Color Picker")
html = options.control("text", "HTML:")
check(text_of(html).upper() == "#00FF00", "the full panel opens on the colour")
options.type_into("HTML:", "#C0FFEE")
xdotool("key", "Tab")
options.expect_text("Day primary hex color", "#C0FFEE")
xdotool("key", "Escape")
wait_for("the end of the full panel", lambda: not options.shown("text", "HTML:"))
options.click("push button", "Swap colors")
options.expect_preview((0xC0, 0xFF, 0xEE))
options.expect_text("Day primary hex color", "#8A1C2B")

# A click beside the editor closes it, and does what it does without.
swatches = [options.control("push button", name) for name in ("Day primary color", "Day background color")]
calendar = options.control("check box", "Monthly calendar")
for on in (True, False) * 5:
    for swatch in swatches:
        click(swatch)
        wait_for("its editor alone", lambda: [s for s in swatches if has(s, "EXPANDED")] == [swatch])
    click(calendar)
    wait_for("a switched toggle", lambda: has(calendar, "CHECKED") == on)
    check(not any(has(swatch, "EXPANDED") for swatch in swatches), "no editor is open")

# A night whose ends are the same is refused; the end is marked.
options.click("check box", "Night Mode")
options.expect_preview(NERO)
for row in ("Sunset", "Sunrise"):
    options.click("push button", row)
    xdotool("key", "Down", "key", "Return")
end = options.control("spin button", "Night mode ends at")
ok = options.control("push button", "OK")
xdotool("type", "1930")
options.expect_text("Night mode ends at", "19:30", "spin button")
wait_for("a disabled OK", lambda: not has(ok, "ENABLED"))
check(end.get_description() == "Night mode start and end times must be different.", "the help says why")


def red_in(node):
    box = node.get_extents(0)
    image = options.host.screen.root.get_image(box.x, box.y, box.width, box.height, 2, 0xFFFFFFFF).data
    return any(r > g + 100 and r > b + 100 for b, g, r in zip(image[0::4], image[1::4], image[2::4]))


wait_for("red digits", lambda: red_in(end))
check(not red_in(options.control("spin button", "Night mode starts at")), "the start is not marked")
xdotool("key", "Return")
wait_for("a beep", lambda: bells.count == 2)
check(is_alive(options.process) and stored() == {}, "a night without length is not stored")
box = end.get_extents(0)
xdotool("mousemove", box.x + box.width - 32, box.y + 10, "click", 1)  # the hours
xdotool("type", "0615")
wait_for("OK again", lambda: has(ok, "ENABLED"))
check(not red_in(end) and end.get_description() == "", "the marks are gone")
options.click("radio button", "Preview day colors")
options.expect_preview((0xC0, 0xFF, 0xEE))
options.click("push button", "OK")
options.expect_end(0)
expected = {"SelectedVariant": "custom", "CalendarEnabled": False, "CustomBaseColor": "#C0FFEE",
            "CustomMarkColor": "#8A1C2B"}
night = {"enabled": True, "from": 19 * 60 + 30, "to": 6 * 60 + 15, "base": "#000000", "mark": "#FFF5E8",
         "fromMode": "custom", "toMode": "custom"}
for path, values in ((SUITE, {**expected, "NightSettings": night}),
                     (FOLDER / "screensaver" / MODULE, {**expected, "NightSettings": night}),
                     (FOLDER / "screensaver" / "VornakClockSaver.plist", expected),
                     (FOLDER / "tamsel-clock.plist", expected)):
    check(stored(path) == values, f"{path.name}: {stored(path)} and not {values}")

# By keys alone; a clock in another process shows the night's new colour, which is written last, with its next frame.
minute = time.localtime().tm_hour * 60 + time.localtime().tm_min
always = (f"{(minute + 120) // 60 % 24:02}{minute % 60:02}", f"{(minute + 60) // 60 % 24:02}{minute % 60:02}")
options = OptionsWindow(PROGRAM)
options.tab_to("push button", "Night background color")
xdotool("key", "space", "key", "Tab", "key", "Tab", "key", "End", "key", "Shift+Tab", "key", "End", "key", "Escape")
options.expect_text("Night background hex color", "#FF0000")
for name, digits in (("Night mode starts at", always[0]), ("Night mode ends at", always[1])):
    options.tab_to("spin button", name)
    xdotool("type", digits)
options.tab_to("push button", "OK")
xdotool("key", "Return")
options.expect_end(0)
check(stored()["NightSettings"]["base"] == "#FF0000", f"what the keys chose: {stored()}")

FRAME = 1 / 30
SLACK = 0.1  # for the X server and this test, on a busy machine
for bus, colour, text in (("with a bus", GREEN, "00FF00"), ("without a bus", (0, 0, 255), "0000FF")):
    window = Host().window(0, 0, 320, 180)
    shown = {**os.environ, "XSCREENSAVER_WINDOW": hex(window.id)}
    if bus == "without a bus":
        shown["DBUS_SESSION_BUS_ADDRESS"] = "disabled:"
    clock = subprocess.Popen([PROGRAM, "--root"], env=shown)
    options = OptionsWindow(PROGRAM)
    options.type_into("Night background hex color", text)
    options.tab_to("push button", "OK")
    before = options.host.pixel(2, 2)
    wait_for("the clock at night", lambda: options.host.pixel(2, 2) not in (NERO, ORANGE, (255, 0, 255)))
    xdotool("key", "Return")
    wait_for(f"the new colour {bus}", lambda: options.host.shows(colour, 2, 2), 5)
    seen = time.time()
    written = max(path.stat().st_mtime for path in FOLDER.rglob("*.plist"))
    print(f"{bus}: shown {1000 * (seen - written):.0f} ms after the last write")
    check(seen - written < FRAME + SLACK, f"shown within a frame {bus}, not {seen - written:.3f} s")
    options.expect_end(0)
    check(stop(clock, signal.SIGTERM) == 0, "the clock ends")
    window.destroy()
