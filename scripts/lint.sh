#!/usr/bin/env bash
# Checks the sources: --format (clang-format), --tidy (clang-tidy and clazy on the dev build), both without options.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

mapfile -t sources < <(git ls-files '*.cpp')
mapfile -t headers < <(git ls-files '*.h')

# No rule of ours: global strings are made before main() and cheap; properties of widgets need no notification.
clazy_checks=level0,level1,isempty-vs-count,no-non-pod-global-static,no-qproperty-without-notify,no-lambda-in-connect
export clazy_checks

check_format() {
    say "Checking the layout of ${#sources[@]} sources and ${#headers[@]} headers"
    clang-format --dry-run --Werror "${sources[@]}" "${headers[@]}"
}

# analyse_one SOURCE STAMP: leaves the stamp when there is nothing to complain about.
analyse_one() {
    local found
    found=$(clang-tidy -p build/dev --quiet "$1" 2>/dev/null)
    if command -v clazy-standalone >/dev/null; then
        found+=$(clazy-standalone -p build/dev --checks="$clazy_checks" \
            --header-filter='/(ui|sdk|plugin|sections|material|preset|host|tests)/' "$1" 2>&1 |
            grep -E -A4 'warning:|error:')
    fi
    if [ -n "$found" ]; then
        printf '%s\n' "$found"
        return 1
    fi
    touch "$2"
}

# One analysis per source, and again only when the source, a header or the rules have changed.
check_tidy() {
    [ -f build/dev/compile_commands.json ] || build dev
    local stamps=build/lint
    mkdir -p "$stamps"
    local rules
    rules=$(cat .clang-tidy "${headers[@]}" | sha256sum | cut -c1-16)
    local todo=()
    local source
    for source in "${sources[@]}"; do
        grep -q "/$source\"" build/dev/compile_commands.json || continue
        local stamp
        stamp="$stamps/$(cat "$source" <(printf '%s%s' "$source" "$rules") | sha256sum | cut -c1-32)"
        [ -e "$stamp" ] || todo+=("$source" "$stamp")
    done
    [ ${#todo[@]} -gt 0 ] || return 0
    say "Analysing $((${#todo[@]} / 2)) sources"
    export -f analyse_one
    printf '%s\0' "${todo[@]}" | xargs -0 -r -n 2 -P "$jobs" bash -c 'analyse_one "$@"' lint
}

case "${1:-}" in
--format) check_format ;;
--tidy) check_tidy ;;
*)
    check_format
    check_tidy
    ;;
esac
