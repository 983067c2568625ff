#!/bin/bash
# SPDX-License-Identifier: MIT
# The real MATE screensaver: it finds the clock among its themes, shows it when activated and in its preferences.
. support/screen.sh

export GSETTINGS_BACKEND=keyfile
start_screen 1280x720
gsettings set org.mate.screensaver mode single
gsettings set org.mate.screensaver themes "['screensavers-tamsel-clock']"
gsettings set org.mate.screensaver lock-enabled false
gsettings set org.mate.screensaver idle-activation-enabled false

mate-screensaver --no-daemon >"$log" 2>&1 &
daemon=$!
until_true 15 mate-screensaver-command --query >/dev/null 2>&1 || fail "the daemon does not start"
mate-screensaver-command --activate
until_true 15 shows "$orange" 2 2 1277 717 || fail "no clock on the screen, its corner is $(colour_at 2 2)"
has_dial 1280x720+0+0 || fail "no dial on the screen"
look mate
pkill -KILL -x tamsel-clock
covered 2 2 2 || fail "a killed saver bares the desktop"
kill -0 $daemon || fail "a killed saver ends the daemon"
mate-screensaver-command --deactivate
until_true 5 shows "$desktop" 2 2 || fail "the desktop does not come back"

mate-screensaver-command --activate
until_true 15 shows "$orange" 2 2 || fail "no clock when activated again"
mate-screensaver-command --deactivate
until_true 5 no_clock_runs || fail "deactivation leaves the saver running"

mate-screensaver-preferences >/dev/null 2>&1 &
preferences=$!
until_true 15 thumbnail_shows "$orange" || fail "no clock in the preferences"
look mate-preferences
kill $preferences
until_true 5 no_clock_runs || fail "preferences that end leave their clock running"
exit 0
