# SPDX-License-Identifier: MIT
"""The options window of the running program, operated by pointer and keyboard; and its stored settings, read by an
independent implementation."""
import contextlib
import os
import pathlib
import plistlib
import subprocess
import threading

from Xlib import display
from Xlib.error import ConnectionClosedError
from Xlib.ext import record
from xhost import Host, check, wait_for

from screenreader import Application, click, everything, has, role_of, text_of, until, xdotool

FOLDER = pathlib.Path(os.environ["XDG_CONFIG_HOME"], "tamsel-clock")
MODULE = "org.tamsel.VornakClockSaver.plist"
SUITE = FOLDER / MODULE
BELL = 104  # the request of the X protocol


def stored(path=SUITE):
    return plistlib.loads(path.read_bytes()) if path.exists() else {}


class Bells:
    """Counts the beeps that programs ask the X server for."""

    def __init__(self):
        self.count = 0
        watcher = display.Display()
        nothing = (0, 0)
        context = watcher.record_create_context(0, [record.AllClients], [{
            "core_requests": (BELL, BELL), "core_replies": nothing, "ext_requests": (0, 0, 0, 0),
            "ext_replies": (0, 0, 0, 0), "delivered_events": nothing, "device_events": nothing, "errors": nothing,
            "client_started": False, "client_died": False}])
        threading.Thread(target=self._listen, args=(watcher, context), daemon=True).start()

    def _listen(self, watcher, context):
        with contextlib.suppress(ConnectionClosedError):  # the server ends before the test
            watcher.record_enable_context(context, self._heard)

    def _heard(self, reply):
        if reply.category == record.FromClient:
            self.count += reply.data[:1] == bytes([BELL])


class OptionsWindow:
    def __init__(self, program, say=str):
        """The texts of the window are what say() makes of those of the sources."""
        self.say = say
        self.host = Host()
        self.process = subprocess.Popen([program, "--configure"], stderr=subprocess.PIPE, text=True)
        self.application = Application("tamsel-clock", self.process)
        self.control("push button", "OK")

    def shown(self, role, name):
        """The control with that role and name, if it is on screen."""
        node = self.application.find(role, self.say(name))
        return node if node and has(node, "SHOWING") else None

    def control(self, role, name):
        """The control with that role and name, once it is on screen."""
        return wait_for(f"{role} {name}", lambda: until(lambda: self.shown(role, name), 1))

    def click(self, role, name):
        click(self.control(role, name))

    @staticmethod
    def click_in(node, name):
        """Clicks the button of that name in the node."""
        click(next(n for n in everything(node) if (role_of(n), n.get_name()) == ("push button", name)))

    def tab_to(self, role, name):
        """Goes there by the Tab key alone."""
        for _ in range(40):
            focused = self.application.focused()
            if focused and (role_of(focused), focused.get_name()) == (role, name):
                return
            xdotool("key", "Tab")
        check(False, f"Tab reaches {role} {name}")

    def text(self, name, role="text"):
        return text_of(self.control(role, name))

    def expect_text(self, name, text, role="text"):
        wait_for(f"{name} {text}", lambda: self.text(name, role) == text)

    def type_into(self, name, text, role="text"):
        self.click(role, name)
        xdotool("key", "ctrl+a")
        xdotool("type", text)

    def preview_shows(self, colour):
        box = self.control("image", "Clock preview").get_extents(0)
        return self.host.shows(colour, box.x + 12, box.y + 12)

    def expect_preview(self, colour):
        wait_for(f"the preview in {colour}", lambda: self.preview_shows(colour))

    def expect_end(self, status):
        wait_for("the end of the program", lambda: self.process.poll() is not None)
        check(self.process.returncode == status, f"status {status}, not {self.process.returncode}")
        check(self.process.stderr.read() == "", "a quiet end")
