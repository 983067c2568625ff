#!/bin/bash
# SPDX-License-Identifier: MIT
# The real Xfce screensaver: it finds the clock among its themes, shows it when activated and in its preferences.
. support/screen.sh
. support/screensaver.sh

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

drive_screensaver xfce
kill $settings
wait $settings
exit 0
