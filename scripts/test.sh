#!/usr/bin/env bash
# Builds and runs all tests: the sources' checks, then the tests plain and under the sanitizers.
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
run_tests asan
scripts/lint.sh --tidy
say "All tests passed"
