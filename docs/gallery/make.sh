#!/usr/bin/env bash
# Makes the pictures of gallery.md anew: every diagram and table of every stage on the measured record.
#
#   docs/gallery/make.sh VORLAN_BATCH MEASURED_RECORD.csv [FOLDER]
#
# FOLDER (this one without it) takes the pictures. imagemagick's convert makes them small.
set -euo pipefail

gallery=$(cd "$(dirname "$0")" && pwd)
batch=$(realpath "$1")
record=$(realpath "$2")
out=$(realpath "${3:-$gallery}")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
cd "$work"

"$batch" import --out tidal.avp --interval 0.03125 "$record"
"$batch" run --recipe "$gallery/../walk-measured.toml" --out analysed.avp tidal.avp 2>/dev/null
# Arrows that fit into small pictures.
printf '[[step]]\ndo = "vectors"\nplane = "xz"\nspeed = 50\n' >plan.toml
"$batch" run --recipe plan.toml --out walked.avp analysed.avp

# draw NAME STAGE PANE [OPTION...]
draw() {
    local name=$1 stage=$2 pane=$3
    shift 3
    "$batch" render --stage "$stage" --pane "$pane" --size 480x320 --out "$name.png" "$@" walked.avp || return 0
    convert "$name.png" -strip +dither -colors 24 -define png:compression-level=9 \
        -define png:exclude-chunks=date,time "PNG8:$out/$name.png"
}

for stage in pre-processing stationarity histograms spectral vectors quadrants cross-spectral; do
    for pane in left-top left-bottom right-top right-bottom; do
        # The plans have three panes, and this record has neither compass nor pressure.
        case $stage/$pane in vectors/left-bottom | pre-processing/right-top) continue ;; esac
        draw "$stage-$pane" "$stage" "$pane"
    done
done
draw pre-processing-stresses pre-processing left-top --values stresses
draw histograms-all histograms right-bottom --right-bottom diagram
draw cross-spectral-stresses-left-top cross-spectral left-top --values stresses
draw cross-spectral-stresses-left-bottom cross-spectral left-bottom --values stresses
