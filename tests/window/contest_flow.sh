#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Works on in a contest in a real window with real keys: a new grid, a dupe declined and one logged, a rover that has
# moved, the score summary, the list of shortcuts, searches, a change of band. Compares the log byte for byte, but for
# date and time, and leaves a picture of each.
source "$SOURCE_DIR/tests/window/desk.bash"

printf '"K3TEST"\r\n"Jane Doe"\r\n""\r\n""\r\n"FN20XA"\r\n' >"$work/station/Name.dat"
{
    printf '2026 ARRL Jan. VHF Sweepstakes\r\nv2.0        K3TEST          1\r\n'
    printf '144   PH  01/17/26  1900  W2ABC        FN20xa FN12   1-144    1 \r\n'
    printf '50    PH  01/17/26  1901  W2ABC        FN20xa FN12   1-50     1 \r\n'
    printf '50    PH  01/17/26  1902  W1XYZ/R      FN20xa FN31   2-50     1 \r\n'
    printf '50    PH  01/17/26  1903  K8GPX        FN20xa FM08   3-50     1 \r\n'
} >"$work/station/jan.lgg"

# Sends a key to the prompt in front and waits until the main form is back.
answer() {
    press "$@"
    front "TARQEN"
}

start
front "TARQEN - Setup"
click_at -330 75 2
front "TARQEN"

log_qsos "w4wa em84"
lines_in jan.lgg 7
picture new_grid

write w2abc
press space
front "Dupe QSO ?"
picture dupe_prompt
answer space
lines_in jan.lgg 7
write w2abc
press space
front "Dupe QSO ?"
answer Return
lines_in jan.lgg 7
write w2abc
press space
front "Dupe QSO ?"
answer Tab Return
press Return Return
lines_in jan.lgg 8

write w1xyz/r
press space
front "Rover QSO"
picture rover_prompt
answer Tab space
press ctrl+a
write fn41
press Return Return
lines_in jan.lgg 9

write ss
press Return
picture summary
press Escape
write ks
press Return
picture shortcuts
press Escape
write '!k8g'
press Return
picture search
press Escape
write sc
press Return
front "Call Sign Search"
write w2a
press Return
front "TARQEN"
picture search_box
press Escape

press Prior
log_qsos "k3yy fn21"
lines_in jan.lgg 10
picture page_up
write 50
press Return
log_qsos "n3rg fn20"
lines_in jan.lgg 11
press alt+f
sleep 0.3
press e
ended

cd "$work/station" || exit 1
compare jan.lgg contest.lgg
echo "contest_flow: the log is as it should be"
