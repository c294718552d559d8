# What the themes share: the virtual display, the sample host on it, the mouse and the keys, and the checks.
heard=$work/heard
failures=0
checks=0

cleanup() {
    [ -z "${demo_pid:-}" ] || kill "$demo_pid" 2>/dev/null
    [ "$platform" = linux ] || WINEPREFIX=${ZEB17_WINEPREFIX:-$root/build/wine} wineserver -k 2>/dev/null
    [ -z "${xvfb_pid:-}" ] || kill "$xvfb_pid" 2>/dev/null
    rm -rf "$work"
}

start_display() {
    exec 7< <(Xvfb -displayfd 1 -screen 0 1280x1024x24 -noreset -nolisten tcp 2>/dev/null & echo "pid $!" >"$work/xvfb"; wait)
    read -r number <&7
    export DISPLAY=:$number
    read -r _ xvfb_pid <"$work/xvfb"
}

# launch PROGRAM [OPTION...]: runs a program of this platform; what it says goes to $heard and $work/errors. On Linux
# $work is its home, where the print dialog proposes to put a file.
launch() {
    local program=$1
    shift
    if [ "$platform" = linux ]; then
        HOME=$work QT_QPA_PLATFORM=xcb "$root/build/linux/bin/$program" "$@" >"$heard" 2>"$work/errors" &
    else
        "$root/scripts/wine-run" "$root/build/windows/bin/$program.exe" "$@" >"$heard" 2>"$work/errors" &
    fi
    demo_pid=$!
}

# wait_for TITLE: waits for the window of that title and leaves its number in $window.
wait_for() {
    for _ in $(seq 600); do
        window=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1)
        [ -z "$window" ] || break
        sleep 0.1
    done
    [ -n "$window" ] || { echo "the window '$1' did not come up"; cat "$work/errors"; exit 1; }
    sleep 1
    xdotool windowfocus "$window"
    sleep 0.5
}

# start_demo [DATA]: the sample host on a data folder of that name in the work folder, made when it isn't there.
start_demo() {
    local data=$work/${1:-data}
    mkdir -p "$data"
    [ "$platform" = linux ] || data="Z:${data//\//\\}"
    launch zeb17_demo --today 2026-11-24 --locale en-US --data "$data"
    wait_for 'zeb17 demo'
    seen=0
    measure
}

stop_demo() {
    kill "$demo_pid" 2>/dev/null
    wait "$demo_pid" 2>/dev/null
    demo_pid=
}

# The places of the control in the window, as the host and the control lay them out.
measure() {
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
    # Without a window manager Wine draws a frame and a caption of its own inside the window.
    [ "$platform" = linux ] || { X=$((X + 4)) Y=$((Y + 23)) WIDTH=$((WIDTH - 8)) HEIGHT=$((HEIGHT - 27)); }
    left=$((X + 12)) top=$((Y + 12))
    width=$((WIDTH - 36 - 280)) height=$((HEIGHT - 24 - 8 - 20 - 80))
    column=$(((width - 2) / 7)) rest=$(((width - 2) % 7))
    [ $rest -lt 5 ] || column=$((column + 1))
    local grid=$((height - 23 - 25 - 2 - 19))
    row=$((grid / 6)) rest=$((grid % 6))
    [ $rest -lt 5 ] || row=$((row + 1))
}

lines() { tr -d '\r' <"$heard" | wc -l; }

# check NAME EXPECTED...: the lines heard since the last check, after a moment.
check() {
    local name=$1 expected actual
    shift
    expected=$(printf '%s\n' "$@")
    for _ in $(seq 30); do
        actual=$(tr -d '\r' <"$heard" | tail -n +$((seen + 1)))
        [ "$actual" != "$expected" ] || break
        sleep 0.1
    done
    seen=$(lines)
    check_text "$name" "$expected" "$actual"
}

check_text() { # NAME EXPECTED ACTUAL
    local name=$1 expected=$2 actual=$3
    checks=$((checks + 1))
    [ "$actual" = "$expected" ] && return
    failures=$((failures + 1))
    printf 'FAILED %s\n  expected: %s\n  found:    %s\n' "$name" "${expected//$'\n'/ | }" "${actual//$'\n'/ | }"
}

click_cell() { # cell 0 to 41
    xdotool mousemove $((left + 1 + $1 % 7 * column + 8)) $((top + 23 + 1 + 19 + $1 / 7 * row + row / 2)) click 1
}
click_at() { xdotool mousemove $((left + $1)) $((top + $2)) click "${3:-1}"; }
keys() { xdotool key --delay 60 "$@"; }
picture() { [ -z "$pictures" ] || import -window root -crop "$((WIDTH))x$((HEIGHT))+$X+$Y" +repage "$pictures/$1-$platform.png"; }
