#!/bin/bash
# SPDX-License-Identifier: MIT
# The real xsecurelock: one clock on each of two monitors, and a lock that outlives its savers.
. support/screen.sh

export XSECURELOCK_SAVER=/usr/bin/tamsel-clock XSECURELOCK_NO_COMPOSITE=1
start_screen 1280x720
xrandr --setmonitor L 640/160x720/180+0+0 screen >/dev/null
xrandr --setmonitor R 640/160x720/180+640+0 none >/dev/null

two_clocks() {
    [ "$(clocks | wc -l)" = 2 ]
}
on_both_monitors() {
    shows "$orange" 2 2 637 717 642 2 1277 717 && has_dial 640x720+0+0 && has_dial 640x720+640+0
}
xsecurelock >"$log" 2>&1 &
lock=$!
until_true 20 on_both_monitors || fail "no clock on each monitor, their corners are $(colour_at 2 2), $(colour_at 642 2)"
two_clocks || fail "not one clock for each monitor"
look xsecurelock
pkill -KILL -x tamsel-clock
covered 2 642 2 || fail "killed savers bare the desktop"
until_true 20 on_both_monitors || fail "killed savers do not come back"
kill -0 $lock || fail "killed savers end the lock"
kill $lock
until_true 5 no_clock_runs || fail "the end of the lock leaves savers running"
exit 0
