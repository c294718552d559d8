// The tool-tip control: which tool the pointer rests on, and when its tip comes and goes.
#include "tooltip.h"

#include "application.h"
#include "host_widget.h"
#include "tip_label.h"
#include "tool_list.h"
#include "window_class.h"
#include "window_tree.h"

#include <QCursor>
#include <QTimer>

#include <memory>

namespace winapi {

namespace {

// Milliseconds.
constexpr int kShowDelay = 500;   // the pointer has come to a tool
constexpr int kReshowDelay = 100; // and another tip was up until then
constexpr int kShowTime = 5000;
constexpr int kLeavePoll = 100; // the pointer may leave a tool without a message

class ToolTip : public ControlState
{
public:
    explicit ToolTip(HWND window);

    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);

private:
    void add(const TOOLINFOA* info);
    void remove(const TOOLINFOA* info);
    void giveText(WPARAM size, const TOOLINFOA* info);

    std::string textOf(const Tool& tool);
    std::string askOwner(const Tool& tool);
    void notify(const Tool& tool, UINT code);

    void see(const MSG& message);
    void pointerMoved(const MSG& message);
    void restOn(Tool tool);
    void leave();
    void show();
    void pop();
    void checkPointer();
    bool mayShow(const Window& owner) const;

    HWND m_window;
    ToolList m_tools;

    std::optional<Tool> m_under; // the tool that the pointer is on
    bool m_shown = false;
    bool m_dismissed = false; // by a press, until the pointer leaves the tool
    std::unique_ptr<TipLabel> m_label;
    QTimer m_showTimer;
    QTimer m_popTimer;
    QTimer m_leaveTimer;
};

ToolTip::ToolTip(HWND window) : m_window(window)
{
    m_showTimer.setSingleShot(true);
    m_popTimer.setSingleShot(true);
    QObject::connect(&m_showTimer, &QTimer::timeout, &m_showTimer, [this] {
        const EndedWindowsKept kept;
        show();
    });
    QObject::connect(&m_popTimer, &QTimer::timeout, &m_popTimer, [this] {
        const EndedWindowsKept kept;
        pop();
    });
    QObject::connect(&m_leaveTimer, &QTimer::timeout, &m_leaveTimer, [this] {
        const EndedWindowsKept kept;
        checkPointer();
    });
}

LRESULT ToolTip::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto* const info = reinterpret_cast<const TOOLINFOA*>(lParam);
    switch (message) {
    case TTM_ADDTOOLA:
        add(info);
        return TRUE;
    case TTM_DELTOOLA:
        remove(info);
        return 0;
    case TTM_GETTOOLCOUNT:
        return static_cast<LRESULT>(m_tools.count());
    case TTM_GETTEXTA:
        giveText(wParam, info);
        return 0;
    case TTM_RELAYEVENT:
        if (lParam)
            see(*reinterpret_cast<const MSG*>(lParam));
        return 0;
    case TTM_POP:
        pop();
        return 0;
    default:
        return DefWindowProcA(m_window, message, wParam, lParam);
    }
}

// ---- the tools ----

void ToolTip::add(const TOOLINFOA* info)
{
    if (auto tool = toTool(info))
        m_tools.add(std::move(*tool));
}

void ToolTip::remove(const TOOLINFOA* info)
{
    const auto like = toTool(info);
    if (!like)
        return;
    if (m_under && m_under->isSame(*like))
        leave();
    m_tools.remove(*like);
}

void ToolTip::giveText(WPARAM size, const TOOLINFOA* info)
{
    constexpr int kPromised = 80; // characters, when the caller names no size
    const auto like = toTool(info);
    const Tool* const tool = like ? m_tools.find(*like) : nullptr;
    if (!tool || !info->lpszText || info->lpszText == LPSTR_TEXTCALLBACKA)
        return;
    lstrcpynA(info->lpszText, textOf(*tool).c_str(), size ? static_cast<int>(size) : kPromised);
}

// ---- the texts ----

std::string ToolTip::textOf(const Tool& tool)
{
    const std::string text = tool.text ? *tool.text : askOwner(tool);
    return text.substr(0, text.find('\t'));
}

std::string ToolTip::askOwner(const Tool& tool)
{
    NMTTDISPINFOA info{};
    info.hdr = {m_window, tool.id, TTN_GETDISPINFOA};
    info.lpszText = info.szText;
    info.uFlags = tool.flags;
    SendMessageA(tool.owner, WM_NOTIFY, tool.id, reinterpret_cast<LPARAM>(&info));
    return info.lpszText ? info.lpszText : "";
}

