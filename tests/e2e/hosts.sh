# The small hosts: a date chosen in the calendar reaches each of them.
drive_hosts() {
    launch zeb17_minimal
    wait_for Calendar
    keys t
    sleep 0.5
    local title
    title=$(xdotool getwindowname "$window")
    check_text 'the title of the smallest host tells a date' yes "$([[ $title =~ [0-9]{4} ]] && echo yes || echo "$title")"
    stop_demo
    [ "$platform" = linux ] || return 0

    launch zeb17_qt_host
    wait_for 'zeb17 in Qt'
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
    xdotool mousemove $((X + WIDTH / 2)) $((Y + HEIGHT / 2)) click 1
    sleep 0.5
    check_text 'a press in the Qt host is heard' 1 "$(grep -c '[0-9]' "$heard")"
    picture qt-host
    stop_demo
}
