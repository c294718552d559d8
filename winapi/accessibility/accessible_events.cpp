// Events of windows, passed on to hooks and, through Qt, to screen readers.
#include "accessible_element.h"

#include "clock.h"
#include "rooms_above.h"

#include <QAccessible>
#include <QWidget>

#include <algorithm>

using namespace winapi;

namespace {

struct EventHook
{
    HWINEVENTHOOK handle;
    DWORD first;
    DWORD last;
    WINEVENTPROC procedure;
};

std::vector<EventHook>& hooks()
{
    static auto& set = *new std::vector<EventHook>; // never destroyed: a program may leave windows behind
    return set;
}

void tell(QAccessibleInterface* element, QAccessible::Event event)
{
    if (!element)
        return;
    QAccessibleEvent news(element, event);
    QAccessible::updateAccessibility(&news);
}

struct Selection
{
    HWND window = nullptr;
    LONG item = CHILDID_SELF;
};

Selection& lastSelection()
{
    static auto& last = *new Selection;
    return last;
}

// A window has one selected item at a time: selecting one takes the selection from the one before.
void tellSelection(Window& window, LONG item)
{
    const Selection before = std::exchange(lastSelection(), {window.handle, item});
    if (before.window == window.handle && before.item != item && before.item != CHILDID_SELF)
        tell(accessibleOf(window, before.item), QAccessible::SelectionRemove);
    if (item != CHILDID_SELF)
        tell(accessibleOf(window, item), QAccessible::SelectionAdd);
}

void forgetItems(HWND window)
{
    forgetAccessibleItems(window);
    if (lastSelection().window == window)
        lastSelection() = {};
}

void tellDesktop(DWORD event, Window& window, LONG item)
{
    const auto element = [&] {
        return item == CHILDID_SELF ? accessibleOf(window) : accessibleOf(window, item);
    };
    switch (event) {
    case EVENT_OBJECT_REORDER:
        forgetItems(window.handle);
        break;
    case EVENT_OBJECT_FOCUS:
        tell(element(), QAccessible::Focus);
        break;
    case EVENT_OBJECT_SELECTION:
        tellSelection(window, item);
        break;
    case EVENT_OBJECT_NAMECHANGE:
        tell(element(), QAccessible::NameChanged);
        break;
    default:
        break;
    }
}

}

void winapi::tellFocusBelow(QWidget& host)
{
    QAccessibleInterface* const element = QAccessible::queryAccessibleInterface(&host);
    tell(element ? element->focusChild() : nullptr, QAccessible::Focus);
}

void NotifyWinEvent(DWORD event, HWND handle, LONG objectId, LONG child)
{
    const WindowPtr window = handle ? findWindow(handle) : nullptr;
    if (!window)
        return;
    for (const EventHook& hook : std::vector(hooks())) {
        if (event >= hook.first && event <= hook.last)
            hook.procedure(hook.handle, event, handle, objectId, child, GetCurrentThreadId(), tickCount());
    }
    if (objectId == OBJID_CLIENT && QAccessible::isActive() && isAlive(*window))
        tellDesktop(event, *window, child);
}

HWINEVENTHOOK SetWinEventHook(DWORD eventMin, DWORD eventMax, HMODULE, WINEVENTPROC procedure, DWORD, DWORD,
                              DWORD)
{
    static ULONG_PTR made = 0;
    const auto handle = reinterpret_cast<HWINEVENTHOOK>(++made);
    hooks().push_back({handle, eventMin, eventMax, procedure});
    return handle;
}

BOOL UnhookWinEvent(HWINEVENTHOOK hook)
{
    return std::erase_if(hooks(), [hook](const EventHook& set) { return set.handle == hook; }) > 0;
}
