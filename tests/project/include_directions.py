#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""Who may include whom. The folders are the system's boundaries; an include across them in the wrong direction is the
first step to a knot."""
import pathlib
import re
import sys

ROOT = pathlib.Path(sys.argv[1])
FOLDERS = ["platform", "controls", "calendar", "prefs", "night", "saver", "settings", "host", "location"]
NO_PROGRAM = set(FOLDERS) - {"host", "location"}
ALLOWED = {
    "platform": set(),
    "controls": {"platform"},
    "location": {"controls", "night", "platform"},
    "host": set(FOLDERS) - {"location"},
}
# The view's class is known to the headers of these folders only; elsewhere to the units that implement its operations.
VIEW = "saver/TamselClockSaverView.h"
MAY_NAME_VIEW = {"saver", "host"}
SCHEDULED_VIEW = "night/TamselScheduledSaverView"
# Windowing systems and buses stay where another system would replace them.
SYSTEM = re.compile(r'#include\s+[<"](xcb/|X11/|wayland|QDBus|dbus/|systemd/)')
OURS = re.compile(r'#include\s+"([a-z]+)/([^"]+)"')


def faults():
    for folder in FOLDERS:
        allowed = ALLOWED.get(folder, NO_PROGRAM) | {folder}
        for path in sorted((ROOT / folder).rglob("*")):
            if path.suffix not in (".h", ".cpp"):
                continue
            name = path.relative_to(ROOT).as_posix()
            text = path.read_text()
            for target, rest in OURS.findall(text):
                include = f"{target}/{rest}"
                if target not in allowed:
                    yield f"{name} includes {include}"
                if (include == VIEW and path.suffix == ".h" and folder not in MAY_NAME_VIEW
                        and not name.startswith(SCHEDULED_VIEW)):
                    yield f"{name} is a header and includes the view's"
            if folder not in ("platform", "host") and SYSTEM.search(text):
                yield f"{name} includes a header of the windowing system or the bus"
            if not text.startswith("// SPDX-License-Identifier: MIT\n"):
                yield f"{name} does not begin with its licence"


found = list(faults())
print("\n".join(found))
sys.exit(1 if found else 0)
