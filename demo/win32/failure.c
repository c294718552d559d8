// Puts failures into words and tells them.
#include "failure.h"

#include <zeb17.h>

#include <stdio.h>

void failureWords(char words[FAILURE_SIZE], int result)
{
    char detail[FAILURE_SIZE / 2] = "";
    zeb17_last_detail(detail, sizeof detail, NULL);
    snprintf(words, FAILURE_SIZE, "%s. %s", zeb17_error_text(result), detail);
}

void tellFailure(HWND owner, const char* what, const char* why)
{
    char text[2 * FAILURE_SIZE];
    snprintf(text, sizeof text, "%s\n\n%s", what, why);
    fprintf(stderr, "zeb17_desk: %s\n", text);
    if (owner)
        MessageBox(owner, text, "zeb17 desk calendar", MB_OK | MB_ICONWARNING);
}
