#!/usr/bin/env bash
# Fails on a C++ file that clang-format would change, and names the place. Usage: CheckFormat.sh PROJECT
#
# clang-format mends what is found: clang-format -i FILE
set -u
cd "$1" || exit 2

# Only its own .clang-format counts, not one of a folder around the project.
[[ -f .clang-format ]] || { echo "no .clang-format in $1"; exit 2; }
mapfile -d '' files < <(find . \( -path ./build -o -path ./dist -o -path ./.git \) -prune -o \
    \( -name '*.h' -o -name '*.cpp' -o -name '*.inc' \) -print0)
((${#files[@]} > 0)) || { echo "no C++ file in $1"; exit 2; }

printf '%s\0' "${files[@]}" | xargs -0 -n 100 -P "$(nproc)" clang-format --dry-run -Werror ||
    exit 1
echo "${#files[@]} files are formatted."
