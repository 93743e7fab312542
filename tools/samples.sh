# Sourced by run and bench/peers/run, after setup.sh: looks after the user's copies of the sample
# devices.
#
# A copy that has been deleted comes back. Newer samples replace the copies that the user has not
# changed and leave the others alone. What was copied last lies in a folder of records, to compare
# with.

# copy_samples SAMPLES COPIES RECORDS
copy_samples() {
    local sample name
    mkdir -p "$2" "$3" || fail 1 "cannot make the folders $2 and $3"
    for sample in "$1"/*/; do
        name=$(basename "$sample")
        copy_sample "${sample%/}" "$2/$name" "$3/$name" ||
            fail 1 "cannot copy the sample $name to $2"
    done
}

copy_sample() { # SAMPLE COPY RECORD
    is_same "$1" "$3" && [[ -e $2 ]] && return
    if [[ ! -e $2 ]] || is_same "$2" "$3"; then
        say "copying the sample $(basename "$1")"
        place "$1" "$2" "$3.new" || return
    elif ! is_same "$1" "$2"; then
        say "$(basename "$1"): your copy may hold your changes, so it stays;" \
            "delete ${2#"$root/"} to get the newer sample"
    fi
    # Last, so that a start that is cut off before it compares anew.
    is_same "$1" "$3" || place "$1" "$3" "$3.new"
}

is_same() { diff -r -q "$1" "$2" >/dev/null 2>&1; }

# place FOLDER AS ASIDE: made aside, so that it is there whole or not at all.
place() { rm -rf "$3" && cp -R "$1" "$3" && rm -rf "$2" && mv -T "$3" "$2"; }
