// The clipboard: Qt's, of which only plain text is used.
#include "application.h"
#include "errors.h"
#include "memory.h"
#include "winclipboard.h"

#include <QClipboard>
#include <QString>

#include <algorithm>

using namespace winapi;

namespace {

bool isOpen = false;
HGLOBAL lentText = nullptr; // what GetClipboardData gave last

// Up to the null that ends the text, or the end of the memory.
QString textOfMemory(HANDLE memory)
{
    const auto* text = static_cast<const char16_t*>(memory);
    return QString::fromUtf16(text, std::find(text, text + sizeOfMemory(memory) / 2, u'\0') - text);
}

HGLOBAL toMemory(const QString& text)
{
    const std::size_t length = static_cast<std::size_t>(text.size()) + 1;
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, length * sizeof(WCHAR));
    if (memory)
        std::copy_n(text.utf16(), length, static_cast<ushort*>(memory));
    return memory;
}

void freeLentText()
{
    lentText = GlobalFree(lentText);
}

bool requireOpen()
{
    return isOpen || fail(ERROR_CLIPBOARD_NOT_OPEN);
}

}

BOOL OpenClipboard(HWND)
{
    if (isOpen)
        return fail(ERROR_ACCESS_DENIED);
    application();
    isOpen = true;
    return TRUE;
}

BOOL CloseClipboard()
{
    if (!requireOpen())
        return FALSE;
    freeLentText();
    isOpen = false;
    return TRUE;
}

BOOL EmptyClipboard()
{
    if (!requireOpen())
        return FALSE;
    QApplication::clipboard()->clear();
    return TRUE;
}

HANDLE SetClipboardData(UINT format, HANDLE memory)
{
    if (!requireOpen())
        return nullptr;
    if (format != CF_UNICODETEXT || !memory)
        return fail(ERROR_INVALID_PARAMETER, nullptr);
    QApplication::clipboard()->setText(textOfMemory(memory));
    GlobalFree(memory);
    return memory;
}

HANDLE GetClipboardData(UINT format)
{
    if (!requireOpen())
        return nullptr;
    const QString text = QApplication::clipboard()->text();
    if (text.isEmpty() || format != CF_UNICODETEXT)
        return nullptr;
    freeLentText();
    lentText = toMemory(text);
    return lentText;
}
