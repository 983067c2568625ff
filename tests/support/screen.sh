# SPDX-License-Identifier: MIT
# Sourced by tests that show the clock on a screen: a private X server and access to its pixels.
set -u
orange='srgb(255,70,0)'
desktop='srgb(255,0,255)'
log=$TMPDIR/log
unset QT_QPA_PLATFORM

fail() {
    echo "FAILED: $*" >&2
    [ -f "$log" ] && tail -n 20 "$log" >&2
    exit 1
}

# start_screen WIDTHxHEIGHT: points DISPLAY to an X server that ends with the test; its desktop is $desktop.
start_screen() {
    local number=$TMPDIR/number
    mkfifo "$number"
    Xvfb -displayfd 3 -screen 0 "$1x24" -noreset -nolisten tcp 3>"$number" 2>/dev/null &
    screen=$!
    trap 'kill $screen; wait $screen' EXIT
    read -r number <"$number"
    export DISPLAY=:$number
    xsetroot -solid magenta
}

# until_true SECONDS COMMAND...: whether the command succeeds within that time.
until_true() {
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.1
    done
}

colour_at() {
    import -silent -window root -crop "1x1+$1+$2" -format '%[pixel:p{0,0}]' info:
}
# shows COLOUR X Y [X Y...]: whether all these points of the screen have that colour.
shows() {
    local colour=$1
    shift
    while [ $# -gt 0 ]; do
        [ "$(colour_at "$1" "$2")" = "$colour" ] || return 1
        shift 2
    done
}
# covered SECONDS X Y: whether the desktop stays hidden there for that time.
covered() {
    ! until_true "$1" shows "$desktop" "$2" "$3"
}
# has_dial WIDTHxHEIGHT+X+Y: whether that part of the screen holds more than flat colours.
has_dial() {
    [ "$(import -silent -window root -crop "$1" -format '%k' info:)" -gt 8 ]
}
# thumbnail_shows COLOUR: whether the clock's window, wherever it is, has that colour in its corner.
thumbnail_shows() {
    local x y
    IFS=+ read -r _ x y < <(xwininfo -root -tree | awk '/"tamsel-clock"/ { print $NF }')
    [ -n "$y" ] && shows "$1" $((x + 2)) $((y + 2))
}
# look NAME: leaves a picture of the screen in the folder LOOK, if one is named.
look() {
    [ -z "${LOOK:-}" ] || import -silent -window root "$LOOK/$1.png"
}

clocks() {
    pgrep -x tamsel-clock
}
no_clock_runs() {
    ! clocks >/dev/null
}
