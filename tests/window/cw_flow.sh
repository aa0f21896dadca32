#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Keys Morse from a real window with real keys, onto a tapped port: a message, its speed and its cancel, the keyboard,
# the setup forms; and every way out while a message goes out. Leaves a picture of every form.
source "$SOURCE_DIR/tests/window/desk.bash"

station() {
    rm -rf "$work/station"
    mkdir "$work/station"
    cp "$SOURCE_DIR"/tests/sessions/setup/main_form_old.files/* \
        "$SOURCE_DIR/tests/sessions/setup/first_log_makes_files.after/TARQEN32Control.Ini" "$work/station/"
    chmod -R u+w "$work/station"
    sed -i '/^\[CW selected/{n;s|.*|CW\r|}' "$work/station/TARQEN32Control.Ini"
    printf '"test.cfg"\r\n' >"$work/station/TQN_DEFA.ULT"
    printf '%s\r\n' 25 '"TEST DE W1ABC"' '"TU 73"' '"QSL?"' 1.1 2000 1 '"<CALL> 5NN"' 1 0 '"QRZ? DE W1ABC \AR"' '"spare"' \
        >"$work/station/test.cfg"
}
tape() { "$BUILD_DIR/tap_read" "$work/station/tape"; }
run() {
    station
    start TAP_FILE="$work/station/tape" TAP_DEVICES="/dev/ttyS0 /dev/parport0" \
        LD_PRELOAD="$BUILD_DIR/libtarqen_tap.so" ASAN_OPTIONS="${ASAN_OPTIONS:-}:verify_asan_link_order=0"
    front "TARQEN - Setup"
    click_at -330 75 2
    front "TARQEN"
}
edges() { tape | grep -cx '/dev/ttyS0 modem 3'; }
keyed_for() {
    for _ in $(seq 100); do [ "$(edges)" -gt "$1" ] && return || sleep 0.1; done
    fail "nothing was keyed: $(tape | tail -n 5)"
}
# The last state before the device was closed; a process that a signal ends closes nothing itself.
all_off() {
    [ "$(tape | grep ' modem ' | tail -n 1)" = "/dev/ttyS0 modem 0" ] ||
        fail "$1 left the lines on: $(tape | tail -n 5)"
}

# A message, faster by two steps of the arrow key, and cancelled.
run
press F2
front "TARQEN   CW"
keyed_for 6
press Up Up
picture frmTX
press Escape
front "TARQEN"
all_off "a cancel"
before=$(edges)
sleep 0.5
[ "$(edges)" -eq "$before" ] || fail "the message went on after its cancel"

# The keyboard: typed ahead, sent, and closed by Enter.
press F8
front "TARQEN   CW"
write "tu 73 es"
picture frmCWTX
press Return
front "TARQEN"
all_off "the keyboard"
[ "$(edges)" -eq $((before + 18)) ] || fail "the keyboard sent $(($(edges) - before)) elements"

# The setup forms.
press alt+c
front "TARQEN - CW setup"
picture CWSetup
press space
front "TARQEN"
write 30
picture InputBoxSpeed
press Return
front "TARQEN - CW setup"
head -n 1 "$work/station/test.cfg" | grep -qx $'30\r' || fail "the new speed is not saved"
press Tab Tab Tab Tab Tab Tab Tab Tab Tab Tab space
front "TARQEN - CW port"
press Up
picture ConfigScrn
press Escape alt+F4
front "TARQEN - CW setup"
press alt+F4
front "TARQEN"
press alt+b
front "TARQEN - Band decoder"
press space
picture BandSw
tape | grep -qx '/dev/parport0 data 32' || fail "the decoder was not tried out: $(tape | tail -n 3)"
press alt+F4
front "TARQEN"
press alt+f
sleep 0.3
press e
ended
all_off "the exit"

# Every way out while a message goes out.
run
press F2
front "TARQEN   CW"
keyed_for 3
xdotool search --onlyvisible --name '^TARQEN$' windowactivate --sync
press alt+F4
front "Quit software..."
all_off "the question of the main window"
press Tab Return
ended
all_off "the main window closed"

run
press F2
front "TARQEN   CW"
keyed_for 3
press alt+F4
front "TARQEN"
all_off "the form closed"
press F2
front "TARQEN   CW"
keyed_for 20
kill "$program"
wait "$program" 2>/dev/null
[ $? -eq 143 ] || fail "SIGTERM did not end the program as it should"
all_off "SIGTERM"

echo "cw_flow: the line did what the keys said, and was left low every time"
