#!/usr/bin/env bash
# Spreads workspaces over several workers with GNU parallel: the files are those of one run, and a workspace that cannot
# be read fails alone. Usage: parallel.sh VORLAN_BATCH
set -euo pipefail
batch=$1
if ! parallel --version 2>/dev/null | grep -q '^GNU parallel'; then
    echo "GNU parallel is not installed."
    exit 77
fi
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
export HOME=$folder PARALLEL_HOME=$folder

printf '[[step]]\ndo = "spectral"\nlags = 50\n' >recipe.toml
mkdir one many
for i in 1 2 3 4; do
    "$batch" simulate --out "r$i.avp" --length 40 --noise-variance 3,2,1 --seed "$i"
done
"$batch" run --recipe recipe.toml --jobs 2 --out-dir one r?.avp
parallel --jobs 2 --joblog log "$batch" run --recipe recipe.toml --out many/{} {} ::: r?.avp
for i in 1 2 3 4; do
    cmp "one/r$i.avp" "many/r$i.avp"
done

head -c 500 r2.avp >cut.avp
status=0
parallel --jobs 2 --joblog log "$batch" run --recipe recipe.toml --out many/again-{} {} ::: r1.avp cut.avp r3.avp \
    2>messages || status=$?
[ "$status" -eq 1 ] || { echo "status $status for one failed job"; exit 1; }
[ "$(awk 'NR > 1 && $7 != 0 { print $7 }' log)" = 3 ] || { cat log; exit 1; }
grep -q cut.avp messages
cmp one/r1.avp many/again-r1.avp
cmp one/r3.avp many/again-r3.avp
[ ! -e many/again-cut.avp ]
