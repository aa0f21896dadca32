#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Plays sessions on the real port code with the tap in place of the devices: the bytes and lines that arrive, their
# order, and that every way out of the program while it sends leaves all lines off.
set -uo pipefail

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
failures=0
fail() {
    echo "lines: $1"
    failures=$((failures + 1))
}

settings=$SOURCE_DIR/tests/sessions/setup/first_log_makes_files.after/TARQEN32Control.Ini
old=$SOURCE_DIR/tests/sessions/setup/main_form_old.files

# station NAME SETTING=VALUE...: a folder with an old log, Morse switched on and these settings (by the start of their
# keys) besides.
station() {
    folder=$work/$1
    shift
    mkdir -p "$folder"
    cp "$old/OLD.lgg" "$old/Name.dat" "$settings" "$folder/"
    chmod -R u+w "$folder"
    local entry key value
    for entry in "CW selected=CW" "$@"; do
        key=${entry%%=*} value=${entry#*=}
        sed -i "/^\[$key/{n;s|.*|$value\r|}" "$folder/TARQEN32Control.Ini"
    done
}
# config SPEED PORT PTT MESSAGE: the .cfg file, with the message on F3.
config() {
    printf '"test.cfg"\r\n' >"$folder/TQN_DEFA.ULT"
    printf '%s\r\n"%s"\r\n""\r\n""\r\n1.1\r\n2000\r\n%s\r\n""\r\n%s\r\n0\r\n""\r\n"spare"\r\n' \
        "$1" "$4" "$2" "$3" >"$folder/test.cfg"
}
# The session is read from standard input. ASan wants to be first among the libraries; the tap knows nothing of it.
keyed() {
    (
        cd "$folder" || exit 1
        {
            printf '%s\n' start 'click frmSetup.logFile 0' 'click frmSetup.cmdDone'
            cat
        } >session.ops
        export TAP_FILE=$folder/tape
        echo "$BASHPID" >pid
        ASAN_OPTIONS=${ASAN_OPTIONS:-}:verify_asan_link_order=0 LD_PRELOAD=$BUILD_DIR/libtarqen_tap.so \
            exec "$BUILD_DIR/keyed_station" <session.ops >out 2>err
    )
}
tape() { "$BUILD_DIR/tap_read" "$folder/tape"; }
# expect WHAT: the tape must be what standard input says.
expect() {
    local wanted
    wanted=$(cat)
    [ "$(tape)" = "$wanted" ] || fail "$1: (- expected, + found)
$(diff <(echo "$wanted") <(tape) | head -n 40)"
}
# Of each device the last state before it was closed.
expect_all_off() {
    local device
    for device in $(tape | awk '{ print $1 }' | sort -u); do
        case $(tape | grep -E "^$device (modem|control) " | tail -n 1) in
            *" modem 0" | *" control 0") ;;
            *) fail "$1: $device was left with its lines on: $(tape | tail -n 3)" ;;
        esac
    done
    tape | grep -qE "(modem [123]|control [145])$" || fail "$1: nothing was keyed"
}

# A port of the machine, by its register. Its lines are off at once after the opening.
export TAP_DEVICES="/dev/ttyS0 /dev/ttyS2 /dev/ttyUSB1 /dev/ttyACM0 /dev/parport0 /dev/parport1"
station uart
config 60 1 1 E
keyed <<<"key F3"
expect "a port of the machine" <<'END'
/dev/ttyS0 open
/dev/ttyS0 modem 3
/dev/ttyS0 modem 0
/dev/ttyS0 exclusive
/dev/ttyS0 modem 0
/dev/ttyS0 modem 0
/dev/ttyS0 modem 1
/dev/ttyS0 modem 3
/dev/ttyS0 modem 1
/dev/ttyS0 modem 0
/dev/ttyS0 modem 0
/dev/ttyS0 modem 0
/dev/ttyS0 modem 0
/dev/ttyS0 close
END

station third
config 60 3 0 E
keyed <<<"key F3"
tape | grep -q "^/dev/ttyS2 modem 2" || fail "the third port of the machine was not keyed: $(tape)"

# A port on USB, by its lines.
station usb "Use other COM port=Yes" "Other Com address format=USB" "Other Com port id=6"
config 60 5 1 E
keyed <<<"key F3"
expect "a port on USB" <<'END'
/dev/ttyUSB1 open
/dev/ttyUSB1 modem 3
/dev/ttyUSB1 modem 0
/dev/ttyUSB1 exclusive
/dev/ttyUSB1 modem 0
/dev/ttyUSB1 modem 0
/dev/ttyUSB1 modem 2
/dev/ttyUSB1 modem 3
/dev/ttyUSB1 modem 2
/dev/ttyUSB1 modem 0
/dev/ttyUSB1 modem 0
/dev/ttyUSB1 modem 0
/dev/ttyUSB1 modem 0
/dev/ttyUSB1 modem 0
/dev/ttyUSB1 modem 0
/dev/ttyUSB1 modem 0
/dev/ttyUSB1 close
END

# A device that the operator typed, at an address of its own: its register is that of the address.
station device "Use other COM port=Yes" "Other Com address format=\\&H2F0" "Other Com port id=/dev/ttyACM0"
config 60 5 0 E
keyed <<<"key F3"
tape | grep -q "^/dev/ttyACM0 modem 2" || fail "a port at an address of its own was not keyed: $(tape)"

