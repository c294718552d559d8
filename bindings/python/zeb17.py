"""The month calendar for Python, by ctypes. zeb17.h documents the functions; here they get Python's manners.

    import zeb17
    window = zeb17.Window("Calendar", 400, 320)
    calendar = window.add_calendar(on_event=lambda calendar, event: print(event, calendar.date))
    calendar.date = datetime.date(2026, 12, 25)
    zeb17.run()

A failure is a zeb17.Error, whose code is one of ERRORS. All is for one thread. ZEB17_LIBRARY names the library where
it is not found by its name.
"""
import ctypes
import datetime
import os
import sys
from ctypes import POINTER, byref, c_char_p, c_int, c_int32, c_ssize_t, c_size_t, c_uint, c_uint32, c_void_p

ERRORS = ("ok", "bad_argument", "bad_size", "bad_handle", "wrong_thread", "bad_date", "bad_rule", "bad_text",
          "small_buffer", "not_found", "not_allowed", "no_window", "file_failed", "file_busy", "file_damaged",
          "print_failed", "no_memory", "failed")
EVENTS = ("selchange", "nodate", "enterkey", "esckey", "webpage", "range")
SPECIAL_DATES, ALLOW_NO_DATE, OPTIONS, WEB_PAGE, DATE_RANGES = 1, 2, 4, 8, 16
ALL_FLAGS = SPECIAL_DATES | ALLOW_NO_DATE | OPTIONS | WEB_PAGE | DATE_RANGES
US, CANADA, NETHERLANDS, CUSTOM, TODO = range(5)
CALCULATED, DAY, WEEKDAY, NEAR_DAY, NEAR_WEEKDAY = range(5)
EVERY_YEAR, EVEN_YEARS, FROM_YEAR, UNTIL_YEAR, ONCE = 0, 2, 4, 5, 6


class Date(ctypes.Structure):
    """A day as the library has it: year 1 to 9999, month, day."""

    _fields_ = [(name, c_int32) for name in ("year", "month", "day")]

    @classmethod
    def of(cls, date):
        """The day of a datetime.date."""
        return cls(date.year, date.month, date.day)

    def to_date(self):
        """The datetime.date of the day."""
        return datetime.date(self.year, self.month, self.day)


class Entry(ctypes.Structure):
    """A special date: see zeb17_entry. The text stands beside it."""

    _fields_ = [("size", c_uint32), ("id", c_int32), ("shown", c_int32), ("color", c_uint32)] + [
        (name, c_int32)
        for name in ("rule", "day", "month", "occurrence", "weekday", "near_weekday", "working_day", "years", "year")]

    def __init__(self, **fields):
        super().__init__(ctypes.sizeof(type(self)), shown=1)
        self.text = fields.pop("text", None)
        for name, value in fields.items():
            setattr(self, name, value)


class GroupInfo(ctypes.Structure):
    """A group at a glance: count, shown, color; see zeb17_group_info."""

    _fields_ = [(name, c_uint32) for name in ("size", "count", "shown", "color")]


class _Point(ctypes.Structure):
    _fields_ = [("x", c_int32), ("y", c_int32)]


class _Rect(ctypes.Structure):
    _fields_ = [(name, c_int32) for name in ("left", "top", "right", "bottom")]


class _Message(ctypes.Structure):
    _fields_ = [("hwnd", c_void_p), ("message", c_uint), ("wparam", c_size_t), ("lparam", c_ssize_t),
                ("time", c_uint32), ("point", _Point)]


_WindowProc = ctypes.CFUNCTYPE(c_ssize_t, c_void_p, c_uint, c_size_t, c_ssize_t)


class _WindowClass(ctypes.Structure):
    _fields_ = [("style", c_uint), ("proc", _WindowProc), ("class_extra", c_int), ("window_extra", c_int)] + [
        (name, c_void_p) for name in ("instance", "icon", "cursor", "brush")] + [("menu", c_char_p), ("name", c_char_p)]


class Error(Exception):
    """What a call that fails raises; `code` is one of ERRORS."""

    def __init__(self, code):
        self.code = ERRORS[code]
        detail = _text(_lib.zeb17_last_detail)
        super().__init__(_lib.zeb17_error_text(code).decode() + (f" ({detail})" if detail else ""))


def _load():
    windows = sys.platform == "win32"
    lib = ctypes.CDLL(os.environ.get("ZEB17_LIBRARY") or ("zeb17.dll" if windows else "libzeb17.so.1"))
    lib.zeb17_create.restype = c_void_p
    lib.zeb17_create.argtypes = [c_void_p, c_int, POINTER(_Rect), c_uint32]
    lib.zeb17_error_text.restype = c_char_p
    lib.zeb17_message.restype = c_uint
    lib.zeb17_range_end.argtypes = [c_ssize_t, POINTER(Date)]
    return lib


