"""What is on the desktop, through its accessibility interface: the window of a host and what stands in it."""

import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

TITLE = "zeb17 desk calendar"


def until(condition, seconds=5):
    """Lets events in until the condition holds, and gives what it gave last."""
    end = time.monotonic() + seconds
    while not (result := condition()) and time.monotonic() < end:
        GLib.MainContext.default().iteration(False)
        time.sleep(0.01)
    return result


def children(accessible, first, last):
    return [accessible.get_child_at_index(i) for i in range(first, last)]


def find(role, below):
    """The first of that role below an object, none if there is none."""
    for child in children(below, 0, below.get_child_count()):
        if child and (child.get_role_name() == role or (child := find(role, child))):
            return child
    return None


def find_host():
    desktop = Atspi.get_desktop(0)
    for application in children(desktop, 0, desktop.get_child_count()):
        if application and (frame := find("frame", application)) and frame.get_name() == TITLE:
            return frame
    return None