# The parallel port: bands on its data, Morse on its control register.
station lpt "CW on LPT=LPT CW" "Use Band encoder=1" "PTT on LPT=Yes"
config 60 1 1 E
keyed <<'END'
key F3
key PageUp
click frmLog.cmdExit
END
expect "a parallel port" <<'END'
/dev/parport0 open
/dev/parport0 claim
/dev/parport0 control 0
/dev/parport0 data 3
/dev/parport0 data 0
/dev/parport0 control 0
/dev/parport0 data 3
/dev/parport0 control 0
/dev/parport0 control 4
/dev/parport0 control 5
/dev/parport0 control 4
/dev/parport0 control 0
/dev/parport0 control 0
/dev/parport0 control 0
/dev/parport0 data 32
/dev/parport0 data 0
/dev/parport0 control 0
/dev/parport0 control 0
/dev/parport0 control 0
/dev/parport0 close
END

# A device that can't be used: the reason and the remedy are told, and the program goes on.
refused() {
    grep -qF "$2" "$folder/out" || fail "$1: \"$2\" was not told: $(cat "$folder/out")"
    grep -qF "That port is not available..." "$folder/out" || fail "$1: the message is another one"
    grep -q "focus frmLog.CallS" "$folder/out" || fail "$1: the program did not go on"
}
station missing
config 60 2 0 E
keyed <<<$'show focus'
refused "a missing port" "/dev/ttyS1: No such file or directory\\r\\nPlug the adapter in"
station denied
config 60 1 0 E
TAP_DENIED=/dev/ttyS0 keyed <<<$'show focus'
refused "a port of another group" "sudo usermod -aG dialout"
station busy
config 60 1 0 E
TAP_BUSY=/dev/ttyS0 keyed <<<$'show focus'
refused "a port in use" "Another program uses it"
station no_lpt "CW on LPT=LPT CW" "Band encoder LPT address=\\&H3BC"
config 60 1 0 E
keyed <<<$'show focus'
refused "a missing parallel port" "sudo modprobe ppdev"
station lp "Use Band encoder=1"
config 60 1 0 E
TAP_DENIED=/dev/parport0 keyed <<<$'show focus'
refused "a parallel port of another group" "sudo usermod -aG lp"

# With push-to-talk on, the second element of a message that is sent in the background has been keyed.
wait_for_keying() {
    for _ in $(seq 200); do
        sleep 0.05
        [ -e "$folder/tape" ] && [ "$(tape | grep -cE '(modem|control) [135]$')" -ge 3 ] && break
    done
}

is_held() { grep -qs '^State:.*stopped' "/proc/$1/status"; }

# A port that was given up for another choice is keyed again where none is made.
station unchosen
config 60 1 0 E
keyed <<'END'
click frmLog.mCWSet
click CWSetup.cmdCom
close ConfigScrn
close CWSetup
key F3
END
tape | sed '1,/close$/d' | grep -q "^/dev/ttyS0 modem 2" || fail "a port that was given up was not keyed again: $(tape)"
expect_all_off "a port that was given up"

# Every way out while a message goes out.
long="EEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEEE"
# Name, port, what a keyed line looks like, settings.
ways=("uart_way:1:modem 3:CW on LPT=no LPT CW"
    "usb_way:5:modem [13]:Other Com address format=USB:Use other COM port=Yes:Other Com port id=6"
    "lpt_way:1:control 5:CW on LPT=LPT CW:PTT on LPT=Yes")
for way in "${ways[@]}"; do
    IFS=: read -r name port keyed_as one two three <<<"$way"
    prepare() {
        station "$name.$1" "$one" ${two:+"$two"} ${three:+"$three"}
        config 60 "$port" 1 "$long"
    }
    prepare closed
    keyed <<'END'
pump 7 reply OK
pump 7 close frmLog
key F3
END
    grep -qx end "$folder/out" || fail "$name: closing the window did not end the program"
    expect_all_off "$name, window closed"

    prepare exit
    keyed <<'END'
pump 7 click frmLog.cmdExit
key F3
END
    grep -qx end "$folder/out" || fail "$name: the exit did not end the program"
    expect_all_off "$name, exit"

    prepare fault
    keyed <<'END'
pump 7 rightclick frmTX
key F3
END
    grep -q '^error "Division by zero"' "$folder/out" || fail "$name: there was no fault"
    expect_all_off "$name, run-time error"

    # A signal that a shell makes its background programs ignore is left out.
    for signal in TERM HUP SEGV ABRT USR1 ALRM XCPU XFSZ; do
        prepare "$signal"
        keyed <<<"key F3" 2>/dev/null &
        wait_for_keying
        kill -s "$signal" "$(<"$folder/pid")"
        wait $! 2>/dev/null
        expect_all_off "$name, SIG$signal"
        [ "$(tape | grep -cE '(modem|control) [35]$')" -lt 40 ] || fail "$name, SIG$signal: the message went to its end"
    done

    # Held by its terminal it leaves the channel free, and goes on when it may.
    prepare TSTP
    config 60 "$port" 1 "${long:0:20}"
    keyed <<<"key F3" 2>/dev/null &
    wait_for_keying
    pid=$(<"$folder/pid")
    kill -s TSTP "$pid"
    for _ in $(seq 200); do
        is_held "$pid" && break
        sleep 0.05
    done
    is_held "$pid" || fail "$name, SIGTSTP: the program was not held"
    tape | tail -n 1 | grep -qE "(modem|control) 0$" ||
        fail "$name, SIGTSTP: it was held with its lines on: $(tape | tail -n 3)"
    kill -s CONT "$pid"
    wait $! || fail "$name, SIGCONT: the program did not come to its end"
    expect_all_off "$name, SIGCONT"
    # On USB the key's line is DTR alone, and nothing raises the other one again within the message.
    elements=$(tape | sed -E '1,/(exclusive|claim)$/d' | grep -cE "$keyed_as\$")
    [ "$elements" -eq 20 ] || fail "$name, SIGCONT: $elements of 20 elements were sent"
done

[ $failures -eq 0 ] && echo "lines: every line does what it should"
exit $((failures > 0))
