#!/usr/bin/env bash
# Shows that CheckLibrary.sh passes a sound library and catches each kind of fault.
# Usage: CheckLibraryTest.sh OBJDUMP STRIP FORMAT LIBRARY PROGRAM
set -u
check=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/CheckLibrary.sh
objdump=$1
strip=$2
format=$3
library=$4
program=$5
copies=$(mktemp -d) || exit 2
trap 'rm -rf "$copies"' EXIT
failures=0

expect() { # EXPECTED-STATUS EXPECTED-TEXT FORMAT LIBRARY [LARGEST-SIZE]
    local expected=$1 text=$2 output status
    shift 2
    output=$(bash "$check" "$objdump" "$strip" "$@")
    status=$?
    [[ $status == "$expected" && $output == *"$text"* ]] && return
    echo "expected status $expected and '$text', got $status: $output"
    failures=$((failures + 1))
}

# spoiled SCRIPT: a copy of the library that sed has changed without moving anything.
spoiled() {
    LC_ALL=C sed "$1" "$library" >"$copies/copy.dll"
    cmp -s "$library" "$copies/copy.dll" && echo "nothing to spoil for $1" >&2
    echo "$copies/copy.dll"
}

expect 0 "is a sound library" "$format" "$library" 50000000
expect 1 "more than 1000" "$format" "$library" 1000
expect 1 "format: expected" pei-other "$library"
expect 1 "kind of file: expected" "$format" "$program"
expect 1 "exports: expected" "$format" "$(spoiled 's/DllGetClassObject/DllGetClassObjecX/g')"
expect 1 "it needs oleautxx.dll" "$format" "$(spoiled 's/OLEAUT32\.dll/OLEAUTXX.dll/g')"
expect 1 "resources: expected" "$format" "$(spoiled 's/T\x00Y\x00P\x00E\x00L\x00I\x00B/T\x00Y\x00P\x00E\x00L\x00I\x00A/g')"
expect 2 "" "$format" "$copies/no-such.dll"

((failures == 0)) && echo "A sound library passes, each fault is caught."
exit $((failures > 0))
