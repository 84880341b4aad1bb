#!/usr/bin/env bash
# A section of a flume with its bed, its water surface and a traverse of 20 probes: makes flume.avp, bed.bnd and
# surface.bnd in the current folder.
#
#   docs/flume-section.sh [VORLAN-BATCH]
set -euo pipefail

batch=${1:-vorlan-batch}
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# Heights of 8 to 185 mm above the bed, a logarithmic profile, more turbulence near the bed.
heights=()
tables=()
for i in $(seq 20); do
    read -r height mean noise < <(awk -v i="$i" 'BEGIN {
        z = 0.008 + 0.00931579 * (i - 1)
        printf "%.3f %.2f,%.2f,%.2f %.2f,%.2f,%.2f\n", z, 5.85 * log(z / 0.00005), 1.5 - 10 * z, 6 * (0.1 - z) * z / 0.02,
            6 - 15 * z, 4 - 10 * z, 3 - 5 * z }')
    heights+=("$height")
    "$batch" simulate --out "$work/record.avp" --length 20 --mean="$mean" --noise-variance "$noise" --seed "$i"
    "$batch" export velocities --out "$work/$i.txt" "$work/record.avp"
    tables+=("$work/$i.txt")
done
"$batch" import --out flume.avp --name "flume traverse" --interval 0.04 --columns u,v,w --as-probes "${tables[@]}"

for i in $(seq 20); do
    printf 'probes = [%d]\n[[step]]\ndo = "position"\nx = 1.2\ny = 0.15\nz = %s\n' "$i" "${heights[i - 1]}" >"$work/step.toml"
    "$batch" run --recipe "$work/step.toml" --in-place flume.avp
done

# boundary NAME X Z ...: a boundary from its nodes, each put behind the last
boundary() {
    local node=0
    printf '[[step]]\ndo = "boundary-new"\npath = "%s"\n' "$1"
    shift
    while [ $# -gt 0 ]; do
        printf '[[step]]\ndo = "node-insert"\nnode = %d\nx = %s\ny = 0.15\nz = %s\n' "$node" "$1" "$2"
        node=$((node + 1))
        shift 2
    done
    printf '[[step]]\ndo = "boundary-save"\n'
}
{
    boundary bed.bnd 0 0 0.4 0 0.5 0.02 0.6 0.03 0.7 0.02 0.8 0 2.4 0
    boundary surface.bnd 0 0.203 2.4 0.198
    printf '[[step]]\ndo = "vectors"\nplane = "xz"\npixels = 60\nspeed = 50\nsmaller = 2\n'
} >"$work/section.toml"
"$batch" run --recipe "$work/section.toml" --in-place flume.avp
