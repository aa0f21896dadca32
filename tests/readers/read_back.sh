#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Lets readers that others have written read the exports of a log of 300 contacts. They come from the npm registry;
# where that can't be reached the test is skipped (exit status 77).
set -uo pipefail
skip() {
    echo "SKIPPED: $*"
    exit 77
}

for command in node npm; do
    command -v "$command" >/dev/null || skip "there is no $command, so no readers of others can be had"
done
[ "$(node -p 'Number(process.versions.node.split(".")[0]) >= 18')" = true ] || skip "node is older than 18"

# What npm calls a registry that isn't there, is silent, refuses, or is ill.
unreachable='ENOTFOUND|EAI_AGAIN|ECONNREFUSED|ECONNRESET|ETIMEDOUT|ENETUNREACH|EHOSTUNREACH|ERR_SOCKET_TIMEOUT|E40[13]|E50[0-9]'
work=$BUILD_DIR/readers
mkdir -p "$work" && cp "$SOURCE_DIR"/tests/readers/{package.json,package-lock.json,.npmrc,read_back.cjs} "$work/" || exit 1
cd "$work" || exit 1
if ! cmp -s package-lock.json node_modules/.installed; then
    timeout 120 npm ci --ignore-scripts --no-audit --no-fund --fetch-retries=1 >npm.out 2>&1
    status=$?
    if [ $status -ne 0 ]; then
        cat npm.out
        # 124: no answer at all.
        if [ "$status" -eq 124 ] ||
            grep -qE "code ($unreachable)$" npm.out; then
            skip "the npm registry can't be reached"
        fi
        echo "FAILED: npm ci ended with $status"
        exit 1
    fi
    cp package-lock.json node_modules/.installed
fi

rm -rf folder && mkdir folder || exit 1
node read_back.cjs "$BUILD_DIR/tarqen-operator" folder
