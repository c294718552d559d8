// Puts text on the clipboard, in 16-bit characters for every program.
#include "ClipboardUtils.h"

#include <WideText.h>

#include <algorithm>
#include <memory>

namespace {

struct GlobalMemoryFree
{
    void operator()(HGLOBAL hMemory) const { GlobalFree(hMemory); }
};
using GlobalMemory = std::unique_ptr<void, GlobalMemoryFree>;

class OpenedClipboard
{
public:
    // Without an owner window the clipboard could be opened and not be filled.
    OpenedClipboard() : m_bOpen(OpenClipboard(GetActiveWindow()) != FALSE) {}
    ~OpenedClipboard()
    {
        if (m_bOpen)
            CloseClipboard();
    }
    OpenedClipboard(const OpenedClipboard&) = delete;
    OpenedClipboard& operator=(const OpenedClipboard&) = delete;

    explicit operator bool() const { return m_bOpen; }

private:
    bool m_bOpen;
};

GlobalMemory ToGlobalMemory(const WideText& strText)
{
    const std::size_t nLength = strText.size() + 1;
    GlobalMemory memory(GlobalAlloc(GMEM_MOVEABLE, nLength * sizeof(WCHAR)));
    if (!memory)
        return memory;
    std::copy_n(strText.c_str(), nLength, static_cast<WCHAR*>(GlobalLock(memory.get())));
    GlobalUnlock(memory.get());
    return memory;
}

}

bool ClipboardUtils::CopyTextToClipboard(const CString& strText)
{
    GlobalMemory memory = ToGlobalMemory(ToWide(strText));
    const OpenedClipboard clipboard;
    if (!memory || !clipboard || !EmptyClipboard() || !SetClipboardData(CF_UNICODETEXT, memory.get()))
        return false;
    static_cast<void>(memory.release()); // the clipboard owns the memory now
    return true;
}
