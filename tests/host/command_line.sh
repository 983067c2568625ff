#!/bin/bash
# SPDX-License-Identifier: MIT
# The program as started from a shell without a display: exit statuses, single lines on stderr, pictures.
set -u
program=$1
unset QT_QPA_PLATFORM
cd "$(mktemp -d)" || exit 1

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

# expect STATUS TEXT ARGUMENT...: that exit status, and TEXT in one line on stderr.
expect() {
    local status=$1 text=$2 error
    shift 2
    error=$(timeout 10 "$program" "$@" 2>&1 >/dev/null)
    local got=$?
    [ $got = "$status" ] || fail "'$*' gave status $got, not $status"
    [ "$(grep -c '' <<<"$error")" = 1 ] || fail "'$*' said not one line: $error"
    grep -qF -- "$text" <<<"$error" || fail "'$*' said: $error"
}

expect 2 bogus --bogus
expect 1 'no display'
expect 1 'no display' --window
expect 1 'no X display' --root
expect 1 'no X display' --window-id 0x123
expect 1 /nowhere/a.png --snapshot /nowhere/a.png
LANGUAGE=ar expect 2 bogus --bogus
LANGUAGE=de expect 1 'keine Anzeige'
DISPLAY=:987 expect 1 'no display'
WAYLAND_DISPLAY=wayland-9 expect 1 'no display'
QT_QPA_PLATFORM='wayland;xcb' expect 1 'no display'
QT_QPA_PLATFORM=nonsense expect 1 'no Qt platform plugin'
echo '{"screens": []}' >none.json
for mode in '' --window --configure; do
    QT_QPA_PLATFORM=offscreen:configfile=$PWD/none.json expect 1 'has no screen' ${mode:+$mode}
done

# Settings as scripts read and write them: what one prints the other takes, and writers at once lose nothing.
export XDG_CONFIG_HOME=$PWD/config
LC_ALL=C expect 2 "'Bogus'" --get Bogus
expect 2 "'Bogus'" --set Bogus 1
for bad in 'SelectedVariant black' 'CustomBaseColor #12345' 'CalendarEnabled yes' 'NightSettings.from 1440' \
    'NightSettings.to 24:00' 'NightSettings.fromMode sunrise' 'NightSettings.enabled '; do
    expect 2 "${bad%% *}: '${bad#* }'" --set "${bad%% *}" "${bad#* }"
done
[ ! -e config ] || fail "a bad value is written: $(find config)"
cat >wanted <<'END'
SelectedVariant random
CustomBaseColor #12AB34
CustomMarkColor #FFFFFF
CalendarEnabled true
NightSettings.enabled true
NightSettings.fromMode custom
NightSettings.from 1335
NightSettings.toMode custom
NightSettings.to 0
NightSettings.base #101010
NightSettings.mark #EEEEEE
END
while read -r key value; do
    "$program" --set "$key" "$value" &
done <wanted
wait
"$program" --set NightSettings.from 22:15 || fail "a time of day"
"$program" --get | diff wanted - || fail "what is set is not what is got"
[ "$("$program" --get=CalendarEnabled)" = true ] || fail "one setting"
rm config/tamsel-clock/org.tamsel.*.plist && mkdir config/tamsel-clock/org.tamsel.VornakClockSaver.plist
expect 1 org.tamsel.VornakClockSaver.plist --set SelectedVariant blue

"$program" --idle-at-login on && desktop-file-validate config/autostart/*.desktop || fail "an autostart entry"
grep -qxF "Exec=\"$program\" --idle" config/autostart/*.desktop || fail "it starts $(cat config/autostart/*)"
"$program" --idle-at-login off && [ -z "$(ls config/autostart)" ] || fail "an entry stays"

mkdir -p moved/bin moved/lib/tamsel-clock
cp "$program" moved/bin/
program=moved/bin/tamsel-clock expect 1 'resources are missing' --snapshot a.png

[ "$("$program" --version)" = "tamsel-clock $2" ] || fail "--version says $("$program" --version)"
"$program" --help | grep -q -- '--snapshot' || fail "--help does not name --snapshot"

"$program" --snapshot clock.png --size 240x135 --scale 2 --at 2026-03-14T22:08:30.5 || fail "a picture"
[ "$(identify -format '%wx%h' clock.png)" = 480x270 ] || fail "a picture's size is $(identify clock.png)"

# Where the program's place is unknown to everybody but the kernel, the current folder's files are nobody's bundle. A
# sanitizer reads its options in /proc, and its search for leaks needs more of that folder.
mkdir -p trap/bin trap/lib/tamsel-clock/VornakClockSaver.saver/Contents/Resources/orange
unshare -rm bash -c 'mount -t tmpfs none /proc && mkdir /proc/self &&
    printf "ASAN_OPTIONS=detect_leaks=0\0" >/proc/self/environ &&
    cd trap/bin && exec -a nameless "$0" --snapshot ../clock.png' "$program" || fail "a picture without /proc"
[ "$(identify -format '%k' trap/clock.png)" -gt 2 ] || fail "the bundle of the current folder is drawn"

# A layer that is missing leaves the others.
bundle=$3
mkdir -p single/bin single/lib/tamsel-clock
cp "$program" single/bin/
cp -r "$bundle" single/lib/tamsel-clock/
rm single/lib/tamsel-clock/VornakClockSaver.saver/Contents/Resources/orange/face.svg
echo '<svg' >single/lib/tamsel-clock/VornakClockSaver.saver/Contents/Resources/orange/hour.svg
single/bin/tamsel-clock --snapshot bare.png --size 240x135 2>errors || fail "a picture without a face"
[ -s errors ] && fail "a missing layer is no message: $(cat errors)"
[ "$(identify -format '%k' bare.png)" -gt 2 ] || fail "the other layers are drawn"
