#!/usr/bin/env bash
# Fails unless all pictures of the documentation can be taken, and no others.
# Usage: TakeAll.sh PROGRAM IMAGES
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/pictures"
"$1" "$folder" "$folder/pictures"
names() { (cd "$1" && ls ./*.png); } # those in folders below are of other systems
diff <(names "$2") <(names "$folder/pictures")
