#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Plays the program in a real window with real keys: setup, two new logs of ten QSOs each, a log reopened and gone on
# with. Compares the files that it wrote byte for byte, but for date and time, and leaves a picture of every form.
source "$SOURCE_DIR/tests/window/desk.bash"

new_log() {
    click_at -340 -150
    front "The extension .lgg is assumed"
    write "$1"
    [ -z "${2:-}" ] || picture "$2"
    press Return
    front "TARQEN - Select a contest"
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
front "TARQEN"
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
front "TARQEN"
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
front "TARQEN"
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
