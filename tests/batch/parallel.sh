#!/usr/bin/env bash
# Spreads workspaces over jobs with GNU parallel: the files are those of one run, and a workspace that cannot be read
# fails alone. Usage: parallel.sh VORLAN_BATCH
set -euo pipefail
batch=$1
if ! parallel --version 2>/dev/null | grep -q '^GNU parallel'; then
    echo "GNU parallel is not installed."
    exit 77
fi
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
# A login has a shell; a test may have none.
export HOME=$folder PARALLEL_HOME=$folder SHELL=/bin/sh
mkdir one many

printf '[[step]]\ndo = "spectral"\nlags = 50\n' >recipe.toml
for i in 1 2 3; do
    "$batch" simulate --out "r$i.avp" --length 40 --noise-variance 3,2,1 --seed "$i"
done
"$batch" run --recipe recipe.toml --out-dir one r?.avp
head -c 500 r2.avp >r9.avp
status=0
parallel --jobs 2 "$batch" run --recipe recipe.toml --out many/{} {} ::: r?.avp 2>messages || status=$?
[ "$status" -eq 1 ] || { echo "status $status for one failed job"; exit 1; }
grep -q r9.avp messages
diff -r one many
