#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""A clock that nobody can see rests, and goes on as soon as it is seen again."""
import os
import pathlib
import signal
import subprocess
import sys
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from xhost import ORANGE, Host, X, check, start_x_server, stop, wait_for  # noqa: E402

PROGRAM, DISPLAY_POWER = sys.argv[1:]
FOLDER = pathlib.Path(os.environ["TMPDIR"])
MANAGER = "org.freedesktop.login1.Manager"
SESSION = "/org/freedesktop/login1/session/c1"

start_x_server("-screen", "0", "640x480x24")
host = Host()
window = host.window(0, 0, 480, 270)


def start(**variables):
    program = subprocess.Popen([PROGRAM, "--root"],
                               env={**os.environ, "XSCREENSAVER_WINDOW": hex(window.id), **variables})
    wait_for("a picture", lambda: host.shows(ORANGE, 1, 1))
    wait_for("a moving clock", lambda: waits_per_second(program) > 20)
    return program


def waits_per_second(program):
    """How often the program goes to sleep: once per frame."""
    def waits():
        status = pathlib.Path(f"/proc/{program.pid}/status").read_text()
        return int(status.split("\nvoluntary_ctxt_switches:")[1].split()[0])
    before = waits()
    time.sleep(1)
    return waits() - before


def picture():
    return window.get_image(0, 0, 480, 270, X.ZPixmap, 0xFFFFFFFF).data


def rests_and_goes_on(program, hide, show, why):
    hide()
    time.sleep(0.6)
    before = picture() if why != "covered" else None
    check(waits_per_second(program) < 12, f"a clock that is {why} rests")
    check(why == "covered" or picture() == before, f"nothing is drawn while {why}")
    show()
    wait_for(f"the picture after it was {why}", lambda: host.shows(ORANGE, 1, 1), 1)
    shown = picture()
    wait_for(f"the hand after it was {why}", lambda: picture() != shown, 1)
    check(waits_per_second(program) > 20, f"a clock that was {why} moves again")


def covered():
    program = start()
    covers = []
    rests_and_goes_on(program, lambda: covers.append(host.window(0, 0, 640, 480)),
                      lambda: (covers.pop().destroy(), host.display.sync()), "covered")
    check(stop(program, signal.SIGTERM) == 0, "it ends as ever")


def display_off():
    """No X server without a real display can switch it off, so that its answers are put in its mouth."""
    off = FOLDER / "display-is-off"
    program = start(LD_PRELOAD=DISPLAY_POWER, DISPLAY_IS_OFF=str(off))
    rests_and_goes_on(program, off.touch, off.unlink, "dark")
    stop(program, signal.SIGTERM)


def call(method, *arguments, path="/org/freedesktop/login1"):
    subprocess.run(["gdbus", "call", "--system", "--dest=org.freedesktop.login1", f"--object-path={path}",
                    f"--method=org.freedesktop.DBus.Mock.{method}", *arguments],
                   check=True, stdout=subprocess.DEVNULL)


def another_session():
    bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--print-address=1",
                            f"--address=unix:dir={FOLDER}"], stdout=subprocess.PIPE, text=True)
    os.environ["DBUS_SYSTEM_BUS_ADDRESS"] = bus.stdout.readline().strip()
    manager = subprocess.Popen(["/usr/bin/python3", "-m", "dbusmock", "--system", "-t", "logind"],
                               stdout=subprocess.DEVNULL)
    subprocess.run(["gdbus", "wait", "--system", "--timeout=20", "org.freedesktop.login1"], check=True)
    call("AddSession", "c1", "seat0", "1000", "me", "true")
    call("AddMethod", MANAGER, "GetSessionByPID", "u", "o", f"ret = dbus.ObjectPath('{SESSION}')")

    def set_active(active):
        call("UpdateProperties", "org.freedesktop.login1.Session", f"{{'Active': <{active}>}}", path=SESSION)

    program = start()
    rests_and_goes_on(program, lambda: set_active("false"), lambda: set_active("true"), "in another session")
    stop(program, signal.SIGTERM)
    for process in (manager, bus):
        process.kill()
        process.wait()


def options_out_of_sight():
    program = subprocess.Popen([PROGRAM, "--configure"])

    def sheet():
        windows = [w for w in host.screen.root.query_tree().children if w.get_wm_name() == "Tamsel Clock"]
        return next((w for w in windows if w.get_attributes().map_state == X.IsViewable), None)

    window = wait_for("the options", sheet)
    wait_for("a moving preview", lambda: waits_per_second(program) > 45)
    window.unmap()
    host.display.sync()
    time.sleep(0.2)
    check(waits_per_second(program) < 5, "options that nobody sees cost nothing")
    window.map()
    host.display.sync()
    wait_for("a moving preview", lambda: waits_per_second(program) > 45)
    stop(program, signal.SIGTERM)


covered()
options_out_of_sight()
display_off()
another_session()
