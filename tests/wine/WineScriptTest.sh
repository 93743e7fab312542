#!/usr/bin/env bash
# Shows that tools/wine.sh passes a sound program and takes each kind of failure for one.
# Usage: WineScriptTest.sh WINE.SH PREFIX MISBEHAVE.EXE
set -u
script=$1
prefix=$2
program=$3
failures=0

expect() { # STATUS ARGUMENT...
    local expected=$1 status
    shift
    "$script" "$prefix" "$@" 2>/dev/null
    status=$?
    if [[ $expected == failure ]]; then
        ((status != 0)) && return
    elif [[ $status == "$expected" ]]; then
        return
    fi
    echo "expected $expected, got $status: $*"
    failures=$((failures + 1))
}

# Left from before, it must not count.
echo old >misbehave.result

expect 0 "$program"
expect 1 "$program" fail
expect failure "$program" crash
expect failure "$program" fault
KRX8_WINE_SECONDS=3 expect 124 "$program" hang
expect 0 --result misbehave.result "$program" write misbehave.result
expect 1 --result misbehave.result "$program"
expect failure --result misbehave.result "$program" fault
expect failure no-such-program.exe

((failures == 0)) && echo "Each failure is taken for one."
exit $((failures > 0))
