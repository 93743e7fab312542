#!/usr/bin/env bash
# Runs a Windows program under Wine, as a rule without any display: tools/wine.sh --help says more.
set -u

print_help() {
    cat <<'HELP'
Usage: tools/wine.sh PREFIX [--display] [--result FILE] PROGRAM [ARGUMENT]...
       tools/wine.sh PREFIX --stop

Runs PROGRAM in the Wine installation in the folder PREFIX, which is made when it is missing,
and ends with its exit status: 124 when it runs longer than KRX8_WINE_SECONDS (300), 5 when
it crashes. With --result also with status 1 when the program does not write FILE, as one that
dies before its end would not.

With --display the program's windows are shown by the X server that DISPLAY names, without a
window manager. PREFIX is then one that has been made so.

--stop ends what runs in PREFIX.
HELP
}

say() { echo "wine.sh: $*" >&2; }

# A crash ends the program instead of starting a debugger; nothing offers to install parts of Wine.
prepare_environment() {
    WINEPREFIX=$(realpath -m "$1")
    export WINEPREFIX WINEARCH=win64 WINEDEBUG=${WINEDEBUG:--all}
    export WINEDLLOVERRIDES="mscoree=;mshtml=;winedbg.exe=d"
    [[ -n $display ]] || unset DISPLAY
}

# With a display, windows draw their own frames instead of waiting for a window manager, and the
# fonts of the package fonts-wine are where Wine finds them.
configure_prefix() {
    if [[ -z $display ]]; then
        wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d null /f
    else
        cp /usr/share/wine/fonts/*.ttf "$WINEPREFIX/drive_c/windows/Fonts" &&
            wine reg add 'HKCU\Software\Wine\X11 Driver' /v Managed /d N /f
    fi
}

make_prefix() {
    [[ -e $WINEPREFIX/.ready ]] && return
    rm -rf "$WINEPREFIX"
    mkdir -p "$WINEPREFIX"
    wineboot -i && configure_prefix && wineserver -w && touch "$WINEPREFIX/.ready"
}

# A process's number and when it started: numbers are given out again.
identify() { # PID
    local text fields
    text=$(cat "/proc/$1/stat" 2>/dev/null) || return
    read -ra fields <<<"${text##*) }"
    echo "$1 ${fields[19]}"
}

is_keeper_alive() {
    local pid identity
    read -r pid identity 2>/dev/null <"$WINEPREFIX/keeper" &&
        [[ $(identify "$pid") == "$pid $identity" ]]
}

# Wine's services start with the first program, hold on to its output and end with the last one.
# A program that waits in the background keeps them away from the output of those that matter.
start_keeper() {
    is_keeper_alive && return
    setsid bash -c 'sleep 900 | wine cmd /q' &
    identify $! >"$WINEPREFIX/keeper"
    # The services are up when another program has run.
    wine cmd /c exit
}

stop() {
    [[ -d $WINEPREFIX ]] || return 0
    is_keeper_alive && kill -- "-$(cut -d' ' -f1 "$WINEPREFIX/keeper")" 2>/dev/null
    rm -f "$WINEPREFIX/keeper"
    wineserver -k
    return 0
}

# What must happen once happens once, however many start at the same time.
prepare() {
    mkdir -p "$(dirname "$WINEPREFIX")"
    exec 9>"$WINEPREFIX.lock"
    flock 9
    { make_prefix && start_keeper; } >"$WINEPREFIX.log" 2>&1 </dev/null 9>&- || {
        say "cannot prepare Wine in $WINEPREFIX; see $WINEPREFIX.log"
        exit 2
    }
    exec 9>&-
}

run() {
    local result='' status
    if [[ $1 == --result ]]; then
        result=$2
        shift 2
        rm -f "$result"
    fi
    timeout --kill-after=10 "${KRX8_WINE_SECONDS:-300}" wine "$@" </dev/null
    status=$?
    ((status == 124)) && say "$1 did not end in time"
    if [[ -n $result && ! -s $result ]]; then
        say "$1 has left no result in $result; its status was $status"
        return $((status == 0 ? 1 : status))
    fi
    return "$status"
}

[[ ${1:-} == --help ]] && { print_help; exit 0; }
(($# >= 2)) || { print_help >&2; exit 2; }
prefix=$1
shift
display=''
[[ $1 != --display ]] || { display=1; shift; }
(($# >= 1)) || { print_help >&2; exit 2; }
prepare_environment "$prefix"
if [[ $1 == --stop ]]; then
    stop
    exit
fi
prepare
run "$@"
