// Moves controls by what the dialog has gained since it was created.
#include "layout.h"

void startLayout(Layout* layout, HWND dialog, const LayoutRule* rules, int count)
{
    const Layout begun = {
        .dialog = dialog, .rules = rules, .count = count, .dpi = (int)GetDpiForWindow(dialog)};
    *layout = begun;
    GetWindowRect(dialog, &layout->window);
    GetClientRect(dialog, &layout->client);
    for (int i = 0; i < count; ++i) {
        GetWindowRect(GetDlgItem(dialog, rules[i].id), &layout->places[i]);
        MapWindowPoints(NULL, dialog, (POINT*)&layout->places[i], 2);
    }
}

static int scaled(const Layout* layout, LONG length)
{
    return MulDiv((int)length, (int)GetDpiForWindow(layout->dialog), layout->dpi);
}

void applyLayout(const Layout* layout)
{
    RECT client;
    GetClientRect(layout->dialog, &client);
    const int gainedX = client.right - scaled(layout, layout->client.right);
    const int gainedY = client.bottom - scaled(layout, layout->client.bottom);
    for (int i = 0; i < layout->count; ++i) {
        const RECT* const place = &layout->places[i];
        const int how = layout->rules[i].how;
        SetWindowPos(GetDlgItem(layout->dialog, layout->rules[i].id), NULL,
                     scaled(layout, place->left) + (how & MOVE_X ? gainedX : 0),
                     scaled(layout, place->top) + (how & MOVE_Y ? gainedY : 0),
                     scaled(layout, place->right - place->left) + (how & GROW_X ? gainedX : 0),
                     scaled(layout, place->bottom - place->top) + (how & GROW_Y ? gainedY : 0),
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    }
    RedrawWindow(layout->dialog, NULL, NULL, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
}

void limitLayout(const Layout* layout, MINMAXINFO* limits)
{
    limits->ptMinTrackSize.x = scaled(layout, layout->window.right - layout->window.left);
    limits->ptMinTrackSize.y = scaled(layout, layout->window.bottom - layout->window.top);
}
