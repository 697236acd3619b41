#!/usr/bin/env bash
# Builds and runs all tests: the sources' layout, the tests plain, the build against an SDK elsewhere, the tests under
# the sanitizers. scripts/lint.sh analyses the sources, which takes longer than all of this.
# Options: --quick  only the plain tests
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
scripts/setup.sh --tools

run_tests() {
    build "$1"
    say "Testing build/$1"
    ctest --preset "$1" --parallel "$jobs" --no-tests=error
}

if [ "${1:-}" = --quick ]; then
    run_tests dev
    exit
fi

scripts/lint.sh --format
run_tests dev
scripts/vendor-sdk.sh
run_tests asan
say "All tests passed"
