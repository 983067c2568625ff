#!/bin/bash
# SPDX-License-Identifier: MIT
# Wayland: sway without a screen, with two outputs of different scale and a third one that comes later.
set -u
. "$(dirname "$0")/../support/screen.sh"
for program in sway swaymsg swayidle grim wtype; do
    if ! command -v $program >/dev/null; then
        echo "SKIPPED: $program is not installed (script/setup --hosts)" >&2
        exit 77
    fi
done
export WLR_BACKENDS=headless WLR_LIBINPUT_NO_DEVICES=1 WLR_RENDERER=pixman WLR_HEADLESS_OUTPUTS=2
cat >"$TMPDIR/config" <<'CONF'
xwayland disable
output HEADLESS-1 resolution 1280x720 position 0,0 scale 1.5
output HEADLESS-2 resolution 800x600 position 854,0 scale 2
output HEADLESS-3 resolution 640x480 position 1254,0 scale 1
CONF
sway --config "$TMPDIR/config" >"$TMPDIR/sway" 2>&1 &
sockets() {
    compgen -G "$XDG_RUNTIME_DIR/sway-ipc.*.sock" >/dev/null && compgen -G "$XDG_RUNTIME_DIR/wayland-?" >/dev/null
}
until_true 15 sockets || fail "sway does not start: $(tail "$TMPDIR/sway")"
SWAYSOCK=$(compgen -G "$XDG_RUNTIME_DIR/sway-ipc.*.sock")
WAYLAND_DISPLAY=$(basename "$(compgen -G "$XDG_RUNTIME_DIR/wayland-?")")
export SWAYSOCK WAYLAND_DISPLAY

# shot OUTPUT, then pixel X Y: in device pixels.
shot() {
    grim -o "$1" "$TMPDIR/$1.png"
}
pixel() {
    convert "$TMPDIR/$1.png" -alpha off -format "%[pixel:p{$2,$3}]" info:
}
# dial_shows OUTPUT WIDTH HEIGHT: the picture reaches every edge, and the hub of the dial stands in the middle.
dial_shows() {
    shot "$1" || return 1
    [ "$(identify -format '%wx%h' "$TMPDIR/$1.png")" = "$2x$3" ] || fail "$1 is $(identify "$TMPDIR/$1.png")"
    for corner in "0 0" "$(($2 - 1)) 0" "0 $(($3 - 1))" "$(($2 - 1)) $(($3 - 1))"; do
        # shellcheck disable=SC2086
        [ "$(pixel "$1" $corner)" = 'srgb(255,70,0)' ] || return 1
    done
    [ "$(pixel "$1" $(($2 / 2 + $3 / 45)) $(($3 / 2)))" = 'srgb(0,0,0)' ]
}
desktop_shows() {
    shot HEADLESS-1 && [ "$(pixel HEADLESS-1 0 0)" != 'srgb(255,70,0)' ]
}
dials_show() {
    dial_shows HEADLESS-1 1280 720 && dial_shows HEADLESS-2 800 600
}
until_true 10 desktop_shows || fail "sway shows no desktop"

tamsel-clock 2>"$TMPDIR/log" &
clock=$!
until_true 15 dials_show || fail "no dial on each output: $(cat "$TMPDIR/log")"
if [ -n "${TAMSEL_PICTURES:-}" ]; then
    grim "$TAMSEL_PICTURES/sway.png"
    cp "$TMPDIR"/HEADLESS-?.png "$TAMSEL_PICTURES"
fi
swaymsg -q create_output
until_true 10 dial_shows HEADLESS-3 640 480 || fail "no dial on an output that came later"
kill -0 $clock || fail "a new output ends the clock"
wtype -s 800 a -s 300
until_true 5 no_clock_runs || fail "a key does not end the clock"
wait $clock || fail "a key ends the clock with status $?"
until_true 5 desktop_shows || fail "the desktop does not come back"
[ -s "$TMPDIR/log" ] && fail "the clock is not silent: $(cat "$TMPDIR/log")"

# As the documentation has it.
swayidle timeout 1 tamsel-clock >/dev/null 2>&1 &
until_true 15 dials_show || fail "swayidle does not show the clock"
wtype -s 800 a -s 300
until_true 5 desktop_shows || fail "a key does not end swayidle's clock"
exit 0
