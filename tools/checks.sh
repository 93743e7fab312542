# The checks of ./test --checks, which sources this after setup.sh.

check_packages=(clang clang-tidy cppcheck valgrind libbenchmark-dev python3)
product=(contract interception panel frontend component simulator workstation)

# Name of each check, and what is sure when it passes.
check_table=(
    "clang     clang++ warns of nothing in code, tests and benchmarks"
    "tidy      clang-tidy finds nothing outside of tests (.clang-tidy)"
    "cppcheck  cppcheck finds nothing outside of tests (tools/cppcheck.txt)"
    "tsan      the thread sanitizer sees no race between the worker and its callers"
    "valgrind  memcheck sees no wrong access and no leak in the tests of panel/ and headless/"
)

check_clang() {
    configure clang clang
    build clang
}

# Without the tests, which would take as long again, and run under the sanitizers anyway.
check_tidy() {
    check_clang
    configure windows windows
    build windows krx8_interfaces # the header made of the interfaces' IDL
    local failures=0
    tidy clang "${product[@]}" || failures=1
    tidy windows frontend/win32 component/win32 simulator/folder/win32 || failures=1
    return "$failures"
}

tidy() { # PRESET FOLDER...
    local folder=$root/build/$1
    shift
    cmake -DCMAKE_EXPORT_COMPILE_COMMANDS=ON "$folder" || return 1
    "$root/tools/tidy.py" "$folder" "$@"
}

# Without the tests, whose parameters cppcheck takes for mistakes in the language.
check_cppcheck() {
    mkdir -p "$root/build/cppcheck"
    cd "$root" && cppcheck --quiet --error-exitcode=1 --std=c++20 --language=c++ --library=qt -I . \
        --enable=warning,style,performance,portability,information \
        --suppressions-list=tools/cppcheck.txt -j "$(nproc)" --cppcheck-build-dir=build/cppcheck \
        --template='{file}:{line}: {message} [{id}]' "${product[@]}" fuzz bench
}

check_tsan() {
    configure tsan tsan
    build tsan worker_threads_tests
    ctest --test-dir "$root/build/tsan" --no-tests=error --output-on-failure -j "$(nproc)" \
        -R '^worker_threads_tests\.'
}

check_valgrind() {
    local program shards=8
    configure dev dev
    valgrind --version
    for program in tests/panel/panel_tests tests/frontend/headless/headless_conformance_tests; do
        build dev "${program##*/}"
        seq 0 $((shards - 1)) | xargs -P "$(nproc)" -I{} env GTEST_TOTAL_SHARDS=$shards \
            GTEST_SHARD_INDEX={} valgrind --error-exitcode=1 --leak-check=full \
            --suppressions="$root/tools/valgrind.txt" \
            "$root/build/dev/$program" --gtest_brief=1 || return 1
    done
}

# Runs every check to its end, whatever the others say; then what failed, and a table of all.
run_checks() {
    local row name result logs=$root/build/checks failures=0 table=()
    install_missing "${build_packages[@]}" "${test_packages[@]}" "${windows_packages[@]}" \
        "${check_packages[@]}"
    mkdir -p "$logs"
    for row in "${check_table[@]}"; do
        name=${row%% *}
        say "checking: ${row:10}"
        SECONDS=0
        result=passed
        # In a shell of its own, which a step that fails ends.
        if ! ("check_$name") >"$logs/$name.log" 2>&1; then
            result=FAILED
            failures=$((failures + 1))
            tail -n 200 "$logs/$name.log"
        fi
        table+=("$(printf '%s  %5d s  %s' "$result" "$SECONDS" "$row")")
    done
    printf '%s\n' "${table[@]}"
    ((failures == 0)) || fail 1 "$failures checks failed; their output is in $logs"
}
