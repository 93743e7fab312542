#!/usr/bin/env bash
# Shows that CheckFormat.sh passes formatted files and catches each kind of file that is not.
set -u
folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
tree=$(mktemp -d) || exit 2
trap 'rm -rf "$tree"' EXIT

failures=0
expect() { # EXPECTED-STATUS FILE TEXT
    rm -rf "${tree:?}"/*
    mkdir -p "$tree/panel/control" "$tree/build" "$tree/dist"
    cp "$folder/../../.clang-format" "$tree"
    echo 'int f();' >"$tree/panel/Sound.h"
    printf '%s\n' "$3" >"$tree/$2"
    local output status
    output=$("$folder/CheckFormat.sh" "$tree" 2>&1)
    status=$?
    if [[ $status != "$1" ]] || { [[ $1 == 1 ]] && [[ $output != *"$2:1:"* ]]; }; then
        echo "$2 with '$3': expected status $1, got $status: $output"
        failures=$((failures + 1))
    fi
}

expect 0 panel/Probe.h 'int* g(int& number);'
expect 0 build/Generated.h 'int *g(int & number);'
expect 0 dist/Packed.h 'int *g(int & number);'
expect 0 panel/Notes.txt 'int *g(int & number);'

expect 1 panel/Probe.h 'int *g(int & number);'
expect 1 panel/control/Probe.cpp 'void f( ) {}'
expect 1 panel/Probe.inc 'void  f();'
expect 1 Probe.cpp "int sum = 1; $(printf '// %0100d' 0)"

rm "$tree/.clang-format"
"$folder/CheckFormat.sh" "$tree" >/dev/null 2>&1 && {
    echo "a project without .clang-format: expected a failure"
    failures=$((failures + 1))
}

((failures == 0)) && echo "Formatted files pass, others are caught."
exit $((failures > 0))
