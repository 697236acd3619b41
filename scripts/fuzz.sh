#!/usr/bin/env bash
# Fuzzes one target for some minutes: scripts/fuzz.sh TARGET MINUTES (targets: tests/fuzz/fuzz_*.cpp). What is found stays
# in build/fuzz/corpus; an input that goes wrong is written to build/fuzz/found. Put it into tests/fuzz/regressions/TARGET,
# where the ordinary tests feed it to the target again, and mend what it shows.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
if [ $# -ne 2 ]; then
    say "Usage: scripts/fuzz.sh TARGET MINUTES"
    exit 1
fi
scripts/setup.sh --fuzz
target=$1

build fuzz "fuzz_$target" "feed_$target"
corpus=build/fuzz/corpus/$target
mkdir -p "$corpus" build/fuzz/found
export LC_ALL=C.UTF-8 ASAN_OPTIONS=detect_leaks=0 UBSAN_OPTIONS=print_stacktrace=1
"build/fuzz/bin/feed_$target" --seeds "$corpus"
exec nice "build/fuzz/bin/fuzz_$target" -max_total_time=$(($2 * 60)) -timeout=60 -rss_limit_mb=4096 -max_len=65536 \
    -print_final_stats=1 -artifact_prefix="build/fuzz/found/$target-" "$corpus"
