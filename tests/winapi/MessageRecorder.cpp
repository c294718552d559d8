// Windows that note each message they get, in words.
#include "MessageRecorder.h"

#include <algorithm>
#include <chrono>
#include <thread>

MessageRecorder* MessageRecorder::s_current = nullptr;

namespace {

enum class Detail
{
    None,
    WParam,
    Size,
    Point,
    Window,
    Item,
    LowWord,
    MenuItem,
};

constexpr struct
{
    UINT message;
    const char* name;
    Detail detail;
} kKnown[] = {
    {WM_NCCREATE, "NCCREATE", Detail::None},
    {WM_NCCALCSIZE, "NCCALCSIZE", Detail::None},
    {WM_CREATE, "CREATE", Detail::None},
    {WM_SIZE, "SIZE", Detail::Size},
    {WM_MOVE, "MOVE", Detail::Point},
    {WM_PARENTNOTIFY, "PARENTNOTIFY", Detail::LowWord},
    {WM_SHOWWINDOW, "SHOWWINDOW", Detail::WParam},
    {WM_WINDOWPOSCHANGING, "POSCHANGING", Detail::None},
    {WM_WINDOWPOSCHANGED, "POSCHANGED", Detail::None},
    {WM_DESTROY, "DESTROY", Detail::None},
    {WM_NCDESTROY, "NCDESTROY", Detail::None},
    {WM_CLOSE, "CLOSE", Detail::None},
    {WM_ENABLE, "ENABLE", Detail::WParam},
    {WM_CANCELMODE, "CANCELMODE", Detail::None},
    {WM_ACTIVATEAPP, "ACTIVATEAPP", Detail::WParam},
    {WM_NCACTIVATE, "NCACTIVATE", Detail::None},
    {WM_ACTIVATE, "ACTIVATE", Detail::WParam},
    {WM_SETFOCUS, "SETFOCUS", Detail::Window},
    {WM_KILLFOCUS, "KILLFOCUS", Detail::Window},
    {WM_CAPTURECHANGED, "CAPTURECHANGED", Detail::None},
    {WM_MOUSEACTIVATE, "MOUSEACTIVATE", Detail::None},
    {WM_SETCURSOR, "SETCURSOR", Detail::None},
    {WM_MOUSEMOVE, "MOUSEMOVE", Detail::Point},
    {WM_LBUTTONDOWN, "LBUTTONDOWN", Detail::Point},
    {WM_LBUTTONUP, "LBUTTONUP", Detail::Point},
    {WM_LBUTTONDBLCLK, "LBUTTONDBLCLK", Detail::Point},
    {WM_MOUSEWHEEL, "WHEEL", Detail::None},
    {WM_MOUSELEAVE, "MOUSELEAVE", Detail::None},
    {WM_KEYDOWN, "KEYDOWN", Detail::WParam},
    {WM_KEYUP, "KEYUP", Detail::WParam},
    {WM_SYSKEYDOWN, "SYSKEYDOWN", Detail::WParam},
    {WM_CHAR, "CHAR", Detail::WParam},
    {WM_SYSCHAR, "SYSCHAR", Detail::WParam},
    {WM_COMMAND, "COMMAND", Detail::LowWord},
    {WM_ENTERMENULOOP, "ENTERMENULOOP", Detail::None},
    {WM_INITMENU, "INITMENU", Detail::None},
    {WM_INITMENUPOPUP, "INITMENUPOPUP", Detail::None},
    {WM_MENUSELECT, "MENUSELECT", Detail::MenuItem},
    {WM_UNINITMENUPOPUP, "UNINITMENUPOPUP", Detail::None},
    {WM_EXITMENULOOP, "EXITMENULOOP", Detail::None},
    {WM_DRAWITEM, "DRAWITEM", Detail::Item},
    {WM_PAINT, "PAINT", Detail::None},
    {WM_ERASEBKGND, "ERASEBKGND", Detail::None},
    {WM_TIMER, "TIMER", Detail::WParam},
    {WM_USER, "USER", Detail::WParam},
    {BM_SETSTATE, "BM_SETSTATE", Detail::WParam},
};

// What a command is noted as. Other notifications come on one platform only, and nobody needs them.
constexpr struct
{
    int code;
    const char* name;
} kNotifications[] = {{BN_CLICKED, "CLICKED"}, {BN_DOUBLECLICKED, "TWICE"}};

const char* notificationOf(WPARAM command)
{
    const auto found =
        std::ranges::find(kNotifications, HIWORD(command), [](const auto& one) { return one.code; });
    return found == std::end(kNotifications) ? nullptr : found->name;
}

// Sent at times of its own on each platform; tests that want it ask for it.
bool isOptional(UINT message)
{
    return message == WM_ERASEBKGND;
}

std::string numbers(long first, const char* between, long second)
{
    return std::to_string(first) + between + std::to_string(second);
}

std::string describe(const MessageRecorder& recorder, Detail detail, WPARAM wParam, LPARAM lParam)
{
    switch (detail) {
    case Detail::WParam:
        return std::to_string(wParam);
    case Detail::Size:
        return numbers(LOWORD(lParam), "x", HIWORD(lParam));
    case Detail::Point:
        return numbers(static_cast<short>(LOWORD(lParam)), ",", static_cast<short>(HIWORD(lParam)));
    case Detail::Window:
        return recorder.nameOf(reinterpret_cast<HWND>(wParam));
    case Detail::LowWord:
        return std::to_string(LOWORD(wParam));
    case Detail::MenuItem:
        return HIWORD(wParam) == 0xFFFF ? "none" : std::to_string(LOWORD(wParam));
    case Detail::Item: {
        const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
        return numbers(item.itemAction, ":", item.itemState & (ODS_SELECTED | ODS_DISABLED | ODS_FOCUS));
    }
    default:
        return {};
    }
}

}

