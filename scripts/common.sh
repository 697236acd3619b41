# Shared by the scripts; sourced, not run.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."

# Everything below runs at most so many jobs at once.
jobs=$(nproc)

say() { printf '== %s\n' "$*"; }

# build PRESET [TARGET…]: configures the preset when it was not yet, and builds it.
build() {
    local preset=$1
    shift
    local targets=()
    [ $# -gt 0 ] && targets=(--target "$@")
    if [ ! -f "build/$preset/build.ninja" ]; then
        say "Configuring build/$preset"
        cmake --preset "$preset" >"build-$preset.log" 2>&1 || {
            cat "build-$preset.log"
            rm -f "build-$preset.log"
            return 1
        }
        rm -f "build-$preset.log"
    fi
    say "Building build/$preset"
    cmake --build "build/$preset" --parallel "$jobs" "${targets[@]}"
}
