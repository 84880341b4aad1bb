#!/usr/bin/env bash
# Spreads workspaces over jobs and over workers with GNU parallel: the files are those of one run, and a workspace that
# cannot be read fails alone. Usage: parallel.sh VORLAN_BATCH
set -euo pipefail
batch=$1
if ! parallel --version 2>/dev/null | grep -q '^GNU parallel' || ! command -v rsync >/dev/null; then
    echo "GNU parallel or rsync is not installed."
    exit 77
fi
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
# A login has a shell; a test may have none.
export HOME=$folder PARALLEL_HOME=$folder SHELL=/bin/sh
mkdir bin one many
ln -s "$batch" bin/vorlan-batch
export PATH=$folder/bin:$PATH

printf '[[step]]\ndo = "spectral"\nlags = 50\n' >recipe.toml
for i in 1 2 3 4; do
    vorlan-batch simulate --out "r$i.avp" --length 40 --noise-variance 3,2,1 --seed "$i"
done
vorlan-batch run --recipe recipe.toml --jobs 2 --out-dir one r?.avp
parallel --jobs 2 --joblog log vorlan-batch run --recipe recipe.toml --out many/{} {} ::: r?.avp
for i in 1 2 3 4; do
    cmp "one/r$i.avp" "many/r$i.avp"
done

head -c 500 r2.avp >cut.avp
status=0
parallel --jobs 2 --joblog log vorlan-batch run --recipe recipe.toml --out many/again-{} {} ::: r1.avp cut.avp r3.avp \
    2>messages || status=$?
[ "$status" -eq 1 ] || { echo "status $status for one failed job"; exit 1; }
[ "$(awk 'NR > 1 && $7 != 0 { print $7 }' log)" = 3 ] || { cat log; exit 1; }
grep -q cut.avp messages
cmp one/r1.avp many/again-r1.avp
cmp one/r3.avp many/again-r3.avp
[ ! -e many/again-cut.avp ]

# Workers are folders here: what stands for ssh runs the command in the one that is named.
cat >bin/worker <<'END'
#!/bin/sh
while :; do
    case $1 in
        -l | -p | -o) shift 2 ;;
        -*) shift ;;
        *) break ;;
    esac
done
worker=$PARALLEL_HOME/$1
shift
[ "$1" != -- ] || shift
cd "$worker" && HOME=$worker exec sh -c "$*"
END
chmod +x bin/worker
mkdir worker1 worker2 records
cp r?.avp records
parallel --ssh worker --sshlogin 1/worker1,1/worker2 --joblog log \
    --transferfile {} --basefile recipe.toml --return walked-{/} --cleanup \
    vorlan-batch run --recipe recipe.toml --out walked-{/} {} ::: records/*.avp
for i in 1 2 3 4; do
    cmp "one/r$i.avp" "walked-r$i.avp"
done
[ "$(awk 'NR > 1 { print $2 }' log | sort -u | wc -l)" = 2 ] || { cat log; exit 1; }
left=$(find worker1 worker2 -name '*.avp')
[ -z "$left" ] || { echo "left on the workers: $left"; exit 1; }
