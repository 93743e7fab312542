#!/usr/bin/env bash
# Shows that an installed tree works where it lies: its script registers the component, script hosts
# create it, and the other script takes that back. Usage: WindowsTreeTest.sh BUILD EMULATOR...
set -eu
build=$1
shift
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT

fail() { echo "$*"; exit 1; }

# A folder with a blank in its name, as those of programs have.
tree="$folder/KRX panel"
cmake --install "$build" --prefix "$tree" >"$folder/log"
for file in README.md krx8maintenance.idl register.cmd unregister.cmd \
    x64/cmn_krx8maintenanceui.dll x64/cmn_krx8maintenanceui.hlp; do
    [[ -s $tree/$file ]] || fail "$file is not installed"
done
[[ $(find "$tree" -type f | wc -l) == 6 ]] || fail "more is installed: $(find "$tree" -type f)"
for file in README.md register.cmd unregister.cmd; do
    grep -qv $'\r$' "$tree/$file" && fail "$file has lines that do not end as on Windows"
done

cat >"$folder/create.js" <<'SCRIPT'
var panel = new ActiveXObject("QRZ.KRX8Maintenance");
WScript.Quit(panel.DeviceType == 3 ? 9 : 8);
SCRIPT

status_of() {
    local status=0
    "$@" >"$folder/output" 2>&1 || status=$?
    echo "$status"
}
create() { status_of "${emulator[@]}" cscript //nologo "Z:${folder//\//\\}\\create.js"; }
run_script() { status_of "${emulator[@]}" cmd /c "Z:${tree//\//\\}\\$1"; }
emulator=("$@")

[[ $(run_script register.cmd) == 0 ]] || fail "register.cmd: $(<"$folder/output")"
[[ $(create) == 9 ]] || fail "a script cannot create the component: $(<"$folder/output")"
[[ $(run_script unregister.cmd) == 0 ]] || fail "unregister.cmd: $(<"$folder/output")"
[[ $(create) != 9 ]] || fail "the component is there after unregister.cmd"

rm "$tree/x64/cmn_krx8maintenanceui.dll"
[[ $(run_script register.cmd) == 1 ]] || fail "register.cmd says nothing of a missing library"
grep -q 'regsvr32 has failed for the x64 library' "$folder/output" || fail "$(<"$folder/output")"
echo "The installed tree works."
