# Sourced by run, after setup.sh: checks the options and hands them on to the workstation.

# The names of the options on the command line.
given=()

# option_line OPTION: by the help text, which lists each option once. Fails for an unknown one.
option_line() { grep -E -- "^  $1( |\$)" "$root/workstation/Help.txt"; }
takes_value() { [[ $1 =~ ^\ \ --[a-z]+\ [A-Z] ]]; }

# check_options [OPTION]...: refuses a wrong command line, and calls print_help where it asks for
# help.
check_options() {
    local name line
    while (($# > 0)); do
        name=${1%%=*}
        [[ $name =~ ^--[a-z]+$ ]] && line=$(option_line "$name") ||
            fail 2 "unknown option ${1@Q}; ./run --help lists the options"
        [[ $name == --help ]] && { print_help; exit 0; }
        given+=("$name")
        if takes_value "$line" && [[ $1 != *=* ]]; then
            (($# > 1)) || fail 2 "option $name needs a value; ./run --help lists the options"
            shift
        fi
        shift
    done
}

is_given() { [[ " ${given[*]} " == *" $1 "* ]]; }

# start WORKSTATION DEVICES PICTURE [OPTION]...: the script becomes the workstation, in the folder
# that it was called in. The options have been checked.
start() {
    local workstation=$1 devices=$2 picture=$3 defaults=()
    shift 3
    is_given --devices || defaults+=(--devices "$devices")
    is_given --device || is_given --devices || defaults+=(--device "$devices/krx-20")
    is_given --fallback || defaults+=(--fallback "$picture")
    exec "$workstation" "${defaults[@]}" "$@"
}
