# The control itself: days, keys, wheel, buttons and tips.
drive_calendar() {
    start_demo
    check 'created' 'CALWND_ONNODATE'

    # November 2026 begins on a Sunday: cell 0 is the 1st, cell 30 the 1st of December.
    click_cell 9;  check 'press on a day' 'CALWND_ONSELCHANGE 2026-11-10 (press)'
    click_cell 9;  check 'press on the selected day' ''
    click_cell 30; check 'press on the next month' 'CALWND_ONSELCHANGE 2026-12-01 (press)'
    click_cell 1;  check 'press on the month before' 'CALWND_ONSELCHANGE 2026-11-30 (press)'

    keys Left;  check 'left'  'CALWND_ONSELCHANGE 2026-11-29'
    keys Up;    check 'up'    'CALWND_ONSELCHANGE 2026-11-22'
    keys Right; check 'right' 'CALWND_ONSELCHANGE 2026-11-23'
    keys Down;  check 'down'  'CALWND_ONSELCHANGE 2026-11-30'
    keys Home;  check 'home'  'CALWND_ONSELCHANGE 2026-11-01'
    keys End;   check 'end'   'CALWND_ONSELCHANGE 2026-11-30'
    keys Prior; check 'page up'   'CALWND_ONSELCHANGE 2026-10-30'
    keys Next;  check 'page down' 'CALWND_ONSELCHANGE 2026-11-30'
    keys t;     check 'today by T'  'CALWND_ONSELCHANGE 2026-11-24'
    keys F5;    check 'today by F5' 'CALWND_ONSELCHANGE 2026-11-24'
    keys Return; check 'enter' 'CALWND_ENTERKEY 2026-11-24'
    keys Escape; check 'esc'   'CALWND_ESCKEY 2026-11-24'

    click_at 150 100 5; check 'wheel towards the user' 'CALWND_ONSELCHANGE 2026-12-24'
    click_at 150 100 4; check 'wheel away' 'CALWND_ONSELCHANGE 2026-11-24'

    # Around the ring: Today, Options, Clear, previous and next month, previous and next year.
    keys Tab space; check 'Today by the space key' 'CALWND_ONSELCHANGE 2026-11-24'
    keys Tab Tab Tab space; check 'Clear by the space key' 'CALWND_ONNODATE'
    keys t; check 'today' 'CALWND_ONSELCHANGE 2026-11-24'
    keys Tab Tab Tab Tab space; check 'previous month by the space key' 'CALWND_ONSELCHANGE 2026-10-24'
    keys Tab space; check 'next month' 'CALWND_ONSELCHANGE 2026-11-24'
    keys Tab space; check 'previous year' 'CALWND_ONSELCHANGE 2025-11-24'
    keys Tab space; check 'next year' 'CALWND_ONSELCHANGE 2026-11-24'
    keys shift+Tab space; check 'back to the previous year' 'CALWND_ONSELCHANGE 2025-11-24'
    click_at $((width - 12)) 11; check 'press on next year' 'CALWND_ONSELCHANGE 2026-11-24'
    click_at $((width - 37)) 11; check 'press on next month' 'CALWND_ONSELCHANGE 2026-12-24'
    click_at 37 11; check 'press on previous month' 'CALWND_ONSELCHANGE 2026-11-24'

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
