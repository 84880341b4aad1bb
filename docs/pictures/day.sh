#!/usr/bin/env bash
# A new user's day in the window: a table comes in, is looked at, clipped wrongly, brought back, edited, filtered; spectra,
# a dissipation rate, a figure, a recipe and a report come out. By keyboard alone, or by mouse:
#
#   docs/pictures/day.sh keyboard|mouse FOLDER [BUILD_DIRECTORY]
#
# FOLDER gets pictures of every step, what the day made, and what each step took in clicks and keys. The display is one of its
# own; it needs what make.sh needs. The mouse goes where Debian's default fonts put things at 96 dots per inch.
set -euo pipefail

hands=$1
mkdir -p "$2"
folder=$(realpath "$2")
pictures=$(cd "$(dirname "$0")" && pwd)
build=$(cd "${3:-$pictures/../../build/release}" && pwd)
batch=$build/src/batch/vorlan-batch
window=$build/src/ui/vorlan

source "$pictures/screen.sh"

clicks=0
strokes=0
step=0
press() {
    strokes=$((strokes + $#))
    keys "$@"
}
text() {
    strokes=$((strokes + ${#1}))
    xdotool type --delay 15 "$1"
    sleep 0.4
}
click() { # X Y [BUTTON [TIMES]]
    clicks=$((clicks + ${4:-1}))
    xdotool mousemove "$1" "$2"
    sleep 0.2
    xdotool click --repeat "${4:-1}" --delay 60 "${3:-1}"
    sleep 0.6
}
# in_dialog X Y [TIMES]: of the window in front; negative places count from its right and its bottom
in_dialog() {
    local left top width height
    read -r left top width height < <(xwininfo -id "$(xdotool getactivewindow)" |
        awk '/Absolute upper-left|Width:|Height:/ { printf "%s ", $NF } END { print "" }')
    click $((left + ($1 < 0 ? width : 0) + $1)) $((top + ($2 < 0 ? height : 0) + $2)) 1 "${3:-1}"
}
ok() { in_dialog -138 -23; }
# name_file FILE: typed, and taken by the button of the file dialog
name_file() {
    text "$1"
    in_dialog -300 -57 # the list of proposals goes
    in_dialog -53 -57
}
menu() { # X of the menu, Y of the item
    click "$1" 49
    click $(($1 + 20)) $((49 + $2))
}
drag() { # X1 Y1 X2 Y2
    clicks=$((clicks + 1))
    xdotool mousemove "$1" "$2" mousedown 1
    sleep 0.2
    xdotool mousemove $((($1 + $3) / 2)) $((($2 + $4) / 2))
    sleep 0.2
    xdotool mousemove "$3" "$4"
    sleep 0.2
    xdotool mouseup 1
    sleep 0.5
}
shot() {
    import -window root "$folder/$hands-$(printf %02d "$step")-$1.png"
}
# done_with NAME: a picture of where the step has led to, and what it took
done_with() {
    sleep 1
    shot "$1"
    step=$((step + 1))
    printf '%-12s %3d clicks %3d keys\n' "$1" "$clicks" "$strokes" >>"$folder/$hands.txt"
    clicks=0
    strokes=0
}

by_keyboard() {
    press alt+f i
    text "$folder/flume.csv"
    press Return
    sleep 1
    shot import-dialog
    press Return
    done_with import
    press F6 F6 alt+l Down
    shot stresses
    press Up
    done_with look
    press alt+p z ctrl+Left ctrl+Left ctrl+Left shift+Right
    shot interval
    press Return
    done_with clip
    press ctrl+z
    done_with undo
    press alt+p e alt+c
    shot edit-dialog
    press Return
    done_with edit
    press alt+p d alt+w
    text 0.1
    shot filter-dialog
    press Return
    done_with filter
    press alt+a p
    shot spectra-dialog
    press Return
    done_with spectra
    press shift+F6 ctrl+e ctrl+Right ctrl+Up
    shot dissipation-tool
    press Return
    shot dissipation-question
    press Return
    done_with dissipation
    press alt+f g
    shot figure-dialog
    press Return
    text "$folder/day.png"
    press Return
    done_with figure
    press alt+f r
    text "$folder/day.toml"
    press Return
    done_with recipe
    press ctrl+p alt+d alt+f
    text "$folder/day.pdf"
    shot report-dialog
    press Return
    done_with report
    press ctrl+s
    text "$folder/day.avp"
    press Return
    done_with saved
}

by_mouse() {
    local file=60 edit=97 preprocessing=190
    menu $file 109
    name_file "$folder/flume.csv"
    sleep 1
    ok
    done_with import
    click 900 700
    click 300 650
    done_with look
    menu $preprocessing 21
    drag 160 300 175 300
    done_with clip
    menu $edit 21
    done_with undo
    menu $preprocessing 89
    in_dialog 28 50
    shot edit-dialog
    ok
    done_with edit
    menu $preprocessing 111
    in_dialog 270 211 2
    text 0.1
    shot filter-dialog
    ok
    done_with filter
    click 112 105
    ok
    done_with spectra
    click 300 650
    click 410 105
    click 330 600
    shot dissipation-tool
    click 330 600 3
    shot dissipation-question
    ok
    done_with dissipation
    menu $file 177
    ok
    name_file "$folder/day.png"
    done_with figure
    menu $file 199
    name_file "$folder/day.toml"
    done_with recipe
    menu $file 289
    in_dialog 30 76
    in_dialog 190 238 3
    text "$folder/day.pdf"
    shot report-dialog
    ok
    done_with report
    menu $file 65
    name_file "$folder/day.avp"
    done_with saved
}

rm -f "$folder/$hands"* "$folder"/day.*
"$batch" simulate --out made.avp --name flume --seed 1 --interval 0.04 --length 120 --mean 50,5,0 --noise-mean 0,0,0 \
    --noise-variance 3,2,1 --harmonic U:6:8:0 --harmonic W:2:8:180 --harmonic U:3:2:40 --harmonic W:1:2:220
"$batch" export velocities --time --separator comma --out made.csv made.avp
(echo "time,u [cm/s],v,w" && cat made.csv) >"$folder/flume.csv"
begin_display
openbox --sm-disable 2>/dev/null &
processes+=($!)
sleep 1
open_window '' 40 40
done_with begin
"by_$hands"
close_window
cat "$folder/$hands.txt"
