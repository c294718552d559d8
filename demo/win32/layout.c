// Moves controls by what the dialog has gained since it was created, in the density that its screen has now.
#include "layout.h"

static RECT placeOf(HWND dialog, int id)
{
    RECT place;
    GetWindowRect(GetDlgItem(dialog, id), &place);
    MapWindowPoints(NULL, dialog, (POINT*)&place, 2);
    return place;
}

void startLayout(Layout* layout, HWND dialog, const LayoutRule* rules, int count)
{
    RECT window;
    GetWindowRect(dialog, &window);
    layout->dialog = dialog;
    layout->rules = rules;
    layout->count = count < MAX_LAYOUT_RULES ? count : MAX_LAYOUT_RULES;
    layout->dpi = (int)GetDpiForWindow(dialog);
    layout->size.cx = window.right - window.left;
    layout->size.cy = window.bottom - window.top;
    GetClientRect(dialog, &layout->client);
    for (int i = 0; i < layout->count; ++i)
        layout->places[i] = placeOf(dialog, rules[i].id);
}

static RECT scaled(const Layout* layout, RECT rect)
{
    const int dpi = (int)GetDpiForWindow(layout->dialog);
    const RECT result = {MulDiv(rect.left, dpi, layout->dpi), MulDiv(rect.top, dpi, layout->dpi),
                         MulDiv(rect.right, dpi, layout->dpi), MulDiv(rect.bottom, dpi, layout->dpi)};
    return result;
}

void applyLayout(const Layout* layout)
{
    const RECT before = scaled(layout, layout->client);
    HDWP moves = BeginDeferWindowPos(layout->count);
    RECT client;
    GetClientRect(layout->dialog, &client);
    const int gainedX = client.right - before.right;
    const int gainedY = client.bottom - before.bottom;
    for (int i = 0; i < layout->count && moves; ++i) {
        const RECT place = scaled(layout, layout->places[i]);
        const int how = layout->rules[i].how;
        moves = DeferWindowPos(
            moves, GetDlgItem(layout->dialog, layout->rules[i].id), NULL,
            place.left + (how & MOVE_X ? gainedX : 0), place.top + (how & MOVE_Y ? gainedY : 0),
            place.right - place.left + (how & GROW_X ? gainedX : 0),
            place.bottom - place.top + (how & GROW_Y ? gainedY : 0), SWP_NOZORDER | SWP_NOACTIVATE);
    }
    if (moves)
        EndDeferWindowPos(moves);
}

void limitLayout(const Layout* layout, MINMAXINFO* limits)
{
    const int dpi = (int)GetDpiForWindow(layout->dialog);
    limits->ptMinTrackSize.x = MulDiv(layout->size.cx, dpi, layout->dpi);
    limits->ptMinTrackSize.y = MulDiv(layout->size.cy, dpi, layout->dpi);
}
