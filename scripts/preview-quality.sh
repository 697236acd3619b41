#!/usr/bin/env bash
# Measures how well the cloth preview's collision holds: each cloth and hair preset in each wind preset through each
# motion on the demo character, 10 seconds each. Prints the table and fails when a bound is missed. Takes about 20
# minutes on two cores. Options are those of the program, for example --seconds 2 or --wind Gale.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"
scripts/setup.sh

build release softcloth-preview-quality
say "Measuring"
tables=$(mktemp -d)
trap 'rm -rf "$tables"' EXIT
export tables
measure() {
    local preset=$1
    shift
    build/release/bin/softcloth-preview-quality --preset "$preset" "$@" >"$tables/$preset"
}
export -f measure

presets=()
for file in host/data/PhysicsSoftPreset/[01]/*.ini; do
    preset=$(basename "$file" .ini)
    presets+=("${preset#*_}")
done
missed=0
printf '%s\n' "${presets[@]}" | xargs -P "$jobs" -I '{}' bash -c 'measure "$@"' measure '{}' "$@" || missed=1
head -n 1 "$tables/${presets[0]}"
for preset in "${presets[@]}"; do
    tail -n +2 "$tables/$preset"
done
if [ $missed -ne 0 ]; then
    say "A bound is missed"
    exit 1
fi
say "All bounds are met"
