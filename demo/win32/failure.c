// Puts failures into words and tells them.
#include "failure.h"

#include <zeb17.h>

#include <stdio.h>

void tellFailure(HWND owner, const char* what, const char* why)
{
    char text[1200];
    snprintf(text, sizeof text, "%s\n\n%s", what, why);
    fprintf(stderr, "zeb17_desk: %s\n", text);
    if (owner)
        MessageBox(owner, text, "zeb17 desk calendar", MB_OK | MB_ICONWARNING);
}

void tellResult(HWND owner, const char* what, int result)
{
    char detail[500] = "";
    char why[1000];
    zeb17_last_detail(detail, sizeof detail, NULL);
    snprintf(why, sizeof why, "%s %s", zeb17_error_text(result), detail);
    tellFailure(owner, what, why);
}
