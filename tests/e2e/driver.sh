# What the themes share: the virtual display, the sample host on it, the mouse and the keys, and the checks.
heard=$work/heard
failures=0
checks=0
desk_title='zeb17 desk calendar'

cleanup() {
    [ -z "${demo_pid:-}" ] || kill "$demo_pid" 2>/dev/null
    [ -z "${bus_pid:-}" ] || kill "$bus_pid" 2>/dev/null
    [ "$platform" = linux ] || WINEPREFIX=${ZEB17_WINEPREFIX:-$root/build/wine} wineserver -k 2>/dev/null
    [ -z "${xvfb_pid:-}" ] || kill "$xvfb_pid" 2>/dev/null
    rm -rf "$work"
}

start_display() {
    exec 7< <(Xvfb -displayfd 1 -screen 0 1280x1024x24 -noreset -nolisten tcp 2>/dev/null & echo "pid $!" >"$work/xvfb"; wait)
    read -r number <&7
    export DISPLAY=:$number
    read -r _ xvfb_pid <"$work/xvfb"
    [ "$platform" = linux ] || return 0
    { read -r DBUS_SESSION_BUS_ADDRESS; read -r bus_pid; } < <(dbus-daemon --session --fork --print-address=1 --print-pid=1)
    export DBUS_SESSION_BUS_ADDRESS
}

# launch PROGRAM [OPTION...]: runs a program of this platform; what it says goes to $heard and $work/errors. On Linux
# $work is its home, where the print dialog proposes to put a file.
launch() {
    local program=$1
    shift
    if [ "$platform" = linux ]; then
        HOME=$work QT_QPA_PLATFORM=xcb QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1 \
            "$root/build/linux/bin/$program" "$@" >"$heard" 2>"$work/errors" &
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

# start_demo [DATA]: the desk calendar on a data folder of that name in the work folder, made when it isn't there.
start_demo() {
    local data=$work/${1:-data}
    mkdir -p "$data"
    [ "$platform" = linux ] || data="Z:${data//\//\\}"
    launch zeb17_desk --today 2026-11-24 --locale en-US --data "$data"
    wait_for "$desk_title"
    seen=0
    measure
}

stop_demo() {
    kill "$demo_pid" 2>/dev/null
    wait "$demo_pid" 2>/dev/null
    demo_pid=
}

# The places of the control in the window, as the control lays them out.
measure() {
    local place
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
    place=$("where_on_$platform") || { cat "$work/errors"; exit 1; }
    read -r left top width height <<<"${place%$'\r'}"
    column=$(((width - 2) / 7)) rest=$(((width - 2) % 7))
    [ $rest -lt 5 ] || column=$((column + 1))
    local grid=$((height - 23 - 25 - 2 - 19))
    row=$((grid / 6)) rest=$((grid % 6))
    [ $rest -lt 5 ] || row=$((row + 1))
}
where_on_linux() { "$here/where"; }
where_on_windows() { "$root/scripts/wine-run" "$root/build/windows/bin/e2e_where.exe"; }

lines() { tr -d '\r' <"$heard" | wc -l; }

by_platform() { [ "$platform" = linux ] && echo "$1" || echo "$2"; } # LINUX WINDOWS

# What the host is to have heard: a signal of the widget, or a message of the control. Where a date is selected
# that was selected before, only the control tells it.
date_heard() { by_platform "selectionChanged $1" "ZEB17_SELCHANGE $1"; }
press_heard() { by_platform "selectionChanged $1"$'\n'"clicked $1" "ZEB17_SELCHANGE $1 (press)"; }
same_heard() { by_platform '' "ZEB17_SELCHANGE $1"; }
none_heard() { by_platform 'selectionChanged none' ZEB17_NODATE; }
range_heard() { by_platform "rangeSelected $1 to $2" "ZEB17_RANGE $1 to $2"; }

# check NAME EXPECTED...: the lines heard since the last check, after a moment; without those of another month shown.
check() {
    local name=$1 expected actual
    shift
    expected=$(printf '%s\n' "$@")
    for _ in $(seq 30); do
        actual=$(tr -d '\r' <"$heard" | tail -n +$((seen + 1)) | grep -v "${unheard:-^currentPageChanged}")
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

# Without a window manager a dialog of Qt's has the keyboard only if it is given to it.
in_dialog() { # its title, that of a message by default; the last one that opened
    [ "$platform" = windows ] || focus_window "$(xdotool search --onlyvisible --name "^${1:-$desk_title}\$" | grep -vx "$window" | tail -n 1)"
}
in_window() { [ "$platform" = windows ] || focus_window "$window"; }
focus_window() {
    [ -z "$1" ] || xdotool windowfocus "$1"
    sleep 0.5
}

click_cell() { # cell 0 to 41
    xdotool mousemove $((left + 1 + $1 % 7 * column + 8)) $((top + 23 + 1 + 19 + $1 / 7 * row + row / 2)) click 1
}
click_at() { xdotool mousemove $((left + $1)) $((top + $2)) click "${3:-1}"; }
keys() { xdotool key --delay 60 "$@"; }
picture() { [ -z "$pictures" ] || import -window root -crop "$((WIDTH))x$((HEIGHT))+$X+$Y" +repage "$pictures/$1-$platform.png"; }
