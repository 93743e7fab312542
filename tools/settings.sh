# Sourced by run, after setup.sh: looks after the settings file of the workstation that it starts.

# keep_settings FILE PACKAGE: a missing file is written as somebody who has installed the package
# would leave it, so that devices are offered an update. The file is the user's to change. Only the
# sample package of another clone, there or not, is replaced by this one's: a clone may be moved or
# copied with its build folder. Any other folder stays, also a missing one, which is worth a try.
keep_settings() {
    if [[ ! -e $1 ]]; then
        step "writing $1" in_turn "$1" write_settings "$1" "$2"
    elif must_renew "$1" "$2"; then
        step "renewing the package folder in $1" in_turn "$1" renew_settings "$1" "$2"
    fi
}

# in_turn FILE COMMAND...: as one writer of several.
in_turn() {
    local file=$1
    shift
    mkdir -p "$(dirname "$file")" && (flock 9 && "$@") 9>>"$file.lock"
}

quote() { local text=${1//\\/\\\\}; echo "\"${text//\"/\\\"}\""; }

# Made aside, so that the file is there whole or not at all.
write_settings() { # FILE PACKAGE
    cat >"$1.new" <<JSON && mv "$1.new" "$1"
{
  "SOFTWARE/Vantor Mobile Phones/WstShared/Common/FlashUpdate": {
    "FlashDir": $(quote "$2"),
    "FlashVersion": "5.2.0"
  }
}
JSON
}

folder_setting='"FlashDir":[[:space:]]*"(([^"\\]|\\.)*)"'

must_renew() { # FILE PACKAGE
    local folder
    [[ $(<"$1") =~ $folder_setting ]] || return
    folder=${BASH_REMATCH[1]//\\\"/\"}
    folder=${folder//\\\\/\\}
    [[ $folder != "$2" && $folder == */simulator/package ]]
}

renew_settings() { # FILE PACKAGE
    local text
    text=$(<"$1") && [[ $text =~ $folder_setting ]] &&
        echo "${text/"${BASH_REMATCH[0]}"/"\"FlashDir\": $(quote "$2")"}" >"$1.new" &&
        mv "$1.new" "$1"
}
