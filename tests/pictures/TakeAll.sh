#!/usr/bin/env bash
# Fails unless all pictures of the documentation can be taken, and no others.
# Usage: TakeAll.sh PROGRAM IMAGES
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
mkdir "$folder/pictures"
"$1" "$folder" "$folder/pictures"
diff <(ls "$2") <(ls "$folder/pictures")
