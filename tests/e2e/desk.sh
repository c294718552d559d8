# The desk calendar around the control: the user's own dates made, kept, changed and deleted, and what goes wrong.

green='2E9B4F'

# The colour at the place of a cell's dot, in hexadecimal digits.
dot() {
    local x=$((left + 1 + ($1 % 7 + 1) * column - 9)) y=$((top + 23 + 1 + 19 + $1 / 7 * row + 8))
    import -window root -crop "1x1+$x+$y" +repage -depth 8 rgb:- | od -An -tx1 | tr -d ' \n' | tr a-f A-F
}
has_dot() { # NAME CELL COLOUR
    for _ in $(seq 20); do
        [ "$(dot "$2")" != "$3" ] || break
        sleep 0.1
    done
    check_text "$1" "$3" "$(dot "$2")"
}

# Gives the keyboard to the list of the user's dates: to its first row, or as it is.
go_to_dates() {
    keys alt+m ${1:+Home}
    sleep 0.3
}
press_button() { # the panel's button by its mnemonic, from the list of dates
    go_to_dates
    keys "alt+$1"
    sleep 0.7
}
add_entry() { # TEXT KEY...: the keys go to the editor after the text
    press_button a
    in_dialog 'New Date'
    xdotool type --delay 40 "$1"
    shift
    keys "$@" Return
    sleep 0.5
    in_window
}
close_demo() {
    keys ctrl+q
    sleep 1
}
is_open() { kill -0 "$demo_pid" 2>/dev/null && echo open || echo closed; }
told() { grep -c "$1" "$work/errors"; }
data_file() { find "$work/$1" -maxdepth 3 -type f ! -name '*.ini' | head -n 1; }

drive_desk() {
    start_demo desk
    # A new entry begins with the 24th of November; each Down chooses the next in a list.
    add_entry Fair Tab Tab Tab Tab Up
    has_dot 'a fixed day' 22 $green
    add_entry Market Tab Tab Down Tab Down Down Down Tab Home Down Down Down
    has_dot 'the fourth Wednesday of November' 24 $green
    add_entry Parade Tab Tab Down Down Tab Home Down Down Down Down Down Tab End
    has_dot 'the Friday after the 24th' 26 $green
    add_entry Feast Tab Tab Down Down Down Tab Home Down Tab End Tab Down Down Down Down Tab Home Tab Tab Down Down Tab 2 0 2 6
    has_dot 'the Monday after the last Sunday of November, from this year on' 29 $green
    add_entry Bake Tab Down
    has_dot 'a to-do entry' 23 $green
    picture desk

    xdotool mousemove $((left + 1 + column + 20)) $((top + 43 + 3 * row + row / 2)) mousemove_relative 1 0
    local around="120x60+$((left + column + 10))+$((top + 43 + 3 * row + row / 2))"
    import -window root -crop "$around" "$work/before.png"
    sleep 1.5
    import -window root -crop "$around" "$work/after.png"
    check_text 'a tip of an own date' shown "$(cmp -s <(convert "$work/before.png" rgb:-) <(convert "$work/after.png" rgb:-) && echo none || echo shown)"
    picture desk-tip

    press_button s
    stop_demo
    start_demo desk
    for cell in 22 24 26 29 23; do has_dot "cell $cell after a restart" $cell $green; done

    go_to_dates first
    keys Return
    sleep 0.7
    in_dialog 'Edit Date'
    keys End shift+Home
    xdotool type --delay 40 Show
    picture desk-editor
    keys Tab Tab Tab Up Return # the list of an entry that exists is fixed
    in_window
    has_dot 'the edited date has left its day' 22 FFFFFF
    has_dot 'the edited date on its new day' 21 $green
    keys Delete
    has_dot 'the deleted date' 21 FFFFFF
    if [ "$platform" = linux ]; then
        keys ctrl+z
        has_dot 'the deleted date is back' 21 $green
        keys Delete
    fi

    close_demo
    in_dialog
    keys Escape
    sleep 0.5
    in_window
    check_text 'cancelled closing' open "$(is_open)"
    close_demo
    in_dialog
    keys Return
    sleep 1
    check_text 'saved and closed' closed "$(is_open)"
    start_demo desk
    has_dot 'the deletion was saved' 21 FFFFFF
    stop_demo

    drive_failures
}

drive_failures() {
    local file
    file=$(data_file desk)
    printf 'damaged' >"$file"
    start_demo desk
    check_text 'a damaged file is told' 1 "$(told 'could not be read')"
    in_dialog
    keys Return
    stop_demo
    check_text 'a damaged file is left as it is' damaged "$(cat "$file")"

    rm "$file"
    start_demo desk
    add_entry Fair
    mkdir "$file"
    press_button s
    check_text 'a save that fails is told' 1 "$(told "$(by_platform 'could not do that' 'could not be saved')")"
    in_dialog
    keys Return
    sleep 0.5
    in_window
    rmdir "$file"
    press_button s
    check_text 'the dates are still there to be saved' yes "$([ -s "$file" ] && echo yes || echo no)"
    stop_demo
}
