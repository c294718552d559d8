import zeb17

window = zeb17.Window("Calendar", 400, 320)
window.add_calendar(on_event=lambda calendar, event: print(event, calendar.date))
zeb17.run()
