// The clipboard of Qt, as plain text.
#include "application.h"
#include "errors.h"
#include "winbase.h"
#include "winclipboard.h"

#include <QClipboard>
#include <QString>

#include <algorithm>

using namespace winapi;

namespace {

bool isOpen = false;
HGLOBAL lentText = nullptr; // what GetClipboardData gave out

bool isText(UINT format)
{
    return format == CF_UNICODETEXT || format == CF_TEXT;
}

// Up to the null that ends the text, or the end of the memory.
QString textOfMemory(UINT format, HANDLE memory)
{
    const SIZE_T size = GlobalSize(memory);
    if (format == CF_UNICODETEXT) {
        const auto* text = static_cast<const char16_t*>(memory);
        return QString::fromUtf16(text, std::find(text, text + size / 2, u'\0') - text);
    }
    const auto* text = static_cast<const char*>(memory);
    return QString::fromUtf8(text, std::find(text, text + size, '\0') - text);
}

HGLOBAL toMemory(const void* text, std::size_t size)
{
    HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    if (memory)
        std::copy_n(static_cast<const char*>(text), size, static_cast<char*>(memory));
    return memory;
}

HGLOBAL toMemory(UINT format, const QString& text)
{
    if (format == CF_UNICODETEXT)
        return toMemory(text.utf16(), (static_cast<std::size_t>(text.size()) + 1) * sizeof(WCHAR));
    const QByteArray utf8 = text.toUtf8();
    return toMemory(utf8.constData(), static_cast<std::size_t>(utf8.size()) + 1);
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
    if (!isText(format) || !memory)
        return fail(ERROR_INVALID_PARAMETER), nullptr;
    QApplication::clipboard()->setText(textOfMemory(format, memory));
    GlobalFree(memory);
    return memory;
}

HANDLE GetClipboardData(UINT format)
{
    if (!requireOpen())
        return nullptr;
    const QString text = QApplication::clipboard()->text();
    if (text.isEmpty() || !isText(format))
        return nullptr;
    freeLentText();
    lentText = toMemory(format, text);
    return lentText;
}

BOOL IsClipboardFormatAvailable(UINT format)
{
    return isText(format) && !application().clipboard()->text().isEmpty();
}
