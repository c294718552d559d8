// A window as a picture.
#ifndef DESK_PICTURE_H
#define DESK_PICTURE_H

#include <windows.h>

// Writes what the window shows, without its frame, to a PNG file. A zeb17_result. GDI+ must be started.
int savePicture(HWND window, const char* path);

#endif
