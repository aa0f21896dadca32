#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Plays the program in a real window with real keys: setup, two new logs of ten QSOs each, a log reopened and gone on
# with. Compares the files that it wrote byte for byte, but for date and time, and leaves a picture of every form.
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
    echo "flow: $1" >&2
    [ -z "${DISPLAY:-}" ] || import -window root "$pictures/failed.png" 2>/dev/null
    exit 1
}

# A display of its own with a window manager, without which no window gets the keyboard.
export HOME=$work/home XDG_CONFIG_HOME=$work/home/config XDG_RUNTIME_DIR=$work/home
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
start() {
    cd "$work/station" || exit 1
    "$BUILD_DIR/tarqen" 2>"$work/program.log" &
    program=$!
    pids+=("$program")
}
ended() {
    for _ in $(seq 100); do kill -0 "$program" 2>/dev/null || break; sleep 0.1; done
    kill -0 "$program" 2>/dev/null && fail "the program did not end"
    wait "$program" || fail "the program ended with an error: $(cat "$work/program.log")"
}
new_log() {
    click_at -340 -150
    front "The extension .lgg is assumed"
    write "$1"
    [ -z "${2:-}" ] || picture "$2"
    press Return
    front "TARQEN - Select a contest"
}
# The main form dates a QSO by the last tick of its clock, the first of which comes a second after the start.
main_form() {
    front "TARQEN"
    sleep 1.5
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

# The first run: personal data, a backup folder, a log of the January contest.
start
sleep 1
picture frmStart
front "TARQEN - Setup"
press ctrl+a
write k3test
press Return
press ctrl+a
write "Jane Doe"
press Return Return Tab ctrl+a
write fn20xa
press Tab Tab Tab Tab Tab Tab Tab ctrl+a
write bu/
press Tab
picture frmSetup
click_at 455 330
front "TARQEN - UTC offset"
picture UTCfrm
press Tab Return
front "TARQEN - Setup"
new_log jan InputBox
press Down
picture frmContest
click_at -70 -30
front "TARQEN - Setup"
click_at -70 -30
main_form
log_qsos "w2abc fn12" "k1xyz fn31pr" "n3rg fn20" "wa2dfi em74" "ve3kh fn03" "k8gp fm08" "w1gkt fn42" "kb3x fn10" "w4wa em84" \
    "k2lim fn12"
lines_in jan.lgg 12
write w2abc
press space
front "Dupe QSO ?"
picture dupe
press Return
front "TARQEN"
write aa4zz
press space
write em73
press Return
picture frmLog
press Escape
press alt+f
sleep 0.3
picture menu
press e
ended

# The second run: a sprint scored by distance.
start
front "TARQEN - Setup"
new_log sprint
press Down Down Down Down Down Down Down Tab Down
picture frmContest2
click_at -70 -30
front "TARQEN - Setup"
click_at -70 -30
main_form
log_qsos "w2abc fn12aa" "k1xyz fn31pr" "n3rg fn20" "wa2dfi em74" "ve3kh fn03" "k8gp fm08" "w1gkt fn42" "kb3x fn10" "w4wa em84" \
    "k2lim fn12"
lines_in sprint.lgg 12
picture frmLog2
press alt+F4
front "Quit software..."
picture MessageBox
press Tab Return
ended

# The third run: the first log reopened by a double click, and gone on with.
start
front "TARQEN - Setup"
click_at -330 75 2
main_form
log_qsos "k3yy fn21"
lines_in jan.lgg 13
picture frmLog3
press alt+f
sleep 0.3
press e
ended

cd "$work/station" || exit 1
[ -z "${RENEW:-}" ] || mkdir -p "$expected"
for name in jan.lgg sprint.lgg; do
    compare "$name" "$name"
    cmp "$name" "bu/$name" || fail "the backup of $name differs"
done
cmp <(cat TARQEN32Control.Ini) "$expected/TARQEN32Control.Ini" || [ -n "${RENEW:-}" ] ||
    fail "the control file is not what it should be"
cmp Name.dat "$expected/Name.dat" || [ -n "${RENEW:-}" ] || fail "the personal data are not what they should be"
if [ -n "${RENEW:-}" ]; then cp TARQEN32Control.Ini Name.dat "$expected/"; fi
echo "flow: the logs, their backups, the control file and the personal data are as they should be"
