#!/usr/bin/env bash
# Fails on an #include that runs the wrong way, and names it. Usage: CheckIncludes.sh PROJECT
#
# The linker keeps the floors only where something is linked; a header that reaches up or sideways
# and uses inline code or types alone would slip past it, so the includes themselves are read.
set -u
cd "$1" || exit 2

# What each folder may reach by "...": itself and what stands below it. A folder inside another one
# of these has rules of its own.
declare -A reaches=(
    [contract]="contract"
    [interception]="contract interception"
    [simulator]="contract interception simulator"
    [simulator/folder/posix]="simulator"
    [simulator/folder/win32]="simulator"
    [panel]="contract panel"
    [frontend/common]="frontend/common"
    [frontend/headless]="contract panel frontend/common frontend/headless"
    [frontend/help]="frontend/help"
    [frontend/registry]="contract panel frontend/registry"
    [frontend/qt]="contract panel frontend/common frontend/help frontend/registry frontend/qt"
    [frontend/win32]="contract panel frontend/common frontend/help frontend/win32"
    [component/common]="component/common"
    [component/linux]="contract panel frontend/registry frontend/qt component/common component/linux"
    [component/win32/com]="contract frontend/win32 component/common component/win32/com"
    [component/win32/control]="contract panel frontend/win32 component/common component/win32/com component/win32/control"
    [component/win32/server]="contract panel frontend/win32 component/common component/win32"
    [component/loader]="contract frontend/registry component/loader"
    [component/register]="contract frontend/registry component/loader"
    [workstation]="contract interception simulator panel frontend/headless frontend/qt component/loader workstation"
)

# What each folder may reach by <...>, beside the standard library; folders not named here are free.
declare -A libraries=(
    [contract]=""
    [panel]=""
    [interception]=""
    [frontend/common]=""
    [frontend/headless]=""
    [frontend/help]=""
    [frontend/registry]="nlohmann/json.hpp nlohmann/json_fwd.hpp fcntl.h sys/file.h sys/stat.h sys/types.h unistd.h"
    [simulator]="nlohmann/json.hpp nlohmann/json_fwd.hpp SimpleIni.h"
    [simulator/folder/posix]="fcntl.h sys/file.h unistd.h"
    [simulator/folder/win32]="windows.h"
)

standard=" algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv
 chrono cinttypes climits clocale cmath codecvt compare complex concepts condition_variable coroutine
 csetjmp csignal cstdarg cstddef cstdint cstdio cstdlib cstring ctime cuchar cwchar cwctype deque
 exception execution filesystem format forward_list fstream functional future initializer_list
 iomanip ios iosfwd iostream istream iterator latch limits list locale map memory memory_resource
 mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator
 semaphore set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string
 string_view strstream syncstream system_error thread tuple type_traits typeindex typeinfo
 unordered_map unordered_set utility valarray variant vector version "
standard=${standard//$'\n'/ }

faults=0
complain() {
    echo "$1: $2"
    faults=$((faults + 1))
}

# reaches_one_of HEADER FOLDER...: whether the header lies in one of the folders.
reaches_one_of() {
    local header=$1 folder
    shift
    for folder; do
        [[ $header == "$folder"/* ]] && return 0
    done
    return 1
}

check_project_include() { # FOLDER PLACE HEADER
    # shellcheck disable=SC2086 # the table's entry is a list
    reaches_one_of "$3" ${reaches[$1]} || complain "$2" "$1 must not include \"$3\""
}

check_library_include() { # FOLDER PLACE HEADER
    [[ -v libraries[$1] ]] || return 0
    [[ $standard == *" $3 "* || " ${libraries[$1]} " == *" $3 "* ]] ||
        complain "$2" "$1 must not include <$3>"
}

check_folder() {
    local line place rest inner inners=""
    for inner in "${!reaches[@]}"; do
        [[ $inner == "$1"/* ]] && inners+=" $inner"
    done
    while IFS= read -r line; do
        # shellcheck disable=SC2086 # the folders are a list
        reaches_one_of "$line" $inners && continue
        place=${line%%:*}
        rest=${line#*:}
        place+=:${rest%%:*}
        rest=${rest#*:}
        if [[ $rest =~ ^[[:space:]]*\#[[:space:]]*include[[:space:]]*\"([^\"]+)\" ]]; then
            check_project_include "$1" "$place" "${BASH_REMATCH[1]}"
        elif [[ $rest =~ ^[[:space:]]*\#[[:space:]]*include[[:space:]]*\<([^\>]+)\> ]]; then
            check_library_include "$1" "$place" "${BASH_REMATCH[1]}"
        else
            complain "$place" "an include that cannot be read: $rest"
        fi
    done < <(grep -rnE '^[[:space:]]*#[[:space:]]*include' --include='*.h' --include='*.cpp' \
        --include='*.in' "$1")
}

for folder in "${!reaches[@]}"; do
    [[ -d $folder ]] || { complain "$folder" "no such folder"; continue; }
    check_folder "$folder"
done
((faults == 0)) && echo "Every include runs downwards."
exit $((faults > 0))
