# SPDX-License-Identifier: MIT
"""An X server with an accessibility bus, and a program as a screen reader sees it. Needs a session bus."""
import atexit
import os
import subprocess
import time

import gi
from xhost import start_x_server, wait_for

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

LAUNCHER = "/usr/libexec/at-spi-bus-launcher"


def start_desktop(size):
    """An X server and an accessibility bus for the programs that follow."""
    start_x_server("-screen", "0", f"{size}x24")
    bus = subprocess.Popen([LAUNCHER, "--launch-immediately"], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    atexit.register(bus.wait)
    atexit.register(bus.terminate)
    subprocess.run(["gdbus", "wait", "--session", "--timeout=20", "org.a11y.Bus"], check=True)
    os.environ.update({"QT_QPA_PLATFORM": "xcb", "QT_LINUX_ACCESSIBILITY_ALWAYS_ON": "1"})


def xdotool(*arguments):
    return subprocess.run(["xdotool", *map(str, arguments)], check=True, capture_output=True, text=True).stdout


def until(condition, seconds=15):
    """The first true value of condition, or the last false one."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        try:
            value = condition()
        except GLib.Error:  # an object went away while it was looked at
            value = None
        if value:
            return value
        time.sleep(0.02)
    return None


def text_of(node):
    return Atspi.Text.get_text(node, 0, -1)


def everything(node):
    """The node and all that is in it, in reading order."""
    node.clear_cache()
    yield node
    for i in range(node.get_child_count()):
        child = node.get_child_at_index(i)
        if child:
            yield from everything(child)


def has(node, state):
    node.clear_cache()
    return node.get_state_set().contains(getattr(Atspi.StateType, state))


def role_of(node):
    """The role by the name of its constant: the names for people are translated and differ between versions."""
    role = node.get_role()
    # Buttons are told by two names, and by a third if they open a menu; releases differ in which they use.
    is_button = role in (Atspi.Role.PUSH_BUTTON, Atspi.Role.PUSH_BUTTON_MENU)
    return "push button" if is_button else role.value_nick.replace("-", " ")


def actions(node):
    return [node.get_action_name(i) for i in range(node.get_n_actions())]


def act(node, action):
    return action in actions(node) and node.do_action(actions(node).index(action))


def middle(node):
    node.clear_cache()
    box = node.get_extents(Atspi.CoordType.SCREEN)
    return box.x + box.width // 2, box.y + box.height // 2


def click(node):
    xdotool("mousemove", *middle(node), "click", 1)


class Application:
    """A running program, by its name on the accessibility bus and the process it must be."""

    def __init__(self, name, process):
        atexit.register(process.wait)
        atexit.register(process.terminate)
        self.root = wait_for(f"{name} on the accessibility bus", lambda: until(lambda: self._of(name, process.pid), 1))

    @staticmethod
    def _of(name, pid):
        desktop = Atspi.get_desktop(0)
        desktop.clear_cache()
        for i in range(desktop.get_child_count()):
            child = desktop.get_child_at_index(i)
            if child and child.get_name() == name and child.get_process_id() == pid:
                return child
        return None

    def nodes(self):
        return list(everything(self.root))

    def find(self, role, name):
        """The first node on screen with that role and name, else one that is hidden, else None."""
        found = [n for n in everything(self.root) if role_of(n) == role and n.get_name() == name]
        return next((n for n in found if has(n, "SHOWING")), found[0] if found else None)

    def focused(self):
        return next((n for n in everything(self.root) if has(n, "FOCUSED") and has(n, "SHOWING")), None)
