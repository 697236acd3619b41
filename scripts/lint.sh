#!/usr/bin/env bash
# Checks the sources: --format (clang-format), --tidy (clang-tidy and clazy on the dev build), --translations (whether
# they are up to date); all of them without options.
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

rooms=(ui sdk panel plugin sections material preset host tests)
mapfile -t sources < <(find "${rooms[@]}" -name '*.cpp' | sort)
mapfile -t headers < <(find "${rooms[@]}" -name '*.h' | sort)

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
            --header-filter='/(ui|sdk|panel|plugin|sections|material|preset|host|tests)/' "$1" 2>&1 |
            grep -E -A4 'warning:|error:')
    fi
    if [ -n "$found" ]; then
        printf '%s\n' "$found"
        return 1
    fi
    touch "$2"
}

# files_behind_sources: "source file" for every source of the dev build and every file of ours that it consists of.
files_behind_sources() {
    ninja -C build/dev -t deps | awk -v tree="$PWD/" '
        /^[^ ]/ { source = ""; next }
        # Ours, by their full names or, as the compiler cache names them, from the build folder.
        index($1, tree) == 1 { path = substr($1, length(tree) + 1) }
        index($1, "../../") == 1 { path = substr($1, 7) }
        path != "" && path !~ /^(build|\.\.)\// { if (source == "") source = path; print source, path }
        { path = "" }' | sort -u
}

# One analysis per source, and again only when the source, a header of ours that it includes or the rules have changed.
check_tidy() {
    build dev
    local stamps=build/lint
    mkdir -p "$stamps"
    local -A files=()
    local source file
    while read -r source file; do
        [[ $source != *.cpp ]] || files[$source]+=" $file"
    done < <(files_behind_sources)
    local todo=()
    for source in "${!files[@]}"; do
        local stamp
        # shellcheck disable=SC2086 # names without blanks
        stamp="$stamps/$(cat .clang-tidy scripts/lint.sh ${files[$source]} | sha256sum | cut -c1-32)"
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
--translations) scripts/translations.sh --check ;;
*)
    check_format
    scripts/translations.sh --check
    check_tidy
    ;;
esac
