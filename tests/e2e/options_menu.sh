# The options menu in a real window: its keys, its commands, what lands on the clipboard, and a print job.
drive_options_menu() {
    start_demo menu
    check 'created' "$(by_platform '' ZEB17_NODATE)"
    click_cell 9; check 'press on a day' "$(press_heard 2026-11-10)"

    open_menu; keys Down Down Return
    check_copied 'short form' '11/10/2026'
    open_menu; keys Up Up Down Down Return # around the end
    check_copied 'long form' 'Tuesday, November 10, 2026'
    check 'copying' ''

    open_menu; picture options-menu; keys Up Return
    check 'last eight weeks' "$(date_heard 2026-09-30)" "$(range_heard 2026-09-30 2026-11-24)"
    # Without mnemonics of their own the items answer to their first letters, which Wine does not know.
    open_menu
    [ "$platform" = linux ] && keys s s s Return || keys Down Down Down Down Down Down Down Return
    check 'previous month' "$(date_heard 2026-08-01)" "$(range_heard 2026-08-01 2026-08-31)"

    open_menu; keys Down Down Escape
    keys Down; check 'Esc leaves the calendar its keys' "$(date_heard 2026-08-08)"
    open_menu; click_cell 20
    keys Up; check 'so does a press elsewhere, and does nothing more' "$(date_heard 2026-08-01)"
    open_menu; open_menu
    keys Down; check 'so does a second press on the button' "$(date_heard 2026-08-08)"
    xdotool click --repeat 3 --delay 1 1; sleep 0.7 # open, closed, open
    keys Down Down Return
    check_copied 'after three clicks' '8/8/2026'
    keys Up; check 'after three clicks' "$(date_heard 2026-08-01)"

    "drive_printing_on_$platform"
    stop_demo
}

# The dialog cancelled, then a job to the file that it proposes, then one to a device in the place of this file.
drive_printing_on_linux() {
    local file=$work/print.pdf
    open_print_dialog; picture print-dialog; keys Escape
    wait_until '! is_shown Print'
    in_window; keys Next; check 'cancelled print' "$(date_heard 2026-09-01)"
    open_print_dialog; keys Return
    wait_until '[ -s "$work/print.pdf" ]'
    in_window
    pdftotext -layout "$file" "$work/month.txt"
    check_text 'the paper lies across' 1 "$(pdfinfo "$file" | awk '/^Page size/ { print ($3 > $5) }')"
    check_text 'printed month' 'September 2026' "$(head -n 1 "$work/month.txt" | xargs)"
    ln -sf /dev/full "$file"
    open_print_dialog; keys Return; sleep 1
    in_dialog Print; keys alt+y # it exists
    wait_until 'grep -q "could not do that" "$work/errors"'
    check_text 'a job that fails is told' 1 "$(grep -c 'could not do that' "$work/errors")"
    in_dialog; keys Return
    in_window; keys Prior; check 'after a job that failed' "$(date_heard 2026-08-01)"
    QT_QPA_PLATFORM=offscreen "$root/build/linux/bin/zeb17_desk" --data "$work/menu" --print "$file" >/dev/null 2>&1
    check_text 'the exit code of a print that fails' 1 $?
}

# Without a printer there is no dialog.
drive_printing_on_windows() {
    open_menu; keys Down Down Down Return; sleep 1; keys Escape
    keys Next; check 'print without a printer' "$(date_heard 2026-09-01)"
}

open_print_dialog() {
    open_menu; keys p
    wait_until 'is_shown Print'
    in_dialog Print
}

is_shown() { [ -n "$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null)" ]; } # TITLE

wait_until() { # CONDITION: for ten seconds at most
    for _ in $(seq 100); do
        ! eval "$1" || break
        sleep 0.1
    done
    sleep 0.3
}

open_menu() {
    click_at $((width / 2)) $((height - 12))
    sleep 0.7
}

check_copied() { check_text "copied $1" "$2" "$(timeout 5 xclip -o -selection clipboard)"; }
