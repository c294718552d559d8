# The control itself: days, keys, wheel, buttons and tips.
drive_calendar() {
    start_demo
    check 'created' "$(by_platform '' ZEB17_NODATE)"

    # November 2026 begins on a Sunday: cell 0 is the 1st, cell 30 the 1st of December.
    click_cell 9;  check 'press on a day' "$(press_heard 2026-11-10)"
    click_cell 9;  check 'press on the selected day' "$(by_platform 'clicked 2026-11-10' '')"
    click_cell 30; check 'press on the next month' "$(press_heard 2026-12-01)"
    click_cell 1;  check 'press on the month before' "$(press_heard 2026-11-30)"

    keys Left;  check 'left'  "$(date_heard 2026-11-29)"
    keys Up;    check 'up'    "$(date_heard 2026-11-22)"
    keys Right; check 'right' "$(date_heard 2026-11-23)"
    keys Down;  check 'down'  "$(date_heard 2026-11-30)"
    keys Home;  check 'home'  "$(date_heard 2026-11-01)"
    keys End;   check 'end'   "$(date_heard 2026-11-30)"
    keys Prior; check 'page up'   "$(date_heard 2026-10-30)"
    keys Next;  check 'page down' "$(date_heard 2026-11-30)"
    keys t;     check 'today by T'  "$(date_heard 2026-11-24)"
    keys F5;    check 'today by F5' "$(same_heard 2026-11-24)"
    keys Return; check 'enter' "$(by_platform 'activated 2026-11-24' 'ZEB17_ENTERKEY 2026-11-24')"
    keys Escape; check 'esc'   "$(by_platform dismissed 'ZEB17_ESCKEY 2026-11-24')"

    click_at 150 100 5; check 'wheel towards the user' "$(date_heard 2026-12-24)"
    click_at 150 100 4; check 'wheel away' "$(date_heard 2026-11-24)"

    # Around the ring: Today, Options, Clear, previous and next month, previous and next year.
    keys Tab space; check 'Today by the space key' "$(same_heard 2026-11-24)"
    keys Tab Tab Tab space; check 'Clear by the space key' "$(none_heard)"
    keys t; check 'today' "$(date_heard 2026-11-24)"
    keys Tab Tab Tab Tab space; check 'previous month by the space key' "$(date_heard 2026-10-24)"
    keys Tab space; check 'next month' "$(date_heard 2026-11-24)"
    keys Tab space; check 'previous year' "$(date_heard 2025-11-24)"
    keys Tab space; check 'next year' "$(date_heard 2026-11-24)"
    keys shift+Tab space; check 'back to the previous year' "$(date_heard 2025-11-24)"
    click_at $((width - 12)) 11; check 'press on next year' "$(date_heard 2026-11-24)"
    click_at $((width - 37)) 11; check 'press on next month' "$(date_heard 2026-12-24)"
    click_at 37 11; check 'press on previous month' "$(date_heard 2026-11-24)"

    if [ "$platform" = linux ]; then
        keys Next
        unheard='^$' check 'another month is told before its date' 'currentPageChanged 2026 12' 'selectionChanged 2026-12-24'
        keys Prior; check 'back' "$(date_heard 2026-11-24)"
    fi

    [ "$platform" = windows ] || drive_layouts

    # Tips: of a step button, and of the 26th, Thanksgiving in the United States.
    xdotool mousemove $((left + 12)) $((top + 12)) mousemove_relative 1 0
    sleep 1.5
    picture tip-button
    xdotool mousemove $((left + 1 + 4 * column + 20)) $((top + 43 + 3 * row + row / 2)) mousemove_relative 1 0
    sleep 1.5
    picture tip-day
    check 'hovering' ''
    stop_demo
}

# On layouts that are not Latin a letter is known by the place of its key: 28 is that of T, 54 that of C.
drive_layouts() {
    for layout in ru gr us; do
        setxkbmap "$layout"
        sleep 0.5
        keys alt+54; check "Clear by Alt and the key of C, $layout" "$(none_heard)"
        keys 28; check "today by the key of T, $layout" "$(date_heard 2026-11-24)"
    done
}