def _load_system():
    """The calls for windows: the system's own, or those that the library has on Linux, under its names."""
    if sys.platform == "win32":
        return lambda name: getattr(ctypes.windll.user32, name)
    return lambda name: getattr(_lib, "zeb17_" + name)


_lib = _load()
_system = _load_system()


def _call(name, result, *types):
    function = _system(name)
    function.restype, function.argtypes = result, types
    return function


_create_window = _call("CreateWindowExA", c_void_p, c_uint32, c_char_p, c_char_p, c_uint32, c_int, c_int, c_int, c_int,
                       c_void_p, c_void_p, c_void_p, c_void_p)
_default = _call("DefWindowProcA", c_ssize_t, c_void_p, c_uint, c_size_t, c_ssize_t)
_move = _call("MoveWindow", c_int, c_void_p, c_int, c_int, c_int, c_int, c_int)
_get_message = _call("GetMessageA", c_int, POINTER(_Message), c_void_p, c_uint, c_uint)
_translate = _call("TranslateMessage", c_int, POINTER(_Message))
_dispatch = _call("DispatchMessageA", c_ssize_t, POINTER(_Message))
_get_area = _call("GetClientRect", c_int, c_void_p, POINTER(_Rect))
_show = _call("ShowWindow", c_int, c_void_p, c_int)
_destroy = _call("DestroyWindow", c_int, c_void_p)
_focus = _call("SetFocus", c_void_p, c_void_p)
_quit = _call("PostQuitMessage", None, c_int)
_register_class = _call("RegisterClassA", c_uint, POINTER(_WindowClass))


def _check(code):
    if code:
        raise Error(code)


def _text(function, *arguments):
    length = c_uint32()
    function(*arguments, None, 0, byref(length))
    buffer = ctypes.create_string_buffer(length.value + 1)
    _check(function(*arguments, buffer, len(buffer), None))
    return buffer.value.decode()


class Settings:
    """Special dates: of the user's data file, or, with a calendar, that calendar's own."""

    def __init__(self, calendar=None):
        self._handle = c_void_p()
        self._lent = calendar is not None
        _check(_lib.zeb17_control_settings(calendar.handle, byref(self._handle)) if calendar else
               _lib.zeb17_settings_open(byref(self._handle)))

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        """Ends settings that were opened; those of a calendar stay."""
        if not self._lent:
            _check(_lib.zeb17_settings_close(self._handle))

    def save(self):
        """Writes the data file, whole or not at all."""
        _check(_lib.zeb17_settings_save(self._handle))

    def describe(self, date):
        """What falls on a day, a line for each date; empty for nothing."""
        return _text(_lambda_with_color(_lib.zeb17_describe), self._handle, byref(Date.of(date)))

    def group(self, group):
        """The GroupInfo of a group."""
        info = GroupInfo(ctypes.sizeof(GroupInfo))
        _check(_lib.zeb17_group_get(self._handle, group, byref(info)))
        return info

    def set_color(self, group, color):
        """Gives all entries of a group a colour, 0x00BBGGRR."""
        _check(_lib.zeb17_group_set_color(self._handle, group, color))

    def show(self, group, shown=True):
        """Shows or hides all entries of a group."""
        _check(_lib.zeb17_group_set_shown(self._handle, group, int(shown)))

    def entries(self, group):
        """All entries of a group, with their texts."""
        return [self._entry(group, index) for index in range(self.group(group).count)]

    def _entry(self, group, index):
        entry = Entry()
        _check(_lib.zeb17_entry_get(self._handle, group, index, byref(entry)))
        entry.text = _text(_lib.zeb17_entry_text, self._handle, group, index)
        return entry

    def add(self, group, entry):
        """Adds an entry that has a text, and gives its index."""
        index = c_uint32()
        _check(_lib.zeb17_entry_add(self._handle, group, byref(entry), (entry.text or "").encode(), byref(index)))
        return index.value

    def change(self, group, index, entry):
        """Replaces an entry; of a national one only `shown` and `color`."""
        text = entry.text.encode() if entry.text and group in (CUSTOM, TODO) else None
        _check(_lib.zeb17_entry_set(self._handle, group, index, byref(entry), text))

    def delete(self, group, index):
        """Deletes an entry of the user's."""
        _check(_lib.zeb17_entry_delete(self._handle, group, index))

    def next(self, group, index, start):
        """The next date from a day on; None if there is none."""
        date = Date()
        code = _lib.zeb17_entry_next(self._handle, group, index, byref(Date.of(start)), byref(date))
        if ERRORS[code] == "not_found":
            return None
        _check(code)
        return date.to_date()


