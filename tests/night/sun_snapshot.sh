#!/bin/bash
# SPDX-License-Identifier: MIT
# The installed programs together: what the companion saves decides at which minute the clock's night begins.
# Arguments: the clock, the companion.
set -u
clock=$1
companion=$2

# The colour of the background at the local time $1.
background() {
    "$clock" --snapshot "$TMPDIR/clock.png" --size 100x100 --at "2026-03-14T$1" &&
        convert "$TMPDIR/clock.png" -format '%[hex:p{1,1}]' info:
}

mkdir -p "$XDG_CONFIG_HOME/tamsel-clock"
cat >"$XDG_CONFIG_HOME/tamsel-clock/org.tamsel.VornakClockSaver.plist" <<'PLIST'
<plist version="1.0"><dict><key>NightSettings</key><dict>
<key>enabled</key><true/><key>fromMode</key><string>sunset</string><key>toMode</key><string>sunrise</string>
<key>base</key><string>#000010</string></dict></dict></plist>
PLIST
seen=$(background 23:00)
"$companion" --set 60.1699,24.9384 || exit 1
seen+=" $(background 18:18:59) $(background 18:19) $(background 06:39:59) $(background 06:40)"
wanted="FF4600 FF4600 000010 000010 FF4600"
[ "$seen" = "$wanted" ] || {
    echo "FAILED: the backgrounds are $seen instead of $wanted"
    exit 1
}
