# Sourced by make.sh and tools.sh, which set "pictures" and "window": a folder and a display of their own, and hands that
# work the window there. Everything ends with the script.
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

# keep FILE.png NAME [COLOURS]: into the manual, with few colours and no remarks about when it was made
keep() {
    convert "$1" -strip +dither -colors "${3:-48}" -define png:compression-level=9 \
        -define png:exclude-chunks=date,time "PNG8:$pictures/$2.png"
}

begin_display() {
    # Settings, recent files and the document type of the user stay as they are.
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
}

# open_window FILE.avp X Y, or with an empty file name: leaves the process in "program" and the window in "main"
open_window() {
    "$window" ${1:+"$1"} 2>/dev/null &
    program=$!
    processes+=("$program")
    sleep 4 # until the splash picture has left
    main=$(xdotool search --onlyvisible --pid "$program" --name ' - Vorlan' | tail -n1)
    xdotool windowsize "$main" 1160 800
    xdotool windowmove "$main" "$2" "$3"
    xdotool windowactivate "$main" 2>/dev/null || xdotool windowfocus "$main"
    sleep 1
}
close_window() {
    kill "$program" 2>/dev/null || true
    wait "$program" 2>/dev/null || true
    # It was killed: the next start would offer to recover.
    rm -rf "$XDG_CONFIG_HOME/Brimsel/Vorlan-recovery"
}
keys() {
    for key in "$@"; do
        xdotool key "$key" # clearing modifiers would let go of the mouse
        sleep 0.25
    done
}
