// Window classes, those of programs and those of the system.
#include "window_class.h"

#include "resource_id.h"
#include "rooms_above.h"

#include <algorithm>
#include <cctype>
#include <map>
#include <mutex>

namespace winapi {

namespace {

std::string lowered(std::string text)
{
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::tolower(c); });
    return text;
}

struct ClassTable
{
    std::map<std::string, WindowClassPtr> byName; // in lower case
    ATOM next = 0xC400;
};

// Made when first asked for: programs may register classes before main.
ClassTable& table()
{
    static auto& classes = *new ClassTable;
    return classes;
}

ClassTable& tableWithSystemClasses()
{
    static std::once_flag once;
    std::call_once(once, registerSystemClasses);
    return table();
}

ATOM addClass(ClassTable& classes, const WNDCLASSEXA& info)
{
    // Windows keep no bytes for their class.
    if (!info.lpszClassName || isResourceId(info.lpszClassName) || !info.lpfnWndProc || info.cbWndExtra) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    auto added = std::make_shared<WindowClass>();
    added->info = info;
    added->name = info.lpszClassName;
    added->info.lpszClassName = added->name.c_str();
    added->atom = classes.next;
    if (!classes.byName.emplace(lowered(added->name), added).second) {
        SetLastError(ERROR_CLASS_ALREADY_EXISTS);
        return 0;
    }
    return classes.next++;
}

WNDCLASSEXA extended(const WNDCLASSA& info)
{
    return {sizeof(WNDCLASSEXA), info.style,        info.lpfnWndProc,   info.cbClsExtra,
            info.cbWndExtra,     info.hInstance,    info.hIcon,         info.hCursor,
            info.hbrBackground,  info.lpszMenuName, info.lpszClassName, nullptr};
}

}

WindowClassPtr findClass(LPCSTR nameOrAtom)
{
    const auto& classes = tableWithSystemClasses().byName;
    if (!nameOrAtom)
        return nullptr;
    if (!isResourceId(nameOrAtom)) {
        const auto found = classes.find(lowered(nameOrAtom));
        return found == classes.end() ? nullptr : found->second;
    }
    const auto atom = static_cast<ATOM>(reinterpret_cast<ULONG_PTR>(nameOrAtom));
    const auto found = std::find_if(classes.begin(), classes.end(),
                                    [atom](const auto& entry) { return entry.second->atom == atom; });
    return found == classes.end() ? nullptr : found->second;
}

void registerSystemClass(const char* name, WNDPROC procedure, UINT style, LPCSTR cursor)
{
    WNDCLASSEXA info{};
    info.lpszClassName = name;
    info.lpfnWndProc = procedure;
    info.style = style;
    info.hCursor = LoadCursorA(nullptr, cursor);
    addClass(table(), info);
}

}

using namespace winapi;

ATOM RegisterClassExA(const WNDCLASSEXA* windowClass)
{
    if (!windowClass || windowClass->cbSize != sizeof(WNDCLASSEXA)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    return addClass(tableWithSystemClasses(), *windowClass);
}

ATOM RegisterClassA(const WNDCLASSA* windowClass)
{
    if (!windowClass) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    return addClass(tableWithSystemClasses(), extended(*windowClass));
}

BOOL UnregisterClassA(LPCSTR className, HINSTANCE)
{
    const WindowClassPtr found = findClass(className);
    if (!found) {
        SetLastError(ERROR_CLASS_DOES_NOT_EXIST);
        return FALSE;
    }
    constexpr long kOurs = 2; // references: the table's and this one
    if (found.use_count() > kOurs) {
        SetLastError(ERROR_CLASS_HAS_WINDOWS);
        return FALSE;
    }
    table().byName.erase(lowered(found->name));
    return TRUE;
}

int GetClassNameA(HWND window, LPSTR buffer, int size)
{
    const WindowPtr found = findWindow(window);
    if (!found || !buffer || size <= 0)
        return 0;
    lstrcpynA(buffer, found->windowClass->name.c_str(), size);
    return static_cast<int>(std::strlen(buffer));
}
