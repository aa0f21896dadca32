#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# The player of sessions must fail on everything it compares; a stand-in for the operator gives it the occasions.
set -uo pipefail
play=$SOURCE_DIR/tests/sessions/play
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
failures=0

# The stand-in plays the "session" as a shell script in the program's folder.
cat >"$work/operator" <<'OPERATOR'
#!/bin/sh
exec sh "$1"
OPERATOR
chmod +x "$work/operator"

# fresh SCRIPT: a session that runs SCRIPT, with what is expected of it still to be written.
fresh() {
    rm -rf "$work"/s.*
    printf '%s\n' "$1" >"$work/s.ops"
}
# expect pass|fail WHAT [OPTION]
expect() {
    local found=pass
    "$play" ${3:+"$3"} "$work/operator" "$work/s.ops" >"$work/log" 2>&1 || found=fail
    if [ "$found" != "$1" ]; then
        echo "FAILED: $2 (expected $1, found $found)"
        cat "$work/log"
        failures=$((failures + 1))
    fi
}

fresh 'echo hello'
expect fail "a missing transcript"
echo hello >"$work/s.out"
expect pass "the same transcript"
printf 'hello\r\n' >"$work/s.out"
expect fail "a transcript with another line end"
expect pass "an update" --update
expect pass "the transcript just written"

fresh 'echo hello; exit 3'
echo hello >"$work/s.out"
expect fail "an unexpected exit status"
echo 3 >"$work/s.status"
expect pass "the expected exit status"

fresh 'cat name.dat; ls'
mkdir "$work/s.files"
printf 'W1XYZ\r\n' >"$work/s.files/name.dat"
printf 'W1XYZ\r\nname.dat\n' >"$work/s.out"
expect pass "files that lie there beforehand, and no others"

fresh 'printf "a\r\n" >a.lgg; mkdir sub; echo b >sub/b.txt'
: >"$work/s.out"
mkdir -p "$work/s.after/sub"
printf 'a\r\n' >"$work/s.after/a.lgg"
echo b >"$work/s.after/sub/b.txt"
expect pass "the expected files"
printf 'a\n' >"$work/s.after/a.lgg"
expect fail "a file with another line end"
printf 'a\r\n' >"$work/s.after/a.lgg"
echo c >"$work/s.after/sub/b.txt"
expect fail "another content in a folder"
echo b >"$work/s.after/sub/b.txt"
: >"$work/s.after/c.lgg"
expect fail "a file that was not written"
rm "$work/s.after/c.lgg"
: >"$work/s.after/c.lgg.absent"
expect pass "a file that must not be there and is not"
: >"$work/s.after/a.lgg.absent"
expect fail "a file that must not be there and is"
expect fail "an update, which mends the transcript alone" --update

[ "$failures" -eq 0 ]
