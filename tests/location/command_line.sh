#!/bin/bash
# SPDX-License-Identifier: MIT
# The companion program without a window: what it prints, writes and announces, and its exit statuses.
# Arguments: the program, its version.
set -u
program=$1
file="$HOME/Library/Application Support/Tamsel Clock/location.plist"
failures=0

fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}

# expect STATUS STDOUT-PATTERN LINES-ON-STDERR ARGUMENT...
expect() {
    local status=$1 pattern=$2 lines=$3 output
    shift 3
    output=$("$program" "$@" 2>"$TMPDIR/err")
    [ $? = "$status" ] || fail "$*: the exit status is not $status"
    grep -qE -- "$pattern" <<<"$output" || fail "$*: unexpected output: $output"
    [ "$(wc -l <"$TMPDIR/err")" = "$lines" ] || fail "$*: stderr: $(cat "$TMPDIR/err")"
}

# Waits until the bus has seen PATTERN.
seen() {
    for _ in $(seq 50); do
        grep -q "$1" "$TMPDIR/bus" && return
        sleep 0.1
    done
    fail "the bus has not seen $1"
}

expect 0 '^Usage: pelko-location' 0 --help
expect 0 "^pelko-location $2\$" 0 --version
expect 1 '^$' 1 --show
expect 2 '^$' 1 --set 91,0
expect 2 '^$' 1 --nonsense
[ -e "$file" ] && fail "a file was written"
expect 0 '^$' 0 --forget

dbus-monitor --session "interface=org.tamsel.TamselClockSaver" >"$TMPDIR/bus" &
monitor=$!
seen NameAcquired
expect 0 '^$' 0 --set -33.87,151.21
seen 'path=/org/tamsel/TamselClockSaver;.*member=solarLocationChanged'
kill $monitor

[ "$(stat -c %a "$file")" = 600 ] || fail "the file can be read by others"
[ "$(head -c 8 "$file")" = bplist00 ] || fail "the file is not binary"
python3 -c '
import os, plistlib, sys
location = {"latitude": -33.87, "longitude": 151.21}
assert plistlib.load(open(sys.argv[1], "rb")) == location
suite = os.environ["XDG_CONFIG_HOME"] + "/tamsel-clock/org.tamsel.VornakClockSaver.plist"
assert plistlib.load(open(suite, "rb"))["SolarLocation"] == location
' "$file" || fail "what was saved is not what was said"
expect 0 '^Location: -33.87,151.21 \(Near Sydney, Australia\)$' 0 --show
expect 0 '^Sunset: +[0-9]' 0 --show
expect 0 "^Clock: +this computer's$" 0 --show
[[ $(TZ=Australia/Melbourne "$program" --show) == *Clock* ]] && fail "Sydney has Melbourne's time"

expect 0 '^$' 0 --forget
[ -e "$file" ] && fail "the file is still there"
expect 1 '^$' 1 --show
QT_QPA_PLATFORM=xcb expect 1 '^$' 1 # there is no display
# The program has to find the home of whom it runs as there.
sed 's/^\([^:]*:x\):[0-9]*:/\1:0:/' "$NSS_WRAPPER_PASSWD" >"$TMPDIR/root"
NSS_WRAPPER_PASSWD=$TMPDIR/root unshare --mount --map-root-user sh -c 'mount --bind "$HOME" "$HOME" && mount -o remount,bind,ro "$HOME" &&
    "$0" --set 60.17,24.94' "$program" 2>"$TMPDIR/err"
[ $? = 1 ] && grep -qE 'location.plist.* cannot be changed: the disk is read-only$' "$TMPDIR/err" ||
    fail "a read-only disk: $(cat "$TMPDIR/err")"
rm -rf "$HOME/Library" && touch "$HOME/Library"
expect 1 '^$' 1 --set 60.17,24.94
exit $((failures > 0))
