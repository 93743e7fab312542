#!/usr/bin/env bash
# Takes all pictures of the control for Windows, on a display of its own, into the folder IMAGES.
# With --check it leaves that as it is, and fails unless all pictures in it can be taken, and no
# others.
# Usage: TakeAll.sh [--check] BUILD IMAGES
set -eu
here=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
root=$(realpath "$here/../../..")
check=''
[[ $1 != --check ]] || { check=1; shift; }
build=$(realpath "$1")
images=$(realpath "$2")
prefix=$build/wine-display
folder=$(mktemp -d)

finish() {
    "$root/tools/wine.sh" "$prefix" --stop
    kill "$server" 2>/dev/null
    rm -rf "$folder"
}

# The server writes the number that it has found free once it takes clients.
mkfifo "$folder/display"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset 3>"$folder/display" \
    >/dev/null 2>&1 &
server=$!
trap 'finish || true' EXIT
read -r display <"$folder/display"
export DISPLAY=:$display

# C:\service is seen in the pictures.
mkdir "$folder/images"
"$root/tools/wine.sh" "$prefix" --display "$build/tests/pictures/win32/krx8-windows-pictures.exe" \
    "Z:$build/component/win32/server/cmn_krx8maintenanceui.dll" "Z:$root/simulator" \
    'C:\service' "Z:$folder/images"
if [[ -n $check ]]; then
    diff <(ls "$images") <(ls "$folder/images")
else
    cp "$folder"/images/*.png "$images"
fi
