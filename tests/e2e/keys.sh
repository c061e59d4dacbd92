# shellcheck shell=bash
# Real keys and clicks on the windows of a program, found by their titles. Sourced by the end-to-end scripts.

patience=200 # tenths of a second

# await_window TITLE: until a visible window has that title (a regular expression).
await_window() {
    local i
    for ((i = 0; i < patience; ++i)); do
        if xdotool search --onlyvisible --name "$1" >/dev/null 2>&1; then
            sleep 0.2 # painted and settled
            return
        fi
        sleep 0.1
    done
    echo "no window $1; there are:" >&2
    xdotool search --onlyvisible --name . 2>/dev/null | while read -r id; do xdotool getwindowname "$id" >&2; done
    return 1
}

await_no_window() {
    local i
    for ((i = 0; i < patience; ++i)); do
        xdotool search --onlyvisible --name "$1" >/dev/null 2>&1 || return 0
        sleep 0.1
    done
    echo "the window $1 stays" >&2
    return 1
}

press() {
    xdotool key --clearmodifiers "$@"
    sleep 0.2
}

type_text() {
    xdotool type --delay 15 -- "$1"
    sleep 0.2
}

activate() {
    local id
    id=$(xdotool search --onlyvisible --name "$1" | tail -n 1)
    xdotool windowactivate --sync "$id"
    sleep 0.3
}

# click_at X Y: a click in the active window, from its upper left corner.
click_at() {
    local id
    id=$(xdotool getactivewindow)
    xdotool mousemove --window "$id" "$1" "$2" click 1
    sleep 0.3
}

# click_from_corner left|right DX DY: a click in the active window, from its lower left or lower right corner.
click_from_corner() {
    local id WIDTH HEIGHT x=$2
    id=$(xdotool getactivewindow)
    eval "$(xdotool getwindowgeometry --shell "$id" | grep -E '^(WIDTH|HEIGHT)=')"
    [[ $1 == left ]] || x=$((WIDTH - $2))
    xdotool mousemove --window "$id" "$x" $((HEIGHT - $3)) click 1
    sleep 0.3
}
