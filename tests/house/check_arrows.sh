#!/usr/bin/env bash
# Includes may point only to the rooms that a room is allowed to know, and the rooms below the window know no toolkit.
# Usage: check_arrows.sh SOURCE_FOLDER
set -euo pipefail
cd "$1"

declare -A knows=(
    [model]="model"
    [io]="model io"
    [analysis]="model analysis"
    [export]="model analysis export"
    [app]="model io analysis export app"
    [plot]="model plot"
    [stages]="model analysis plot stages"
    [recipes]="model io analysis export app plot stages recipes"
    [ui]="model io analysis export app plot stages recipes ui"
    [batch]="model io analysis export app plot stages recipes batch"
)
faults=0
complain() {
    echo "$1"
    faults=$((faults + 1))
}

for room in */; do
    room=${room%/}
    if [ -z "${knows[$room]:-}" ]; then
        complain "src/$room is no known room"
        continue
    fi
    while IFS=: read -r file line include; do
        target=${include#*\"}
        target=${target%%/*}
        case " ${knows[$room]} " in
            *" $target "*) ;;
            *) complain "$file:$line: $room may not include $target" ;;
        esac
    done < <(grep -rnE '^#include "' "$room" || true)
done

while IFS=: read -r file line include; do
    complain "$file:$line: a toolkit header in a room without toolkit: $include"
done < <(grep -rnE '^#include <Q[A-Z]' model io analysis export app stages recipes batch || true)

[ "$faults" -eq 0 ] || exit 1
echo "All includes point downward."
