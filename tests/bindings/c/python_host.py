"""python_host.py LIBRARY DIRECTORY: a host in Python creates a calendar, hears it, and works with special dates."""
import _ctypes
import datetime
import os
import shutil
import sys

os.environ["ZEB17_LIBRARY"], directory = sys.argv[1], sys.argv[2]
import zeb17  # noqa: E402

shutil.rmtree(directory, ignore_errors=True)
os.makedirs(directory)
zeb17.set_data_directory(directory)
today = datetime.date(2026, 7, 15)
zeb17.set_today(today)

with zeb17.Settings() as settings:
    first = settings.entries(zeb17.US)[0]
    assert first.text and first.shown == 1 and len(settings.entries(zeb17.US)) == 41
    entry = zeb17.Entry(text="Märchen", rule=zeb17.WEEKDAY, occurrence=7, weekday=6, month=11, color=0x4F9B2E)
    assert settings.add(zeb17.CUSTOM, entry) == 0
    assert settings.next(zeb17.CUSTOM, 0, today) == datetime.date(2026, 11, 27)
    settings.set_color(zeb17.US, 0xC96F2A)
    settings.save()
with zeb17.Settings() as settings:
    (entry,) = settings.entries(zeb17.CUSTOM)
    assert entry.text == "Märchen" and entry.occurrence == 7 and settings.group(zeb17.US).color == 0xC96F2A
    assert settings.describe(datetime.date(2026, 11, 27)).endswith("Märchen")
    try:
        settings.delete(zeb17.US, 0)
        raise AssertionError("a national entry was deleted")
    except zeb17.Error as error:
        assert error.code == "not_allowed" and str(error)

heard = []
window = zeb17.Window("Python", 420, 340)
calendar = window.add_calendar(on_event=lambda calendar, event: heard.append((event, calendar.date)))
assert calendar.date is None
calendar.date = datetime.date(2026, 12, 25)
assert heard[-1] == ("selchange", datetime.date(2026, 12, 25)), heard
assert calendar.settings.entries(zeb17.CUSTOM)[0].text == "Märchen"
post = zeb17._call("PostMessageA", zeb17.c_int, zeb17.c_void_p, zeb17.c_uint, zeb17.c_size_t, zeb17.c_ssize_t)
post(calendar.handle, 0x0100, 0x27, 1)  # the right arrow
post(calendar.handle, 0x0111, 42043, 0)  # the next month as a range
post(window.handle, 0x0010, 0, 0)  # close
zeb17.run()
assert heard[-3:] == [("selchange", datetime.date(2026, 12, 26)), ("selchange", datetime.date(2027, 1, 1)),
                      ("range", datetime.date(2027, 1, 1))], heard
assert calendar.range_end == datetime.date(2027, 1, 31)
try:
    calendar.refresh()
    raise AssertionError("the calendar is still there")
except zeb17.Error as error:
    assert error.code == "bad_handle"
# A library that is let go stays, and its window class with it.
_ctypes.dlclose(zeb17._lib._handle)
again = zeb17.Window("Again", 420, 340)
again.add_calendar().date = today
again.close()
print("the host in Python holds")
