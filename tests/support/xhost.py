# SPDX-License-Identifier: MIT
"""A minimal screen-saver host: a private X server, windows for the program to draw into, and access to the pixels."""
import atexit
import os
import subprocess
import sys
import time

from Xlib import X, display

ORANGE = (255, 70, 0)


def wait_for(what, condition, seconds=8.0):
    """The first true value of condition(), or a failed test that says what did not happen."""
    end = time.monotonic() + seconds
    while time.monotonic() < end:
        value = condition()
        if value:
            return value
        time.sleep(0.02)
    sys.exit(f"FAILED: {what} did not happen within {seconds} s")


def check(condition, what):
    if not condition:
        sys.exit(f"FAILED: {what}")


def launch_x_server(*arguments, resets=False):
    """Starts Xvfb on a free display, has programs show their windows there and returns its process."""
    read_end, write_end = os.pipe()
    server = subprocess.Popen(
        ["Xvfb", "-displayfd", str(write_end), *([] if resets else ["-noreset"]), "-nolisten", "tcp", *arguments],
        pass_fds=[write_end], stderr=subprocess.DEVNULL)
    os.close(write_end)
    number = os.read(read_end, 16).decode().strip()
    check(number, "Xvfb starts")
    atexit.register(server.wait)
    atexit.register(server.terminate)
    os.environ["DISPLAY"] = f":{number}"
    os.environ.pop("QT_QPA_PLATFORM", None)
    return server


def start_x_server(*arguments):
    """As launch_x_server, but returns the display's name."""
    launch_x_server(*arguments)
    return os.environ["DISPLAY"]


class Host:
    """One connection to the X server, with the windows a host makes."""

    def __init__(self):
        self.display = display.Display()
        self.screen = self.display.screen()

    def window(self, x=100, y=50, width=240, height=135):
        window = self.screen.root.create_window(
            x, y, width, height, 0, self.screen.root_depth, X.InputOutput, X.CopyFromParent,
            background_pixel=0xFF00FF, override_redirect=True,
            event_mask=X.StructureNotifyMask | X.SubstructureNotifyMask | X.ButtonPressMask)
        window.map()
        self.display.sync()
        return window

    def pixel(self, x, y, drawable=None):
        """The (red, green, blue) of one pixel on the screen, or of a window."""
        image = (drawable or self.screen.root).get_image(x, y, 1, 1, X.ZPixmap, 0xFFFFFFFF)
        blue, green, red = image.data[:3]
        return red, green, blue

    def shows(self, colour, x, y):
        return all(abs(a - b) <= 2 for a, b in zip(self.pixel(x, y), colour))


def is_alive(process):
    return process.poll() is None


def stop(process, signal, within=0.5):
    """Sends the signal and returns the exit status; fails when the end takes longer than `within` seconds."""
    start = time.monotonic()
    process.send_signal(signal)
    try:
        status = process.wait(5)
    except subprocess.TimeoutExpired:
        process.kill()
        sys.exit(f"FAILED: signal {signal} is ignored")
    check(time.monotonic() - start < within, f"signal {signal} ends the program within {within} s")
    return status
