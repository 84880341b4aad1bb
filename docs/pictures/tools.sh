#!/usr/bin/env bash
# Makes the pictures of turbulence.md anew: the tools of the spectral stage in use on the measured record.
#
#   docs/pictures/tools.sh BUILD_DIRECTORY MEASURED_RECORD.csv
#
# The window is worked by mouse and keys on a display of its own; that needs Debian's xvfb, xdotool and imagemagick.
set -euo pipefail

pictures=$(cd "$(dirname "$0")" && pwd)
build=$(cd "$1" && pwd)
window=$build/src/ui/vorlan
record=$(realpath "$2")
source "$pictures/screen.sh"

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

begin_display
open_window spectra.avp 0 0

# at X Y: the mouse goes there
at() {
    xdotool mousemove "$1" "$2"
    sleep 0.3
}
shot() {
    sleep 0.5
    import -silent -window "$main" shot.png
    keep shot.png "$1" 64
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
