#!/usr/bin/env bash
# Fails when a built library of the component is not what a system and its hosts expect to load, and
# says why. Usage: CheckLibrary.sh OBJDUMP STRIP FORMAT LIBRARY [LARGEST-SIZE]
#
# FORMAT is objdump's name of it, such as pei-x86-64. The size, in bytes, is that of the library
# without its symbols, as it is handed on.
set -u
objdump=$1
strip=$2
format=$3
library=$4
largest=${5:-}

# What every Windows has, in small letters.
system_libraries=" advapi32.dll comctl32.dll comdlg32.dll gdi32.dll kernel32.dll msvcrt.dll ole32.dll
 oleaut32.dll shell32.dll user32.dll "
system_libraries=${system_libraries//$'\n'/ }

faults=0
complain() {
    echo "${library##*/}: $*"
    faults=$((faults + 1))
}

# expect WHAT EXPECTED ACTUAL
expect() { [[ $2 == "$3" ]] || complain "$1: expected"$'\n'"$2"$'\n'"but found"$'\n'"$3"; }

headers=$("$objdump" -p "$library") || exit 2

expect "format" "$format" "$(sed -n 's/.*file format //p' <<<"$headers")"
expect "kind of file" "DLL" "$(sed -n 's/^\t\(DLL\)$/\1/p' <<<"$headers")"

exports=$(sed -n '/^\[Ordinal\/Name Pointer\] Table/,/^$/s/^\t\[.*\] //p' <<<"$headers" | sort)
expect "exports" \
    $'DllCanUnloadNow\nDllGetClassObject\nDllRegisterServer\nDllUnregisterServer' "$exports"
# Also those without a name.
expect "number of exports" 4 "$(grep -c 'Export RVA$' <<<"$headers")"

imports=$(sed -n 's/^\tDLL Name: //p' <<<"$headers" | tr '[:upper:]' '[:lower:]')
[[ -n $imports ]] || complain "it imports nothing"
for import in $imports; do
    [[ $system_libraries == *" $import "* ]] || complain "it needs $import"
done

# Types at the first level of their tree, identifiers at the second; what has no name has a number.
resources=''
while read -r level entry; do
    [[ $level == 1 ]] && type=$entry || resources+="$type $entry"$'\n'
done < <(sed -n '/^The .rsrc Resource Directory section/,/^$/{
    s/^[0-9a-f]*   Entry: ID: 0x0*\([0-9a-f]*\),.*/1 \1/p
    s/^[0-9a-f]*   Entry: name: .*\]: \([^,]*\),.*/1 \1/p
    s/^[0-9a-f]*     Entry: ID: 0x0*\([0-9a-f]*\),.*/2 \1/p
    s/^[0-9a-f]*     Entry: name: .*\]: \([^,]*\),.*/2 \1/p
}' <<<"$headers")
# In hexadecimal: version 1, bitmap 101, manifest 2, registry script 102, type library 1.
expect "resources" $'10 1\n18 2\n2 65\nREGISTRY 66\nTYPELIB 1' "$(sort <<<"${resources%$'\n'}")"

stripped=$(mktemp) || exit 2
trap 'rm -f "$stripped"' EXIT
"$strip" -o "$stripped" "$library" || exit 2
size=$(stat -c %s "$stripped")
[[ -z $largest ]] || ((size <= largest)) || complain "$size bytes are more than $largest"

((faults == 0)) && echo "${library##*/} is a sound library of $size bytes."
exit $((faults > 0))
