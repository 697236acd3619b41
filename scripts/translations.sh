#!/usr/bin/env bash
# Brings the translations up to date with the sources and the forms: new texts come in, unfinished; texts that are gone
# go. Lines are not noted, so that code which only moves changes nothing.
# Options: --check  changes nothing, and fails where there is something to bring up to date
. "$(dirname "${BASH_SOURCE[0]}")/common.sh"

# Debian keeps Qt's tools in a folder of their own.
PATH=/usr/lib/qt5/bin:$PATH
options=(-silent -no-obsolete -locations none -I . -I sdk)
panel=(ui sdk panel plugin sections material preset resources/forms)
workbench=(host)

# update FOLDER: brings the files of that folder up to date; a warning of the reader is an error, because what it does
# not understand gets a context that nobody asks for.
update() {
    local problems
    problems=$(
        lupdate "${options[@]}" "${panel[@]}" -ts "$1"/softcloth_*.ts 2>&1
        lupdate "${options[@]}" "${workbench[@]}" -ts "$1"/workbench_*.ts 2>&1
    )
    [ -z "$problems" ] || {
        printf '%s\n' "$problems" >&2
        return 1
    }
}

case "${1:-}" in
--check)
    say "Checking that the translations are up to date"
    copy=$(mktemp -d)
    trap 'rm -rf "$copy"' EXIT
    cp translations/*.ts "$copy"
    update "$copy"
    for file in "$copy"/*.ts; do
        diff "translations/${file##*/}" "$file" || {
            say "scripts/translations.sh brings them up to date"
            exit 1
        }
    done
    ;;
*) update translations ;;
esac
