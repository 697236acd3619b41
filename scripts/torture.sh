#!/usr/bin/env bash
# Lets every host call of every action of the panel go wrong, under the sanitizers, and prints a table; fails when a
# case fails, and says how to repeat it. Takes hours in full.
# Options: --minutes N  so long, with cases from everywhere
#          others are for the driver: --family A, --action NAME, … (build/asan/bin/torture --help)
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
scripts/setup.sh

build asan torture
export LC_ALL=C.UTF-8 ASAN_OPTIONS=detect_leaks=0
# A failure's report names the lines.
export UBSAN_OPTIONS=print_stacktrace=1
exec nice build/asan/bin/torture "$@"
