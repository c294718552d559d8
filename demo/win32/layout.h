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
    GROW_Y = 8
};

typedef struct LayoutRule
{
    int id;
    int how;
} LayoutRule;

enum
{
    MAX_LAYOUT_RULES = 16
};

typedef struct Layout
{
    HWND dialog;
    const LayoutRule* rules;
    int count;
    int dpi;   // that of the lengths below
    SIZE size; // of the whole dialog
    RECT client;
    RECT places[MAX_LAYOUT_RULES];
} Layout;

// Notes how the dialog was created. The rules stay the caller's, and are as good as long as the layout.
void startLayout(Layout* layout, HWND dialog, const LayoutRule* rules, int count);

// Puts the controls where the dialog's size wants them: at WM_SIZE.
void applyLayout(const Layout* layout);

// Lets the dialog get no smaller than it was created: at WM_GETMINMAXINFO.
void limitLayout(const Layout* layout, MINMAXINFO* limits);

#endif
