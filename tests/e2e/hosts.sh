# The smallest host: a date chosen in the calendar reaches it.
drive_hosts() {
    launch zeb17_minimal
    wait_for Calendar
    keys t
    sleep 0.5
    local title
    title=$(xdotool getwindowname "$window")
    check_text 'the title of the smallest host tells a date' yes "$([[ $title =~ [0-9]{4} ]] && echo yes || echo "$title")"
    stop_demo
}
