// A program that loads the library by hand and lets it go: the window class works on.
#include <windows.h>

typedef int (*register_function)(void);

static int works(void)
{
    const HWND parent = CreateWindowExA(0, "BUTTON", "", WS_POPUP, 0, 0, 300, 300, NULL, NULL, NULL, NULL);
    const HWND control =
        CreateWindowExA(0, "zeb17.Calendar", "", WS_CHILD, 0, 0, 200, 200, parent, NULL, NULL, NULL);
    DestroyWindow(parent);
    return control != NULL;
}

int main(void)
{
    const HMODULE library = LoadLibraryA("zeb17.dll");
    const FARPROC found = library ? GetProcAddress(library, "zeb17_register") : NULL;
    register_function do_register;
    if (!found || works()) // not before it is registered
        return 1;
    do_register = (register_function)(void (*)(void))found;
    if (do_register() != 0 || !works())
        return 2;
    FreeLibrary(library);
    return works() ? 0 : 3;
}
