#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Plays ./setup against a made-up package manager: it must leave a complete machine alone, install exactly what is
# missing where it may, and say what to do where it may not.
set -uo pipefail
work=$(mktemp -d) || exit 1
trap 'rm -rf "$work"' EXIT
failures=0
fail() {
    echo "FAILED: $*"
    cat "$work/said"
    failures=$((failures + 1))
}

# The machine has these commands and no others, so no sudo unless a case adds it.
mkdir "$work/bin"
ln -s "$(command -v env)" "$(command -v bash)" "$work/bin/"
stand_in() {
    printf '#!%s\n%s\n' "$(command -v bash)" "$2" >"$work/bin/$1"
    chmod +x "$work/bin/$1"
}
# $work/absent names the packages that are not installed; $work/user is the user's number.
stand_in dpkg-query "while read -r name; do [ \"\${@: -1}\" != \"\$name\" ] || exit 1; done <'$work/absent'; echo installed"
stand_in id "read -r user <'$work/user'; echo \"\$user\""
stand_in apt-get "echo \"apt-get \$*\" >>'$work/done'"

# run_setup USER PACKAGE...: runs ./setup as USER on a machine without these packages.
run_setup() {
    echo "$1" >"$work/user"
    shift
    : >"$work/absent"
    [ $# -eq 0 ] || printf '%s\n' "$@" >"$work/absent"
    : >"$work/done"
    PATH=$work/bin "$work/bin/bash" "$SOURCE_DIR/setup" >"$work/said" 2>&1
}

run_setup 1000 || fail "a complete machine is refused"
[ ! -s "$work/done" ] || fail "a complete machine is not left alone"

run_setup 0 openbox xvfb || fail "root cannot install"
grep -q ' update$' "$work/done" || fail "the lists of packages are not brought up to date"
grep -q ' install -y --no-install-recommends xvfb openbox$' "$work/done" || fail "not exactly what is missing is installed"

if run_setup 1000 openbox; then fail "a missing package passes for installed"; fi
[ ! -s "$work/done" ] || fail "an ordinary user installs"
grep -q 'apt-get install --no-install-recommends openbox' "$work/said" || fail "nobody is told what to do"

# shellcheck disable=SC2016 # The stand-in expands it.
stand_in sudo 'echo sudo >>'"'$work/done'"'; exec "$@"'
run_setup 1000 openbox || fail "sudo is not used"
grep -q '^sudo$' "$work/done" || fail "the package manager runs without sudo"
grep -q ' install -y --no-install-recommends openbox$' "$work/done" || fail "sudo installs something else"

[ "$failures" -eq 0 ]
