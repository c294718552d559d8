// Keeps the controls of a dialog in place while the dialog grows and shrinks.
#ifndef DESK_LAYOUT_H
#define DESK_LAYOUT_H

#include <windows.h>

// What a control does with the width and the height that the dialog has gained.
enum
{
    MOVE_X = 1,
    MOVE_Y = 2,
    GROW_X = 4,
    GROW_Y = 8,
    MAX_LAYOUT_RULES = 16
};

typedef struct LayoutRule
{
    int id;
    int how;
} LayoutRule;

// How the dialog was created: lengths in pixels of its first density.
typedef struct Layout
{
    HWND dialog;
    const LayoutRule* rules;
    int count;
    int dpi;
    RECT window;
    RECT client;
    RECT places[MAX_LAYOUT_RULES];
} Layout;

// Notes how the dialog is now. The rules, at most MAX_LAYOUT_RULES and one for each control, stay the
// caller's.
void startLayout(Layout* layout, HWND dialog, const LayoutRule* rules, int count);

// Puts the controls where the size and the density of the dialog want them: at WM_SIZE.
void applyLayout(const Layout* layout);

// Lets the dialog get no smaller than it was created: at WM_GETMINMAXINFO.
void limitLayout(const Layout* layout, MINMAXINFO* limits);

#endif
