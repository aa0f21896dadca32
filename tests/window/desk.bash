# SPDX-License-Identifier: MIT
# shellcheck shell=bash
# A display of its own with a window manager, the program on it, and hands that press and click. Sourced by the flows
# beside it, which find the build and the checkout in BUILD_DIR and SOURCE_DIR.
set -uo pipefail

expected=$SOURCE_DIR/tests/window/expected
pictures=$BUILD_DIR/../screenshots
mkdir -p "$pictures"
work=$(mktemp -d)
pids=()
finish() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; done
    wait 2>/dev/null
    rm -rf "$work"
}
trap finish EXIT
fail() {
    echo "$(basename "$0" .sh): $1" >&2
    [ ! -s "$work/program.log" ] || cat "$work/program.log" >&2
    [ -z "${DISPLAY:-}" ] || import -window root "$pictures/failed.png" 2>/dev/null
    exit 1
}

# A display of its own with a window manager, without which no window gets the keyboard.
export HOME=$work/home XDG_CONFIG_HOME=$work/home/config XDG_RUNTIME_DIR=$work/home
# The desktop's own libraries copy the start of texts that end in no zero, which is no fault where a length is given.
[ -z "${ASAN_OPTIONS:-}" ] || export ASAN_OPTIONS=$ASAN_OPTIONS:strict_string_checks=0
export TZ=UTC LC_ALL=C.UTF-8 DBUS_SESSION_BUS_ADDRESS=disabled: QT_QPA_PLATFORM=xcb
mkdir -p "$HOME" "$work/station/bu"
chmod 700 "$HOME"
unset DISPLAY WAYLAND_DISPLAY
Xvfb -displayfd 3 -screen 0 1366x768x24 -dpi 96 -nolisten tcp 3>"$work/display" >"$work/xvfb.log" 2>&1 &
pids+=($!)
for _ in $(seq 100); do [ -s "$work/display" ] && break || sleep 0.1; done
[ -s "$work/display" ] || fail "no display came up: $(cat "$work/xvfb.log")"
export DISPLAY=:$(<"$work/display")
openbox >"$work/openbox.log" 2>&1 &
pids+=($!)
for _ in $(seq 100); do xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && break || sleep 0.1; done

# Waits for a window by its whole title and makes sure that it has the keyboard.
front() {
    local at
    for _ in $(seq 200); do
        at=$(xdotool getactivewindow getwindowname 2>/dev/null)
        [ "$at" = "$1" ] && sleep 0.3 && return
        sleep 0.1
    done
    fail "the window '$1' did not come to the front; there is '$at'"
}
picture() { sleep 0.3 && import -window root "$pictures/$1.png"; }
press() { xdotool key --delay 30 "$@"; }
write() { xdotool type --delay 5 "$1"; }
# Clicks at a place of the window in front; a negative one counts from its right or lower edge.
click_at() {
    local x=$1 y=$2 times=${3:-1} WIDTH HEIGHT WINDOW
    eval "$(xdotool getactivewindow getwindowgeometry --shell | grep -E '^(WIDTH|HEIGHT|WINDOW)=')"
    [ "$x" -ge 0 ] || x=$((WIDTH + x))
    [ "$y" -ge 0 ] || y=$((HEIGHT + y))
    xdotool mousemove --window "$WINDOW" "$x" "$y" click --repeat "$times" --delay 60 1
    sleep 0.3
}
# The arguments are variables of the program's environment.
start() {
    cd "$work/station" || exit 1
    env "$@" "$BUILD_DIR/tarqen" 2>"$work/program.log" &
    program=$!
    pids+=("$program")
}
ended() {
    for _ in $(seq 100); do kill -0 "$program" 2>/dev/null || break; sleep 0.1; done
    kill -0 "$program" 2>/dev/null && fail "the program did not end"
    wait "$program" || fail "the program ended with an error: $(cat "$work/program.log")"
}
# Each argument is a call and a grid with a blank between; a QSO is the call, Space, the grid, Enter, and Enter on the button.
log_qsos() {
    local qso
    for qso in "$@"; do
        write "${qso% *}"
        press space
        write "${qso#* }"
        press Return Return
    done
}
# Date and time of a QSO stand in columns 11 to 24 from the third line on; the contest's name begins with the year.
normal() {
    sed -E -e '1s/^[0-9]{4}/YYYY/' -e '3,$s/^(.{10})[0-9]{2}\/[0-9]{2}\/[0-9]{2}  [0-9]{4}/\1MM\/DD\/YY  HHMM/' "$1"
}
compare() {
    [ -f "$1" ] || fail "there is no file $1"
    if [ -n "${RENEW:-}" ]; then normal "$1" >"$expected/$2"; fi
    normal "$1" | cmp - "$expected/$2" && return
    normal "$1" | diff -a "$expected/$2" - >&2
    fail "$1 is not what it should be"
}
lines_in() {
    for _ in $(seq 50); do [ "$(wc -l <"$work/station/$1")" -eq "$2" ] && return || sleep 0.1; done
    fail "$1 has $(wc -l <"$work/station/$1") lines and not $2"
}
