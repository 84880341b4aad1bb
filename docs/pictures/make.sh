#!/usr/bin/env bash
# Makes the pictures of the manual anew, with the programs that were built last:
#
#   docs/pictures/make.sh [BUILD_DIRECTORY [MEASURED_RECORD.csv]]
#
# The diagrams are drawn by vorlan-batch, which needs no display. The window and its dialogs are photographed on a
# display of their own; that needs Debian's xvfb, openbox, xdotool, x11-utils and imagemagick, which the program itself does not
# need. Without the measured record its pictures stay as they are.
set -euo pipefail

pictures=$(cd "$(dirname "$0")" && pwd)
docs=$(dirname "$pictures")
build=$(cd "${1:-$docs/../build/release}" && pwd)
record=${2:+$(realpath "$2")}
batch=$build/src/batch/vorlan-batch
window=$build/src/ui/vorlan

for tool in Xvfb openbox xdotool xprop xwininfo import convert; do
    command -v "$tool" >/dev/null || { echo "make.sh: $tool is missing" >&2; exit 1; }
done

source "$pictures/screen.sh"

# --- diagrams of made records ------------------------------------------------------------------------------------

# The record of getting-started.md: the fields as the dialog opens, white noise, an amplitude of 5 and a period of 2.
"$batch" simulate --out started.avp --seed 1 --harmonic u:5:2:0 --noise-variance 1,1,1

# The record that ./run opens.
"$batch" simulate --out sample.avp --name "sample flume record" --seed 1 --interval 0.04 --length 120 \
    --mean 50,5,0 --noise-mean 0,0,0 --noise-variance 3,2,1 --compass 120,2,-1 \
    --harmonic U:6:8:0 --harmonic W:2:8:180 --harmonic U:3:2:40 --harmonic W:1:2:220 \
    --harmonic V:2:4:0 --harmonic U:1.5:0.5:90 --harmonic W:0.8:0.5:250

# The pair of cross-spectral.md.
"$batch" simulate --out pair.avp --seed 1 --interval 0.2 --length 1000 --mean 50,0,0 \
    --harmonic u:3:2:30 --harmonic w:2:2:100 --harmonic u:2:0.8:200 --harmonic w:2:0.8:80 --noise-variance 2,2,1
cat >pair.toml <<'RECIPE'
[[step]]
do = "spectral"
lags = 60
[[step]]
do = "cross-spectral"
[[step]]
do = "render"
stage = "cross-spectral"
out = "pair.png"
RECIPE
"$batch" run --recipe pair.toml pair.avp
keep pair.png cross-known

# The section of vectors.md.
"$docs/flume-section.sh" "$batch"
"$batch" render --stage vectors --out vectors.png --size 1200x820 flume.avp
keep vectors.png vectors

# --- the walk through the measured record ------------------------------------------------------------------------

if [ -n "$record" ]; then
    "$batch" import --out tidal.avp --interval 0.03125 "$record"
    "$batch" run --recipe "$docs/walk-measured.toml" --out walked.avp tidal.avp
    for picture in tidal-*.png; do
        name=${picture#tidal-}
        keep "$picture" "walk-${name%.png}"
    done
    printf '[[step]]\ndo = "clip"\nfrom = 100\nto = 900\n' >clip.toml
    "$batch" run --recipe clip.toml --out clipped.avp tidal.avp
    "$batch" render --stage vectors --pane right-top --size 420x150 --out direction.png clipped.avp
    keep direction.png walk-direction
    "$pictures/tools.sh" "$build" "$record"
    "$batch" run --recipe "$docs/walk-quadrants.toml" tidal.avp
    keep tidal-quadrants.png walk-quadrants-shorter
    "$batch" import --out coarse.avp --interval 0.03125 --resolution 0.1 "$record"
    cat >coarse.toml <<'RECIPE'
[[step]]
do = "distributions"
grades = 40
[[step]]
do = "render"
stage = "histograms"
pane = "right-top"
size = "600x450"
out = "coarse.png"
RECIPE
    "$batch" run --recipe coarse.toml coarse.avp
    keep coarse.png walk-coarse
fi

# --- the window and its dialogs ----------------------------------------------------------------------------------

begin_display
openbox --sm-disable 2>/dev/null &
processes+=($!)
sleep 1

# The active window with its frame, cut out of the screen.
shot() {
    xdotool mousemove 1275 955
    sleep 0.8
    local id left right top bottom X Y WIDTH HEIGHT
    id=$(xdotool getactivewindow)
    read -r X Y WIDTH HEIGHT < <(xwininfo -id "$id" | awk '/Absolute|Width:|Height:/ { printf "%s ", $NF } END { print "" }')
    read -r left right top bottom < <(xprop -id "$id" _NET_FRAME_EXTENTS | sed 's/.*= //; s/,//g')
    import -silent -window root shot.png
    convert shot.png -crop "$((WIDTH + left + right))x$((HEIGHT + top + bottom))+$((X - left))+$((Y - top))" +repage shot.png
    keep shot.png "$1" 64
}
# dialog NAME KEY...: opens a dialog by the keys of its menu, photographs it, cancels it
dialog() {
    local name=$1
    shift
    keys "$@"
    shot "dialog-$name"
    keys Escape
    sleep 0.3
}

# getting-started.md
open_window started.avp 40 40
shot getting-started-record
keys alt+t i alt+w alt+a
xdotool type 5
keys alt+d
xdotool type 2
shot dialog-simulate
keys Escape alt+a p Return
shot getting-started-spectra
close_window

# The dialogs, with the values of walk-measured.md.
cat >settings.toml <<'RECIPE'
[[step]]
do = "edit"
correlation = "minimum"
velocity_threshold = 4
[[step]]
do = "filter"
half_width = 0.25
[[step]]
do = "distributions"
grades = 40
[[step]]
do = "spectral"
percent = 20
[[step]]
do = "quadrants"
RECIPE
"$batch" run --recipe settings.toml --out settings.avp sample.avp
open_window settings.avp 40 40
keys ctrl+Tab ctrl+shift+Tab alt+p c alt+r Tab
xdotool type 178.56
shot dialog-coordinates
keys Escape
dialog editing alt+p e
dialog filter alt+p d
dialog stationarity alt+a s
dialog histograms alt+a h
dialog spectral alt+a p
dialog quadrants alt+a q
dialog vectors alt+a v
dialog mean-velocity alt+t m
dialog plot ctrl+f
dialog page alt+f u
dialog export alt+f e t
dialog export-scope alt+f e i
dialog figure alt+f g
close_window

# The dialog of import.md, on the measured record when it is there. A table without an interval keeps the dialog open.
"$batch" export velocities --header --time --separator comma --out flume.csv sample.avp
open_window sample.avp
keys alt+f i
xdotool type "$(realpath "${record:-flume.csv}")"
keys Return
shot dialog-import
keys Escape
close_window

# The editor of grid-editor.md on the section of vectors.md, its limits left to the data.
open_window flume.avp 40 40
keys alt+t g
# the plane X-Z, then every limit and step of the frame left to the data
keys alt+p Tab Tab Tab Tab Left Tab Tab space
keys Tab Tab space Tab space Tab space Tab space Tab space Tab space Return
shot dialog-grid
keys Escape
close_window

# window.md and README.md: the record of ./run at its spectra.
cat >sample.toml <<'RECIPE'
[[step]]
do = "spectral"
percent = 8
RECIPE
"$batch" run --recipe sample.toml --out sampled.avp sample.avp
open_window sampled.avp 40 40
keys ctrl+Tab
shot window
keys ctrl+shift+Tab alt+p
shot window-menu
keys Escape Escape
close_window
