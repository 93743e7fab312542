#!/usr/bin/env bash
# Shows that CheckIncludes.sh passes a sound tree and catches each kind of wrong include.
set -u
check=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/CheckIncludes.sh
tree=$(mktemp -d) || exit 2
trap 'rm -rf "$tree"' EXIT

failures=0
expect() { # EXPECTED-STATUS FOLDER INCLUDE
    mkdir -p "$tree"/{contract,interception,simulator/folder/{posix,win32},panel/control,workstation} \
        "$tree"/frontend/{common,headless,help,registry,qt,win32} \
        "$tree"/component/{common,linux,loader,register,win32/{com,control,server}}
    printf '#pragma once\n\n#include %s\n' "$3" >"$tree/$2/Probe.h"
    local output status
    output=$("$check" "$tree")
    status=$?
    rm -f "$tree/$2/Probe.h"
    if [[ $status != "$1" ]] || { [[ $1 == 1 ]] && [[ $output != *"$2/Probe.h:3: "* ]]; }; then
        echo "$2 including $3: expected status $1, got $status: $output"
        failures=$((failures + 1))
    fi
}

expect 0 contract '<string>'
expect 0 contract '"contract/Status.h"'
expect 0 simulator '"interception/Interceptor.h"'
expect 0 simulator '<nlohmann/json.hpp>'
expect 0 simulator/folder '"simulator/Device.h"'
expect 0 simulator/folder/posix '<unistd.h>'
expect 0 simulator/folder/posix '"simulator/folder/MessageText.h"'
expect 0 simulator/folder/win32 '<windows.h>'
expect 0 panel/control '"contract/panel/Panel.h"'
expect 0 frontend/headless '"frontend/common/PackedRows.h"'
expect 0 frontend/qt '"frontend/common/PackedRows.h"'
expect 0 frontend/qt '<QWidget>'
expect 0 frontend/qt '"frontend/registry/FileRegistry.h"'
expect 0 frontend/qt '"frontend/help/HelpFile.h"'
expect 0 frontend/registry '<nlohmann/json.hpp>'
expect 0 frontend/registry '"panel/control/Registry.h"'
expect 0 frontend/win32 '<windows.h>'
expect 0 frontend/win32 '"frontend/help/HelpFile.h"'
expect 0 workstation '"frontend/qt/CommandEvent.h"'
expect 0 workstation '"component/loader/ComponentLibrary.h"'
expect 0 component/linux '"frontend/qt/QtToolkit.h"'
expect 0 component/win32/com '"contract/host/Context.h"'
expect 0 component/win32/com '<krx8maintenance.h>'
expect 0 component/win32/control '"component/win32/com/Bridge.h"'
expect 0 component/win32/server '"component/win32/control/ClassFactory.h"'

expect 1 component/common '"contract/Status.h"'
expect 1 component/win32/com '"panel/control/View.h"'
expect 1 component/win32/com '"component/win32/control/Control.h"'
expect 1 component/win32/control '"frontend/qt/QtToolkit.h"'
expect 1 contract '"panel/control/View.h"'
expect 1 contract '<windows.h>'
expect 1 contract '<QString>'
expect 1 interception '"simulator/Host.h"'
expect 1 simulator '"panel/control/View.h"'
expect 1 simulator '<QString>'
expect 1 simulator '<unistd.h>'
expect 1 simulator/folder '<windows.h>'
expect 1 simulator/folder/posix '<windows.h>'
expect 1 simulator/folder/win32 '<unistd.h>'
expect 1 simulator/folder/win32 '"contract/Status.h"'
expect 1 panel/control '"interception/Interceptor.h"'
expect 1 panel/control '"simulator/Host.h"'
expect 1 panel/control '"frontend/qt/QtView.h"'
expect 1 panel/control '<unistd.h>'
expect 1 panel/control '<QWidget>'
expect 1 panel/control '"View.h"'
expect 1 frontend/common '"frontend/headless/HeadlessList.h"'
expect 1 frontend/common '<QString>'
expect 1 frontend/headless '"frontend/qt/QtView.h"'
expect 1 frontend/headless '<QWidget>'
expect 1 frontend/registry '"frontend/qt/QtView.h"'
expect 1 frontend/registry '<QString>'
expect 1 frontend/help '<QString>'
expect 1 frontend/help '"panel/control/View.h"'
expect 1 frontend/headless '"frontend/registry/FileRegistry.h"'
expect 1 frontend/qt '"frontend/headless/HeadlessView.h"'
expect 1 frontend/qt '"simulator/Host.h"'
expect 1 frontend/qt '"frontend/win32/Win32View.h"'
expect 1 frontend/win32 '"frontend/qt/QtView.h"'
expect 1 frontend/win32 '"frontend/headless/HeadlessView.h"'
expect 1 workstation '"tests/frontend/conformance/FrontEndDriver.h"'
expect 1 workstation '"component/linux/PanelFactory.h"'
expect 1 component/loader '"frontend/qt/QtToolkit.h"'
expect 1 component/linux '"workstation/PanelFactory.h"'
expect 1 panel/control 'HEADER_BY_MACRO'

((failures == 0)) && echo "Sound includes pass, wrong ones are caught."
exit $((failures > 0))
