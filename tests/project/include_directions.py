#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""What the linker cannot see of who may know whom. Each folder is a library, so that a call in the wrong direction does
not link; a header of constants or templates would, and so would a header of the windowing system."""
import pathlib
import re
import sys

ROOT = pathlib.Path(sys.argv[1])
# The folders that each folder may include, from the lowest to the highest.
KNOWS = {
    "platform": set(),
    "controls": {"platform"},
    "calendar": {"platform"},
    "prefs": {"platform"},
    "night": {"prefs", "platform"},
    "clock": {"calendar", "platform"},
    "settings": {"clock", "calendar", "controls", "night", "prefs", "platform"},
    "saver": {"settings", "clock", "calendar", "night", "prefs", "platform"},
    "quick": {"saver", "clock", "calendar", "night", "prefs", "platform"},
    "host": {"saver", "night", "prefs", "platform"},
    "location": {"controls", "night", "prefs", "platform"},
}
# Windowing systems and buses stay where another system would replace them.
SYSTEM = re.compile(r'#include\s+[<"](xcb/|X11/|wayland|QDBus|dbus/|systemd/)')
OURS = re.compile(r'#include\s+"([a-z]+)/([^"]+)"')


def faults():
    for folder, known in KNOWS.items():
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            name = path.relative_to(ROOT).as_posix()
            text = path.read_text()
            for target, rest in OURS.findall(text):
                if target not in known | {folder}:
                    yield f"{name} includes {target}/{rest}"
            if folder not in ("platform", "host") and SYSTEM.search(text):
                yield f"{name} includes a header of the windowing system or the bus"
            if not text.startswith("// SPDX-License-Identifier: MIT\n"):
                yield f"{name} does not begin with its licence"


found = list(faults())
print("\n".join(found))
sys.exit(1 if found else 0)
