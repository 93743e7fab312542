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
run_script() { status_of "${emulator[@]}" cmd /c "Z:${tree//\//\\}\\$1" "${@:2}"; }
emulator=("$@")

[[ $(run_script register.cmd) == 0 ]] || fail "register.cmd: $(<"$folder/output")"
[[ $(create) == 9 ]] || fail "a script cannot create the component: $(<"$folder/output")"
[[ $(run_script unregister.cmd) == 0 ]] || fail "unregister.cmd: $(<"$folder/output")"
[[ $(create) != 9 ]] || fail "the component is there after unregister.cmd"

# A system that runs 32-bit programs too, as far as the scripts see: it has a second registration
# program, for their libraries, of which the tree has none.
both="$folder/both"
mkdir -p "$both/System32" "$both/SysWOW64"
cat >"$tree/both.cmd" <<SCRIPT
@echo off
set "both=Z:${both//\//\\}"
for %%d in (System32 SysWOW64) do copy "%SystemRoot%\\System32\\regsvr32.exe" "%both%\\%%d" >nul
set "SystemRoot=%both%"
call "%~dp0register.cmd" %*
SCRIPT
x86_fails() {
    [[ $1 == 1 ]] && grep -q 'regsvr32 has failed for the x86 library' "$folder/output"
}
x86_fails "$(run_script both.cmd)" || fail "both.cmd: $(<"$folder/output")"
[[ $(create) != 9 ]] || fail "register.cmd goes on after a library that it cannot register"
[[ $(run_script register.cmd) == 0 ]] || fail "register.cmd: $(<"$folder/output")"
x86_fails "$(run_script both.cmd /u)" || fail "both.cmd /u: $(<"$folder/output")"
[[ $(create) != 9 ]] || fail "a library that cannot be taken back keeps the other one registered"
mkdir "$tree/x86"
cp "$tree/x64/cmn_krx8maintenanceui.dll" "$tree/x86"
[[ $(run_script both.cmd) == 0 ]] || fail "both.cmd: $(<"$folder/output")"
[[ $(create) == 9 ]] || fail "register.cmd leaves out the 64-bit library"
[[ $(run_script both.cmd /u) == 0 ]] || fail "both.cmd /u: $(<"$folder/output")"
[[ $(create) != 9 ]] || fail "register.cmd /u leaves the 64-bit library"

rm "$tree/x64/cmn_krx8maintenanceui.dll"
[[ $(run_script register.cmd) == 1 ]] || fail "register.cmd says nothing of a missing library"
grep -q 'regsvr32 has failed for the x64 library' "$folder/output" || fail "$(<"$folder/output")"
echo "The installed tree works."
