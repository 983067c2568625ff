#!/usr/bin/python3
# SPDX-License-Identifier: MIT
"""The clock that waits for an idle user, on a bare X server and under a played GNOME."""
import getpass
import os
import signal
import subprocess
import sys
import tempfile
import time

sys.path.insert(0, os.path.join(os.path.dirname(__file__), "..", "support"))
from xhost import ORANGE, Host, check, is_alive, start_x_server, stop, wait_for  # noqa: E402

PROGRAM = sys.argv[1]
start_x_server("-screen", "0", "640x360x24")
host = Host()
MONITOR = "org.gnome.Mutter.IdleMonitor"
MONITOR_PATH = "/org/gnome/Mutter/IdleMonitor/Core"
SESSION = "org.gnome.SessionManager"
SESSION_PATH = "/org/gnome/SessionManager"


def wait_idle(minutes, **variables):
    return subprocess.Popen([PROGRAM, "--idle", str(minutes)], env={**os.environ, **variables}, stderr=subprocess.PIPE, text=True)


def shows_clock():
    return host.shows(ORANGE, 2, 2) and host.shows(ORANGE, 637, 357)


def shows_desktop():
    return not host.shows(ORANGE, 2, 2)


def clocks_of(service):
    listed = subprocess.run(["pgrep", "-P", str(service.pid)], capture_output=True, text=True).stdout
    return [int(line) for line in listed.split()]


def xdotool(*arguments):
    subprocess.run(["xdotool", *arguments], check=True)


def with_the_x_server_alone():
    xdotool("mousemove", "100", "100")
    service = wait_idle(0.04)
    wait_for("the clock of an idle user", shows_clock)
    second = wait_idle(0.04)
    check(second.wait(5) == 1 and second.stderr.read().count("\n") == 1, "a session has one waiting clock")

    for clock in clocks_of(service):
        os.kill(clock, signal.SIGKILL)
    wait_for("the desktop behind a killed clock", shows_desktop)
    wait_for("another clock", shows_clock)

    xdotool("mousemove", "160", "140")
    wait_for("the end at the first input", shows_desktop, 1.5)
    wait_for("the end of the program", lambda: not clocks_of(service), 2)
    check(is_alive(service), "the waiting goes on")
    wait_for("the clock of a user idle again", shows_clock)
    xdotool("key", "space")
    wait_for("the end by a key", shows_desktop, 1.5)

    wait_for("the clock of a user idle again", shows_clock)
    os.kill(clocks_of(service)[0], signal.SIGSTOP)
    xdotool("mousemove_relative", "40", "30")
    wait_for("the end of a clock that does not end itself", lambda: not clocks_of(service), 4)

    wait_for("the clock of a user idle again", shows_clock)
    check(stop(service, signal.SIGTERM, within=1.5) == 0, "SIGTERM ends the waiting with status 0")
    wait_for("the end of its clock", shows_desktop)
    check(service.stderr.read() == "", "the waiting is silent")


def where_the_runtime_folder_is_not_ours():
    away = {"XDG_RUNTIME_DIR": "", "TMPDIR": tempfile.mkdtemp()}
    os.symlink("/", f"{away['TMPDIR']}/runtime-{getpass.getuser()}")
    service = wait_idle(60, **away)
    time.sleep(0.5)
    check(is_alive(service), "the waiting needs no runtime folder")
    for changed, reason in (({}, "already waiting"), ({"XDG_CONFIG_HOME": "/dev/null/none"}, "cannot lock")):
        second = wait_idle(60, **away, **changed)
        check(second.wait(5) == 1 and reason in second.stderr.read(), f"the second ends: {reason}")
    check(stop(service, signal.SIGTERM, within=1.5) == 0, "SIGTERM ends the waiting")


def play(service, path):
    player = subprocess.Popen(["/usr/bin/python3", "-m", "dbusmock", "--session", service, path, service],
                              stdout=subprocess.DEVNULL)
    subprocess.run(["gdbus", "wait", "--session", "--timeout=20", service], check=True)
    return player


def tell(service, path, method, *arguments):
    subprocess.run(["gdbus", "call", "--session", f"--dest={service}", f"--object-path={path}",
                    f"--method=org.freedesktop.DBus.Mock.{method}", *arguments],
                   check=True, stdout=subprocess.DEVNULL)


def fire(watch):
    tell(MONITOR, MONITOR_PATH, "EmitSignal", MONITOR, "WatchFired", "u", f"[<uint32 {watch}>]")


def film_runs(runs):
    tell(SESSION, SESSION_PATH, "AddMethod", SESSION, "IsInhibited", "u", "b", f"ret = {runs}")


def watched():
    """The kinds of watches the program has asked for."""
    calls = subprocess.run(["gdbus", "call", "--session", f"--dest={MONITOR}", f"--object-path={MONITOR_PATH}",
                            "--method=org.freedesktop.DBus.Mock.GetCalls"], capture_output=True, text=True).stdout
    return calls.count("AddIdleWatch"), calls.count("AddUserActiveWatch")


def under_gnome():
    players = [play(MONITOR, MONITOR_PATH), play(SESSION, SESSION_PATH)]
    tell(MONITOR, MONITOR_PATH, "AddMethod", MONITOR, "AddIdleWatch", "t", "u", "ret = 7")
    tell(MONITOR, MONITOR_PATH, "AddMethod", MONITOR, "AddUserActiveWatch", "", "u", "ret = 8")
    film_runs(True)
    service = wait_idle(60)
    wait_for("a watch", lambda: watched() == (1, 0))
    fire(7)
    wait_for("a watch for the return", lambda: watched() == (1, 1))
    time.sleep(1.5)
    check(not clocks_of(service), "a film keeps the clock away")
    fire(8)
    film_runs(False)
    fire(7)
    wait_for("the clock of an idle user", shows_clock)
    wait_for("a watch for the return", lambda: watched() == (1, 2))
    fire(8)
    wait_for("the end when GNOME tells so", shows_desktop)
    check(is_alive(service), "the waiting goes on")
    check(stop(service, signal.SIGTERM, within=1.5) == 0, "SIGTERM ends the waiting with status 0")
    for player in players:
        player.kill()


def the_end_of_the_session_ends_it():
    server = subprocess.Popen(["Xvfb", "-displayfd", "1", "-screen", "0", "64x64x24", "-nolisten", "tcp"],
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
    service = wait_idle(60, DISPLAY=f":{server.stdout.readline().strip()}")
    time.sleep(0.5)
    check(is_alive(service), "a clock waits in another session")
    server.kill()
    check(service.wait(5) == 0, "the end of the session ends the waiting with status 0")


with_the_x_server_alone()
where_the_runtime_folder_is_not_ours()
under_gnome()
the_end_of_the_session_ends_it()
