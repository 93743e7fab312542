# Shared by run, test and the scripts in this folder, which source it: install what is missing,
# configure, build.
# Everything said here goes to stderr, so that stdout belongs to the program that is run.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
program=$(basename "$0")

# Debian 12 package names.
build_packages=(g++ cmake ninja-build ccache qt6-base-dev nlohmann-json3-dev libsimpleini-dev
                fonts-dejavu-core)
test_packages=(libgtest-dev libgmock-dev libqt6test6 libxcb1-dev xvfb xdotool
               clang-format)
# To make the programs for Windows, and to run them.
windows_packages=(gcc-mingw-w64-x86-64-posix g++-mingw-w64-x86-64-posix gcc-mingw-w64-i686-posix
                  g++-mingw-w64-i686-posix mingw-w64-tools googletest wine wine64 fonts-wine)

say() { echo "$program: $*" >&2; }

fail() { # STATUS MESSAGE...
    local status=$1
    shift
    say "$*"
    exit "$status"
}

# step WHAT COMMAND...: says what is done, does it, and ends the script when it fails.
step() {
    local what=$1 status
    shift
    say "$what"
    "$@" >&2 || { status=$?; fail 1 "failed with status $status: $what"; }
}

missing_packages() { # PACKAGE...
    local package
    for package; do
        [[ $(dpkg-query -W -f '${db:Status-Status}' "$package" 2>/dev/null) == installed ]] ||
            echo "$package"
    done
}

# Prints what a command must start with to run as root; fails when there is no way.
root_prefix() {
    [[ $EUID == 0 ]] && return 0
    command -v sudo
}

install_missing() { # PACKAGE...
    local missing prefix
    mapfile -t missing < <(missing_packages "$@")
    ((${#missing[@]} == 0)) && return
    command -v apt-get >/dev/null ||
        fail 1 "these Debian 12 packages are needed, and there is no apt-get: ${missing[*]}"
    prefix=$(root_prefix) || fail 1 "run as root or install sudo; missing packages: ${missing[*]}"
    # $prefix stays unquoted: empty for root, it must not become an argument.
    step "reading the package lists" $prefix apt-get update -qq
    step "installing ${missing[*]}" $prefix env DEBIAN_FRONTEND=noninteractive \
        apt-get install -y -qq -o Dpkg::Use-Pty=0 --no-install-recommends "${missing[@]}"
}

# configure PRESET FOLDER [ARGUMENT]...: once a folder; the build itself notices later changes, but
# not that it was moved or copied from another clone.
configure() {
    local preset=$1 folder=$2 home
    shift 2
    home=$(sed -n 's/^CMAKE_HOME_DIRECTORY:INTERNAL=//p' "$root/build/$folder/CMakeCache.txt" \
        2>/dev/null)
    [[ -f $root/build/$folder/build.ninja && $home -ef $root ]] && return
    cd "$root" || exit 1
    step "configuring build/$folder" cmake --fresh --preset "$preset" -B "build/$folder" "$@"
    cd - >/dev/null || exit 1
}

build() { # FOLDER [TARGET]
    step "building build/$1" cmake --build "$root/build/$1" -j "$(nproc)" ${2:+--target "$2"}
}