void ToolTip::notify(const Tool& tool, UINT code)
{
    NMHDR header{m_window, tool.id, code};
    SendMessageA(tool.owner, WM_NOTIFY, tool.id, reinterpret_cast<LPARAM>(&header));
}

// ---- the pointer ----

void ToolTip::see(const MSG& message)
{
    switch (message.message) {
    case WM_MOUSEMOVE:
        pointerMoved(message);
        return;
    case WM_LBUTTONDOWN:
    case WM_RBUTTONDOWN:
    case WM_MBUTTONDOWN:
        pop();
        m_showTimer.stop();
        m_dismissed = m_under.has_value();
        return;
    default:
        return;
    }
}

void ToolTip::pointerMoved(const MSG& message)
{
    const POINT client{GET_X_LPARAM(message.lParam), GET_Y_LPARAM(message.lParam)};
    const Tool* const tool = m_tools.hit(message.hwnd, client);
    if (tool)
        restOn(*tool);
    else
        leave();
}

void ToolTip::restOn(Tool tool)
{
    if (m_under && m_under->isSame(tool)) {
        if (!m_shown && !m_dismissed && m_showTimer.isActive())
            m_showTimer.start(); // anew: the pointer has not come to rest yet
        return;
    }
    const bool wasShown = m_shown;
    leave();
    m_under = std::move(tool);
    m_showTimer.start(wasShown ? kReshowDelay : kShowDelay);
    m_leaveTimer.start(kLeavePoll);
}

void ToolTip::leave()
{
    pop();
    m_under.reset();
    m_dismissed = false;
    m_showTimer.stop();
    m_leaveTimer.stop();
}

void ToolTip::checkPointer()
{
    const QPoint pointer = QCursor::pos();
    const WindowPtr under = hitTest(pointer);
    const QPoint client = under ? pointer - screenOrigin(*under) : QPoint();
    if (!under || !m_under || !m_under->contains(under->handle, {client.x(), client.y()}))
        leave();
}

// Only in the active window, unless the control's style says otherwise.
bool ToolTip::mayShow(const Window& owner) const
{
    if (GetWindowLongPtrA(m_window, GWL_STYLE) & TTS_ALWAYSTIP)
        return true;
    const HWND root = GetAncestor(owner.handle, GA_ROOT);
    const WindowPtr top = findWindow(root);
    return GetActiveWindow() == root || (top && top->host && top->host->isActiveWindow());
}

void ToolTip::show()
{
    const WindowPtr self = findWindow(m_window);
    const Tool* const tool = m_under ? m_tools.find(*m_under) : nullptr;
    const WindowPtr owner = tool ? findWindow(tool->window()) : nullptr;
    if (!self || !owner || !mayShow(*owner))
        return;
    const std::string text = textOf(*tool);
    if (!isAlive(*self) || text.empty() || !m_under)
        return;
    if (!m_label)
        m_label = std::make_unique<TipLabel>();
    self->text = text;
    self->rect =
        m_label->showAt(QCursor::pos(), QString::fromStdString(shownText(text)), rootOf(*owner).host.data());
    self->style |= WS_VISIBLE;
    m_shown = true;
    m_popTimer.start(kShowTime);
    notify(*m_under, TTN_SHOW);
}

void ToolTip::pop()
{
    if (!std::exchange(m_shown, false))
        return;
    m_popTimer.stop();
    m_label->hide();
    if (const WindowPtr self = findWindow(m_window))
        self->style &= ~WS_VISIBLE;
    if (m_under)
        notify(*m_under, TTN_POP);
}

LRESULT toolTipProcedure(HWND handle, UINT message, WPARAM wParam, LPARAM lParam)
{
    const WindowPtr window = findWindow(handle);
    if (!window)
        return 0;
    if (!window->control) {
        application();
        window->control = std::make_unique<ToolTip>(handle);
    }
    return static_cast<ToolTip&>(*window->control).handle(message, wParam, lParam);
}

}

void registerToolTipClass()
{
    registerSystemClass(TOOLTIPS_CLASSA, toolTipProcedure, CS_DBLCLKS | CS_SAVEBITS, IDC_ARROW);
}

}

BOOL InitCommonControlsEx(const INITCOMMONCONTROLSEX*)
{
    return TRUE;
}