MessageRecorder::MessageRecorder()
{
    s_current = this;
}

MessageRecorder::~MessageRecorder()
{
    while (!m_named.empty()) {
        const HWND window = m_named.back().window;
        m_named.pop_back();
        if (IsWindow(window))
            DestroyWindow(window);
    }
    s_current = nullptr;
}

HWND MessageRecorder::create(const char* name, DWORD style, HWND parent, int id, UINT classStyle)
{
    const std::string className = "Recorder" + std::to_string(classStyle);
    WNDCLASSA windowClass{};
    windowClass.style = classStyle;
    windowClass.lpfnWndProc = procedure;
    windowClass.lpszClassName = className.c_str();
    windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
    RegisterClassA(&windowClass); // fails when the class is there already
    m_creating = name;
    const bool child = style & WS_CHILD;
    const HWND window = CreateWindowExA(0, className.c_str(), name, style, child ? 10 : 100, child ? 20 : 100,
                                        child ? 100 : 300, child ? 80 : 200, parent,
                                        reinterpret_cast<HMENU>(static_cast<LONG_PTR>(id)), nullptr, nullptr);
    m_creating.clear();
    return window;
}

HWND MessageRecorder::createTop(const char* name, DWORD style)
{
    const HWND window = create(name, style);
    serveMessages();
    clear();
    return window;
}

void MessageRecorder::subclass(HWND window, const char* name)
{
    const auto original = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure)));
    m_named.push_back({window, name, original});
}

std::string MessageRecorder::take()
{
    std::string all;
    for (const std::string& one : m_notes)
        all += (all.empty() ? "" : " ") + one;
    m_notes.clear();
    return all;
}

std::string MessageRecorder::nameOf(HWND window) const
{
    const Named* const named = find(window);
    return named ? named->name : "-";
}

const MessageRecorder::Named* MessageRecorder::find(HWND window) const
{
    const auto found = std::ranges::find(m_named, window, &Named::window);
    return found == m_named.end() ? nullptr : &*found;
}

void MessageRecorder::note(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto entry = std::ranges::find(kKnown, message, [](const auto& one) { return one.message; });
    const char* const name = entry == std::end(kKnown) ? nullptr
                             : message == WM_COMMAND   ? notificationOf(wParam)
                                                       : entry->name;
    if (!name)
        return;
    const auto asked = [&](const std::string& one) { return std::string(entry->name).starts_with(one); };
    if (m_only.empty() ? isOptional(message) : std::none_of(m_only.begin(), m_only.end(), asked))
        return;
    const std::string detail = describe(*this, entry->detail, wParam, lParam);
    m_notes.push_back(nameOf(window) + "." + name + (detail.empty() ? "" : "(" + detail + ")"));
}

LRESULT CALLBACK MessageRecorder::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (!s_current)
        return DefWindowProcA(window, message, wParam, lParam);
    if (!s_current->find(window))
        s_current->m_named.push_back({window, s_current->m_creating, nullptr});
    s_current->note(window, message, wParam, lParam);
    const WNDPROC original = s_current->find(window)->original;
    return original ? CallWindowProcA(original, window, message, wParam, lParam)
                    : DefWindowProcA(window, message, wParam, lParam);
}

void serveMessages()
{
    constexpr int kRounds = 4;
    constexpr DWORD kPause = 5; // milliseconds
    for (int quiet = 0; quiet < kRounds; ++quiet) {
        MSG message;
        while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
            TranslateMessage(&message);
            DispatchMessageA(&message);
            quiet = 0;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(kPause));
    }
}
