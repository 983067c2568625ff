#!/bin/bash
# SPDX-License-Identifier: MIT
# The real XScreenSaver daemon, run by an ordinary user since it refuses to start savers as root.
set -u
program=$1
dir=$(mktemp -d)
user=
server=
fail() {
    echo "FAILED: $*" >&2
    [ -f "$dir/log" ] && tail -n 20 "$dir/log" >&2
    exit 1
}
clean_up() {
    [ -n "$user" ] && pkill -u "$user" && sleep 0.3
    [ -n "$server" ] && kill "$server" 2>/dev/null && wait "$server" 2>/dev/null
    [ -n "$user" ] && [ "$user" != "$(id -un)" ] && userdel "$user" 2>/dev/null
    rm -rf "$dir"
}
trap clean_up EXIT

# The build tree may be closed to other users, so the saver runs from a copy that has the shape of an installation.
mkdir -p "$dir/bin" "$dir/lib/tamsel-clock" "$dir/home"
cp "$program" "$dir/bin/"
cp -r "$(dirname "$program")/../lib/tamsel-clock/VornakClockSaver.saver" "$dir/lib/tamsel-clock/"
cat >"$dir/home/.xscreensaver" <<CONF
mode: one
selected: 0
lock: False
fade: False
unfade: False
splash: False
programs: "Tamsel Clock" $dir/bin/tamsel-clock --root \\n
CONF
chmod -R a+rX "$dir"

as_user=(env)
if [ "$(id -u)" = 0 ]; then
    user=tamseltest$$
    useradd --no-create-home --home-dir "$dir/home" "$user" || fail "no ordinary user can be made"
    chown -R "$user" "$dir/home"
    chmod a+x "$TMPDIR"
    as_user=(setpriv --reuid "$user" --regid "$user" --clear-groups env)
fi

mkfifo "$dir/number"
Xvfb -displayfd 3 -screen 0 640x360x24 -noreset -nolisten tcp 3>"$dir/number" 2>/dev/null &
server=$!
read -r number <"$dir/number"
display=:$number
run() {
    "${as_user[@]}" -u QT_QPA_PLATFORM HOME="$dir/home" USER="${user:-$(id -un)}" DISPLAY="$display" \
        XDG_CONFIG_HOME="$dir/home/.config" XDG_RUNTIME_DIR= "$@"
}

# until_true SECONDS COMMAND...
until_true() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.1
    done
}
corner_colour() {
    DISPLAY=$display import -silent -window root -crop 1x1+2+2 -format '%[pixel:p{0,0}]' info:
}
shows_orange() {
    [ "$(corner_colour)" = 'srgb(255,70,0)' ]
}
no_saver_runs() {
    ! pgrep -f "^$dir/bin/tamsel-clock" >/dev/null
}

run xscreensaver --no-splash --verbose >"$dir/log" 2>&1 &
daemon_answers() {
    run xscreensaver-command -time 2>/dev/null | grep -q 'non-blanked'
}
until_true 15 daemon_answers || fail "the daemon does not start"
run xscreensaver-command -activate >/dev/null 2>&1 || fail "the daemon does not answer"
until_true 20 shows_orange || fail "no clock on the screen, its corner is $(corner_colour)"
[ "$(DISPLAY=$display import -silent -window root -format '%k' info:)" -gt 8 ] || fail "no dial on the screen"
run xscreensaver-command -deactivate >/dev/null 2>&1 || fail "the daemon does not answer"
until_true 5 no_saver_runs || fail "deactivation leaves the saver running"
grep -qi 'crashed\|not installed' "$dir/log" && fail "the daemon saw a crash"
exit 0
