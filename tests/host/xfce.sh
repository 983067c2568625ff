#!/bin/bash
# SPDX-License-Identifier: MIT
# The real Xfce screensaver: it finds the clock among its themes, shows it when activated and in its preferences.
. support/screen.sh

start_screen 1280x720
"$(find /usr/lib -name xfconfd)" >"$log" 2>&1 &
settings=$!
until_true 15 xfconf-query --list >/dev/null 2>&1 || fail "no settings daemon"
setting() {
    xfconf-query --channel xfce4-screensaver --property "$1" --create --type "$2" --set "$3" "${@:4}"
}
setting /saver/mode int 2 # a single saver
setting /saver/themes/list string screensavers-tamsel-clock --force-array
setting /lock/enabled bool false
setting /saver/idle-activation/enabled bool false

xfce4-screensaver >"$log" 2>&1 &
daemon=$!
until_true 15 xfce4-screensaver-command --query >/dev/null 2>&1 || fail "the daemon does not start"
xfce4-screensaver-command --activate
until_true 15 shows "$orange" 2 2 1277 717 || fail "no clock on the screen, its corner is $(colour_at 2 2)"
has_dial 1280x720+0+0 || fail "no dial on the screen"
look xfce
pkill -KILL -x tamsel-clock
covered 2 2 2 || fail "a killed saver bares the desktop"
kill -0 $daemon || fail "a killed saver ends the daemon"
xfce4-screensaver-command --deactivate
until_true 5 shows "$desktop" 2 2 || fail "the desktop does not come back"

xfce4-screensaver-command --activate
until_true 15 shows "$orange" 2 2 || fail "no clock when activated again"
xfce4-screensaver-command --deactivate
until_true 5 no_clock_runs || fail "deactivation leaves the saver running"

xfce4-screensaver-preferences >/dev/null 2>&1 &
preferences=$!
until_true 15 thumbnail_shows "$orange" || fail "no clock in the preferences"
look xfce-preferences
kill $preferences
until_true 5 no_clock_runs || fail "preferences that end leave their clock running"
kill $daemon $settings
wait $daemon $settings
exit 0
