#!/bin/bash
# SPDX-License-Identifier: MIT
# The real XScreenSaver: its daemon runs the clock, its settings window shows the thumbnail.
. support/screen.sh

start_screen 1280x720
cat >"$HOME/.xscreensaver" <<CONF
mode: one
selected: 0
lock: False
fade: False
unfade: False
splash: False
CONF
tamsel-clock --register-xscreensaver || fail "the clock cannot be registered"

daemon_answers() {
    xscreensaver-command -time 2>/dev/null | grep -q 'non-blanked'
}
activate() {
    xscreensaver-command -activate >/dev/null 2>&1 || fail "the daemon does not answer"
    until_true 20 shows "$orange" 2 2 1277 717 || fail "no clock on the screen, its corner is $(colour_at 2 2)"
}
deactivate() {
    xscreensaver-command -deactivate >/dev/null 2>&1 || fail "the daemon does not answer"
    # Its drawing process may begin to wait just after the signal came, and then sees it with its next timer, 5 s later.
    until_true 15 shows "$desktop" 2 2 || fail "the desktop does not come back"
    until_true 5 no_clock_runs || fail "deactivation leaves the saver running"
}

xscreensaver --no-splash --verbose >"$log" 2>&1 &
until_true 15 daemon_answers || fail "the daemon does not start"
activate
has_dial 1280x720+0+0 || fail "no dial on the screen"
look xscreensaver
deactivate
grep -qi 'crashed\|not installed' "$log" && fail "the daemon saw a crash"

activate
pkill -KILL -x tamsel-clock
covered 2 2 2 || fail "a killed saver bares the desktop"
look xscreensaver-killed
deactivate

xscreensaver-settings >/dev/null 2>&1 &
settings=$!
until_true 15 thumbnail_shows "$orange" || fail "no clock in the thumbnail"
look xscreensaver-settings
kill $settings
until_true 5 no_clock_runs || fail "a settings window that ends leaves its thumbnail's clock running"
exit 0
