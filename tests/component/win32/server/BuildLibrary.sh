#!/usr/bin/env bash
# Builds the component of a preset as it is handed on. Usage: BuildLibrary.sh PRESET
set -u
source "$(dirname "${BASH_SOURCE[0]}")/../../../../tools/setup.sh"

configure "$1" "$1" -DKRX8_TESTS=OFF -DKRX8_BENCH=OFF
build "$1" cmn_krx8maintenanceui
