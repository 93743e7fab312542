#!/usr/bin/env bash
# The compiler behind ccache: CompileCached.sh CCACHE PROJECT COMPILER ARGUMENT...
#
# Objects are taken from the cache whatever clone they were made in. Precompiled headers are not: gcc
# may run out of memory when it reads one that was made in another folder. Such a header is made
# anew, and a checksum of its text beside it tells ccache that the objects need not be.
set -u
ccache=$1
export CCACHE_BASEDIR=$2 CCACHE_NOHASHDIR=1 CCACHE_PCH_EXTSUM=1
export CCACHE_SLOPPINESS=pch_defines,time_macros
shift 2

output=
previous=
preprocess=()
for argument; do
    [[ $previous == -o ]] && output=$argument
    case $previous in -o | -MT | -MF) ;; *)
        case $argument in -o | -MT | -MF | -MD | -c) ;; *) preprocess+=("$argument") ;; esac ;;
    esac
    previous=$argument
done

[[ $output == *.gch ]] || exec "$ccache" "$@"
# First, since a header that is there already would be named instead of read.
rm -f "$output"
set -o pipefail
"${preprocess[@]}" -E -P | sha256sum >"$output.sum" && "$@"
