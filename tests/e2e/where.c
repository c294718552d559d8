// Tells the driver where the calendar stands on the screen: its left and upper edge, width and height.
#include <stdio.h>
#include <windows.h>

int main(void)
{
    HWND host = NULL; // message boxes have the same title
    HWND calendar = NULL;
    RECT place;
    while (!calendar && (host = FindWindowExA(NULL, host, NULL, "zeb17 desk calendar")) != NULL)
        calendar = FindWindowExA(host, NULL, "zeb17.Calendar", NULL);
    if (!GetWindowRect(calendar, &place)) {
        fprintf(stderr, "the calendar is not there\n");
        return 1;
    }
    printf("%ld %ld %ld %ld\n", place.left, place.top, place.right - place.left, place.bottom - place.top);
    return 0;
}
