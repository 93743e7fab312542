#!/usr/bin/env bash
# Shows that an installed tree works where it lies, and again where it has been moved to: the
# component registers, and the workstation finds it and its help. Usage: InstalledTreeTest.sh BUILD
set -eu
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
unset DISPLAY WAYLAND_DISPLAY LD_LIBRARY_PATH
export KRX8_REGISTRY=$folder/registry.json

cmake --install "$1" --prefix "$folder/first" >"$folder/log"
mv "$folder/first" "$folder/moved"
cd "$folder/moved"

fail() { echo "$*"; exit 1; }

for file in README.md include/contract/panel/Panel.h lib/krx8/cmn_krx8maintenanceui.hlp \
    share/krx8/package/Flash/krxxupd.ini; do
    [[ -f $file ]] || fail "$file is not installed"
done

bin/krx8-workstation --text >"$folder/output" 2>&1 && fail "a component that nobody registered"
grep -q "is not registered in $KRX8_REGISTRY" "$folder/output" || fail "$(<"$folder/output")"

bin/krx8-register lib/krx8/cmn_krx8maintenanceui.so
bin/krx8-workstation --device share/krx8/devices/krx-20 --text >"$folder/output"
grep -q '^Application SW    2.5.13$' "$folder/output" || fail "$(<"$folder/output")"

# Nothing is taken from where it was built.
for file in bin/* lib/krx8/*.so; do
    ldd "$file" | grep -F "$1" && fail "$file looks for a library in the build folder"
done
echo "The installed tree works."
