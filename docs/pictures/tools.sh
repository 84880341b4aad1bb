#!/usr/bin/env bash
# Makes the pictures of turbulence.md anew: the tools of the spectral stage in use on the measured record.
#
#   docs/pictures/tools.sh BUILD_DIRECTORY MEASURED_RECORD.csv
#
# The window is worked by mouse and keys on a display of its own; that needs Debian's xvfb, xdotool and imagemagick.
set -euo pipefail

pictures=$(cd "$(dirname "$0")" && pwd)
build=$(cd "$1" && pwd)
record=$(realpath "$2")

work=$(mktemp -d)
processes=()
leave() {
    for process in "${processes[@]}"; do
        kill "$process" 2>/dev/null || true
    done
    rm -rf "$work"
}
trap leave EXIT
cd "$work"

cat >spectra.toml <<'RECIPE'
[[step]]
do = "clip"
from = 100
to = 900
[[step]]
do = "rotate"
heading = 178.56
[[step]]
do = "edit"
correlation = "minimum"
velocity_threshold = 4
[[step]]
do = "spectral"
lags = 640
RECIPE
"$build/src/batch/vorlan-batch" import --out tidal.avp --interval 0.03125 "$record"
"$build/src/batch/vorlan-batch" run --recipe spectra.toml --out spectra.avp tidal.avp

export HOME=$work/home XDG_CONFIG_HOME=$work/home/config XDG_DATA_HOME=$work/home/data XDG_CACHE_HOME=$work/home/cache
mkdir -p "$XDG_CONFIG_HOME" "$XDG_DATA_HOME" "$XDG_CACHE_HOME"
export QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1
unset WAYLAND_DISPLAY

exec 3<>display
Xvfb -displayfd 3 -screen 0 1280x960x24 -nolisten tcp 2>/dev/null &
processes+=($!)
until [ -s display ]; do sleep 0.1; done
DISPLAY=:$(head -n1 display)
export DISPLAY
"$build/src/ui/vorlan" spectra.avp 2>/dev/null &
processes+=($!)
sleep 4 # until the splash picture has left
main=$(xdotool search --onlyvisible --pid $! --name ' - Vorlan' | tail -n1)
xdotool windowsize "$main" 1160 800
xdotool windowmove "$main" 0 0
xdotool windowfocus "$main"
sleep 1

# at X Y: the mouse goes there
at() {
    xdotool mousemove "$1" "$2"
    sleep 0.3
}
keys() {
    for key in "$@"; do
        xdotool key "$key" # clearing modifiers would let go of the mouse
        sleep 0.2
    done
}
shot() {
    sleep 0.5
    import -silent -window "$main" shot.png
    convert shot.png -strip +dither -colors 64 -define png:compression-level=9 -define png:exclude-chunks=date,time \
        "PNG8:$pictures/$1.png"
}

keys ctrl+Tab # the tab of the spectra

# The line along the spectrum of W.
at 200 600
xdotool click 1
keys ctrl+e
at 201 600
at 181 587
shot tool-dissipation
keys Escape

# The range from lag 0 on.
at 200 250
xdotool click 1
keys alt+t s
at 60 150
xdotool mousedown 1
at 200 250
at 280 370
shot tool-scales
keys Escape
xdotool mouseup 1
sleep 0.5

# A triangle over the spectrum of W.
at 200 600
xdotool click 1
keys alt+t t
at 150 575
xdotool mousedown 1
at 200 580
at 250 580
xdotool mouseup 1
shot tool-triangle
keys Escape
