#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs the program into an empty folder and looks at what came: each file in its place, the desktop entry, the entry
# for software centres and the manual page without a complaint from their checkers.
set -uo pipefail
prefix=$(mktemp -d) || exit 1
trap 'rm -rf "$prefix"' EXIT
failures=0
fail() {
    echo "FAILED: $*"
    failures=$((failures + 1))
}

cmake --install "$BUILD_DIR" --prefix "$prefix" >"$prefix.log" 2>&1 || {
    cat "$prefix.log"
    rm -f "$prefix.log"
    exit 1
}
rm -f "$prefix.log"

id=io.github.tarqen.Tarqen
desktop=$prefix/share/applications/$id.desktop
metainfo=$prefix/share/metainfo/$id.metainfo.xml
icon=$prefix/share/icons/hicolor/scalable/apps/$id.svg
page=$prefix/share/man/man1/tarqen.1
for file in "$desktop" "$metainfo" "$icon" "$page" "$prefix"/share/doc/tarqen/{README.md,CHANGELOG.md,LICENSE}; do
    [ -s "$file" ] || fail "${file#"$prefix/"} is not installed"
done
[ -x "$prefix/bin/tarqen" ] || fail "bin/tarqen is not installed"
# The scripted operator is a tool for tests.
[ ! -e "$prefix/bin/tarqen-operator" ] || fail "bin/tarqen-operator is installed"
# Every sample file comes along.
if [ -d "$SOURCE_DIR/data" ]; then
    diff -r "$SOURCE_DIR/data" "$prefix/share/tarqen" || fail "share/tarqen is not what data/ holds"
fi

# complains COMMAND...: fails where a checker exits with a fault or says anything at all.
complains() {
    local said
    said=$("$@" 2>&1) || fail "$1: $said"
    [ -z "$said" ] || fail "$1: $said"
}
complains desktop-file-validate "$desktop"
appstreamcli validate --no-net "$metainfo" || fail "appstreamcli"
complains groff -mandoc -Tutf8 -ww -z "$page"
said=$(MANWIDTH=80 man --warnings -l "$page" 2>&1 >/dev/null)
[ -z "$said" ] || fail "man: $said"

# The names that lead from one file to the next.
grep -qx "Icon=$id" "$desktop" || fail "the desktop entry names another icon"
grep -qx 'Exec=tarqen' "$desktop" || fail "the desktop entry starts another program"
grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$metainfo" || fail "the metainfo starts another entry"
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$BUILD_DIR/CMakeCache.txt")
[ -n "$version" ] || fail "the build has no version"
grep -q "<release version=\"$version\"" "$metainfo" || fail "the metainfo knows no release $version"
grep -q "^\.TH TARQEN 1 .*\"TARQEN $version\"" "$page" || fail "the manual page is not that of version $version"

[ "$failures" -eq 0 ]
