// The keyboard of dialogs: Tab, Enter, Escape and mnemonics.
#include "window.h"

#include <algorithm>
#include <cctype>

using namespace winapi;

namespace {

bool isReachable(const Window& window)
{
    return window.is(WS_VISIBLE) && window.isEnabled();
}

// The controls of a dialog in their order. The controls of a dialog inside it stand where that dialog stands.
void collectControls(const Window& parent, std::vector<HWND>& controls)
{
    for (const Window* child : parent.children) {
        if (child->exStyle & WS_EX_CONTROLPARENT) {
            if (isReachable(*child))
                collectControls(*child, controls);
        } else {
            controls.push_back(child->handle);
        }
    }
}

std::vector<HWND> controlsOf(HWND dialog)
{
    std::vector<HWND> controls;
    if (const WindowPtr window = findWindow(dialog))
        collectControls(*window, controls);
    return controls;
}

bool isTabStop(HWND handle)
{
    const WindowPtr window = findWindow(handle);
    return window && window->is(WS_TABSTOP) && isReachable(*window);
}

// Goes through the controls from the one behind `start` on, and at the end begins anew; gives the first that
// `accepts`, null if none does.
template <class Accepts>
HWND findAfter(std::vector<HWND> ring, HWND start, Accepts accepts)
{
    const auto place = std::find(ring.begin(), ring.end(), start);
    if (place != ring.end())
        std::rotate(ring.begin(), place + 1, ring.end());
    const auto found = std::find_if(ring.begin(), ring.end(), accepts);
    return found == ring.end() ? nullptr : *found;
}

LRESULT dialogCode(HWND control, MSG* message)
{
    return SendMessageA(control, WM_GETDLGCODE, message ? message->wParam : 0,
                        reinterpret_cast<LPARAM>(message));
}

void command(HWND dialog, int id)
{
    SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, BN_CLICKED),
                 reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
}

// The letter behind a single ampersand, in lower case; 0 if there is none.
int mnemonicOf(HWND control)
{
    const WindowPtr window = findWindow(control);
    const std::string text = window ? window->text : "";
    for (std::size_t i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != '&')
            continue;
        if (text[++i] != '&')
            return std::tolower(static_cast<unsigned char>(text[i]));
    }
    return 0;
}

bool actOnMnemonic(HWND dialog, HWND focus, WPARAM character)
{
    const int letter = std::tolower(static_cast<int>(character & 0xff));
    const auto controls = controlsOf(dialog);
    const HWND control = findAfter(controls, focus, [&](HWND one) {
        const WindowPtr window = findWindow(one);
        return window && isReachable(*window) && mnemonicOf(one) == letter;
    });
    if (!control || !letter)
        return false;
    const LRESULT code = dialogCode(control, nullptr);
    SetFocus(control);
    if (code & DLGC_BUTTON)
        SendMessageA(control, BM_CLICK, 0, 0);
    return true;
}

bool actOnKey(HWND dialog, const MSG& message)
{
    switch (message.wParam) {
    case VK_TAB:
        if (const HWND next = GetNextDlgTabItem(dialog, message.hwnd, GetKeyState(VK_SHIFT) & 0x8000))
            SetFocus(next);
        return true;
    case VK_RETURN:
        command(dialog, IDOK);
        return true;
    case VK_ESCAPE:
        command(dialog, IDCANCEL);
        return true;
    default:
        return false;
    }
}

bool act(HWND dialog, MSG& message)
{
    if (message.message == WM_SYSCHAR)
        return actOnMnemonic(dialog, message.hwnd, message.wParam);
    if (message.message != WM_KEYDOWN && message.message != WM_CHAR)
        return false;
    const LRESULT code = dialogCode(message.hwnd, &message);
    const bool isTab = message.message == WM_KEYDOWN && message.wParam == VK_TAB;
    if (code & (isTab ? DLGC_WANTALLKEYS | DLGC_WANTTAB : DLGC_WANTALLKEYS))
        return false;
    if (message.message == WM_KEYDOWN)
        return actOnKey(dialog, message);
    return !(code & DLGC_WANTCHARS) && actOnMnemonic(dialog, message.hwnd, message.wParam);
}

}

HWND GetNextDlgTabItem(HWND dialog, HWND control, BOOL previous)
{
    std::vector<HWND> ring = controlsOf(dialog);
    if (previous)
        std::reverse(ring.begin(), ring.end());
    return findAfter(std::move(ring), control, isTabStop);
}

BOOL IsDialogMessageA(HWND dialog, MSG* message)
{
    if (!message || !findWindow(dialog) || (message->hwnd != dialog && !IsChild(dialog, message->hwnd)))
        return FALSE;
    if (CallMsgFilterA(message, MSGF_DIALOGBOX) || act(dialog, *message))
        return TRUE;
    TranslateMessage(message);
    DispatchMessageA(message);
    return TRUE;
}