def _lambda_with_color(function):
    return lambda *arguments: function(*arguments, None)


class Calendar:
    """A control; on_event(calendar, name) hears one of EVENTS, and after "range" range_end holds its last day."""

    def __init__(self, parent, number, rect, flags, on_event):
        self.on_event = on_event or (lambda calendar, event: None)
        self.range_end = None
        self.handle = c_void_p(_lib.zeb17_create(parent, number, byref(_Rect(*rect)), flags))
        if not self.handle:
            raise Error(_lib.zeb17_last_result())

    @property
    def date(self):
        """The date selected, or None; to be set likewise."""
        date, selected = Date(), c_int()
        _check(_lib.zeb17_get_date(self.handle, byref(date), byref(selected)))
        return date.to_date() if selected.value else None

    @date.setter
    def date(self, date):
        """Selects a day; None selects none."""
        _check(_lib.zeb17_set_date(self.handle, byref(Date.of(date)) if date else None))

    @property
    def settings(self):
        """The special dates that the calendar shows; refresh() shows what was changed in them."""
        return Settings(self)

    def refresh(self):
        """Shows what was changed in the settings."""
        _check(_lib.zeb17_refresh(self.handle))

    def reload(self):
        """Reads the data file anew."""
        _check(_lib.zeb17_reload(self.handle))

    def save_web_page(self, path):
        """Writes the month shown as a web page."""
        _check(_lib.zeb17_save_web_page(self.handle, os.fsencode(path)))

    def print(self, path=None):
        """Prints the month shown: to a PDF file, or where the user chooses."""
        _check(_lib.zeb17_print(self.handle, os.fsencode(path) if path else None))


class Window:
    """A top-level window for calendars. run() ends when the last one is closed."""

    _open = {}
    _class_name = b"zeb17 Python window"
    _events = {}

    def __init__(self, title, width, height):
        self._calendars = {}
        self._ensure_class()
        self.handle = _create_window(0, self._class_name, title.encode(), 0x00CF0000, 100, 100, width, height, None,
                                     None, None, None)
        Window._open[self.handle] = self
        _show(self.handle, 5)

    @classmethod
    def _ensure_class(cls):
        if not cls._events:
            _check(_lib.zeb17_register())
            cls._events = {_lib.zeb17_message(number): name for number, name in enumerate(EVENTS)}
            cls._proc = _WindowProc(cls._handle_message)
            _register_class(byref(_WindowClass(proc=cls._proc, name=cls._class_name)))

    def add_calendar(self, rect=None, flags=ALL_FLAGS, on_event=None):
        """Makes a Calendar at left, top, right, bottom in pixels of the window; without these it fills the window."""
        number = len(self._calendars) + 1
        calendar = Calendar(self.handle, number, rect or self._area(), flags, on_event)
        calendar.fills = rect is None
        self._calendars[number] = calendar
        _focus(calendar.handle)
        return calendar

    def _area(self):
        area = _Rect()
        _get_area(self.handle, byref(area))
        return area.left, area.top, area.right, area.bottom

    def _fit(self):
        for calendar in self._calendars.values():
            if calendar.fills:
                _move(calendar.handle, *self._area(), 1)

    def close(self):
        """Destroys the window and its calendars."""
        _destroy(self.handle)

    @staticmethod
    def _handle_message(handle, message, wparam, lparam):
        self = Window._open.get(handle)
        if self and message in Window._events and wparam in self._calendars:
            self._tell(self._calendars[wparam], Window._events[message], lparam)
            return 0
        if self and message == 0x0005:  # WM_SIZE
            self._fit()
        if self and message == 0x0002:  # WM_DESTROY
            del Window._open[handle]
            if not Window._open:
                _quit(0)
        return _default(handle, message, wparam, lparam)

    @staticmethod
    def _tell(calendar, event, lparam):
        if event == "range":
            date = Date()
            _check(_lib.zeb17_range_end(lparam, byref(date)))
            calendar.range_end = date.to_date()
        calendar.on_event(calendar, event)


def run():
    """Serves all windows until the last one is closed."""
    message = _Message()
    while _get_message(byref(message), None, 0, 0) > 0:
        _translate(byref(message))
        _dispatch(byref(message))


def enable_todo():
    """Puts the to-do list into use, for the process and to its end."""
    _check(_lib.zeb17_enable_todo())


def set_data_directory(directory):
    """Keeps the data file in that directory from now on; "" stands for the user's own. Before the first calendar."""
    _check(_lib.zeb17_set_data_directory(os.fsencode(directory)))


def set_today(date):
    """Stops the clock at that day; None lets it run again."""
    _check(_lib.zeb17_set_today(byref(Date.of(date)) if date else None))
