#include <zeb17.h>

static LRESULT CALLBACK window_proc(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const HWND calendar = GetDlgItem(window, 1);
    zeb17_date date;
    char text[100];
    if (message == zeb17_message(ZEB17_SELCHANGE)) {
        if (zeb17_get_date(calendar, &date, NULL) == ZEB17_OK &&
            zeb17_date_text(&date, ZEB17_LONG, text, sizeof text, NULL) == ZEB17_OK)
            SetWindowTextA(window, text);
        return 0;
    }
    if (message == WM_SIZE && calendar)
        MoveWindow(calendar, 0, 0, LOWORD(lParam), HIWORD(lParam), TRUE);
    if (message == WM_SETFOCUS && calendar)
        SetFocus(calendar);
    if (message == WM_DESTROY)
        PostQuitMessage(0);
    return DefWindowProcA(window, message, wParam, lParam);
}

int main(void)
{
    const RECT place = {0, 0, 0, 0};
    WNDCLASSA window_class = {0};
    HWND window;
    MSG message;
    window_class.lpfnWndProc = window_proc;
    window_class.hInstance = GetModuleHandleA(NULL);
    window_class.lpszClassName = "Host";
    RegisterClassA(&window_class);
    window = CreateWindowExA(0, "Host", "Calendar", WS_OVERLAPPEDWINDOW, 100, 100, 380, 320, NULL, NULL, NULL,
                             NULL);
    if (!zeb17_create(window, 1, &place, ZEB17_SPECIAL_DATES | ZEB17_ALLOW_NO_DATE | ZEB17_OPTIONS))
        return 1; // zeb17_last_result() and zeb17_last_detail() say why
    ShowWindow(window, SW_SHOW);
    while (GetMessageA(&message, NULL, 0, 0) > 0) {
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
    return 0;
}
