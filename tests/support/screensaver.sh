# SPDX-License-Identifier: MIT
# Sourced by tests of the screensavers of MATE and Xfce, which have one origin, after screen.sh.

# drive_screensaver DESKTOP [ARGUMENT...]: starts its daemon with these arguments on the screen, where the clock is the
# chosen theme; it shows the clock when activated and in its preferences.
drive_screensaver() {
    local name=$1 saver=${1/xfce/xfce4}-screensaver
    shift
    "$saver" "$@" >"$log" 2>&1 &
    local daemon=$!
    until_true 15 "$saver-command" --query >/dev/null 2>&1 || fail "the daemon does not start"
    "$saver-command" --activate
    until_true 15 shows "$orange" 2 2 1277 717 || fail "no clock on the screen, its corner is $(colour_at 2 2)"
    has_dial 1280x720+0+0 || fail "no dial on the screen"
    look "$name"
    pkill -KILL -x tamsel-clock
    covered 2 2 2 || fail "a killed saver bares the desktop"
    kill -0 $daemon || fail "a killed saver ends the daemon"
    "$saver-command" --deactivate
    until_true 5 shows "$desktop" 2 2 || fail "the desktop does not come back"

    "$saver-command" --activate
    until_true 15 shows "$orange" 2 2 || fail "no clock when activated again"
    "$saver-command" --deactivate
    until_true 5 no_clock_runs || fail "deactivation leaves the saver running"

    "$saver-preferences" >/dev/null 2>&1 &
    local preferences=$!
    until_true 15 thumbnail_shows "$orange" || fail "no clock in the preferences"
    look "$name-preferences"
    kill $preferences
    until_true 5 no_clock_runs || fail "preferences that end leave their clock running"
    kill $daemon
    wait $daemon
    return 0
}
