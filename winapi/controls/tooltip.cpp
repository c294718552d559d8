// The tool-tip control: which tool the pointer rests on, and when its tip comes and goes.
#include "tooltip.h"

#include "application.h"
#include "host_widget.h"
#include "rooms_above.h"
#include "tip_label.h"
#include "tool_list.h"
#include "window_class.h"
#include "window_tree.h"

#include <QCursor>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace winapi {

namespace {

struct Delays
{
    int initial;
    int reshow;
    int autopop;

    // All three from the first.
    static constexpr Delays from(int initial) { return {initial, initial / 5, initial * 10}; }
};
constexpr Delays defaultDelays = Delays::from(500);
constexpr int leavePoll = 100; // milliseconds: the pointer may leave without telling anyone

class ToolTip : public ControlState
{
public:
    explicit ToolTip(HWND window);
    ~ToolTip() override;

    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    void see(const MSG& message);
    bool watches(HWND window);

private:
    void add(const TOOLINFOA* info);
    void remove(const TOOLINFOA* info);
    LRESULT enumerate(std::size_t index, TOOLINFOA* info);
    LRESULT toolInfo(TOOLINFOA* info);
    void setToolInfo(const TOOLINFOA* info);
    void newRect(const TOOLINFOA* info);
    void updateText(const TOOLINFOA* info);
    LRESULT hitTest(TTHITTESTINFOA* info);
    LRESULT giveText(WPARAM size, TOOLINFOA* info);
    LRESULT currentTool(TOOLINFOA* info);
    void setDelay(WPARAM which, int milliseconds);
    LRESULT delay(WPARAM which) const;

    std::string textOf(const Tool& tool);
    std::string askOwner(Tool tool);
    LRESULT notify(const Tool& tool, UINT code);

    void pointerMoved(const MSG& message);
    void restOn(Tool tool);
    void leave();
    void show();
    void pop();
    void checkPointer();
    bool mayShow(const Tool& tool) const;
    QRect place(QPoint pointer, const std::string& text, const Tool& tool);

    HWND m_window;
    ToolList m_tools;
    bool m_active = true;
    int m_maxWidth = -1;
    Delays m_delays = defaultDelays;

    std::optional<Tool> m_under; // the tool that the pointer is on
    bool m_shown = false;
    bool m_dismissed = false; // by a press, until the pointer leaves the tool
    std::unique_ptr<TipLabel> m_label;
    QTimer m_showTimer;
    QTimer m_autopopTimer;
    QTimer m_leaveTimer;
};

std::vector<ToolTip*>& allToolTips()
{
    static std::vector<ToolTip*> controls;
    return controls;
}

ToolTip::ToolTip(HWND window) : m_window(window)
{
    m_showTimer.setSingleShot(true);
    m_autopopTimer.setSingleShot(true);
    QObject::connect(&m_showTimer, &QTimer::timeout, &m_showTimer, [this] { show(); });
    QObject::connect(&m_autopopTimer, &QTimer::timeout, &m_autopopTimer, [this] { pop(); });
    QObject::connect(&m_leaveTimer, &QTimer::timeout, &m_leaveTimer, [this] { checkPointer(); });
    allToolTips().push_back(this);
}

ToolTip::~ToolTip()
{
    std::erase(allToolTips(), this);
}

LRESULT ToolTip::handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    auto* const info = reinterpret_cast<TOOLINFOA*>(lParam);
    switch (message) {
    case TTM_ADDTOOLA:
        add(info);
        return TRUE;
    case TTM_DELTOOLA:
        remove(info);
        return 0;
    case TTM_GETTOOLCOUNT:
        return static_cast<LRESULT>(m_tools.count());
    case TTM_ENUMTOOLSA:
        return enumerate(wParam, info);
    case TTM_GETTOOLINFOA:
        return toolInfo(info);
    case TTM_SETTOOLINFOA:
        setToolInfo(info);
        return 0;
    case TTM_NEWTOOLRECTA:
        newRect(info);
        return 0;
    case TTM_UPDATETIPTEXTA:
        updateText(info);
        return 0;
    case TTM_HITTESTA:
        return hitTest(reinterpret_cast<TTHITTESTINFOA*>(lParam));
    case TTM_GETTEXTA:
        return giveText(wParam, info);
    case TTM_GETCURRENTTOOLA:
        return currentTool(info);
    case TTM_RELAYEVENT:
        if (lParam)
            see(*reinterpret_cast<const MSG*>(lParam));
        return 0;
    case TTM_ACTIVATE:
        m_active = wParam;
        if (!m_active)
            leave();
        return 0;
    case TTM_POP:
        pop();
        return 0;
    case TTM_SETDELAYTIME:
        setDelay(wParam, static_cast<short>(LOWORD(lParam)));
        return 0;
    case TTM_GETDELAYTIME:
        return delay(wParam);
    case TTM_SETMAXTIPWIDTH:
        return std::exchange(m_maxWidth, static_cast<int>(lParam));
    case TTM_GETMAXTIPWIDTH:
        return m_maxWidth;
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

LRESULT ToolTip::enumerate(std::size_t index, TOOLINFOA* info)
{
    const Tool* const tool = m_tools.at(index);
    if (!tool || !info)
        return FALSE;
    fillInfo(*tool, *info);
    return TRUE;
}

LRESULT ToolTip::toolInfo(TOOLINFOA* info)
{
    const auto like = toTool(info);
    const Tool* const tool = like ? m_tools.find(*like) : nullptr;
    if (!tool)
        return FALSE;
    fillInfo(*tool, *info);
    return TRUE;
}

void ToolTip::setToolInfo(const TOOLINFOA* info)
{
    auto like = toTool(info);
    if (Tool* const tool = like ? m_tools.find(*like) : nullptr)
        *tool = std::move(*like);
}

void ToolTip::newRect(const TOOLINFOA* info)
{
    const auto like = toTool(info);
    if (Tool* const tool = like ? m_tools.find(*like) : nullptr)
        tool->rect = like->rect;
}

void ToolTip::updateText(const TOOLINFOA* info)
{
    const auto like = toTool(info);
    Tool* const tool = like ? m_tools.find(*like) : nullptr;
    if (!tool)
        return;
    tool->text = like->text;
    if (m_shown && m_under->isSame(*tool))
        show();
}

LRESULT ToolTip::hitTest(TTHITTESTINFOA* info)
{
    const Tool* const tool = info ? m_tools.hit(info->hwnd, info->pt) : nullptr;
    if (!tool)
        return FALSE;
    fillInfo(*tool, info->ti);
    return TRUE;
}

LRESULT ToolTip::giveText(WPARAM size, TOOLINFOA* info)
{
    constexpr int promised = 80;
    const auto like = toTool(info);
    Tool* const tool = like ? m_tools.find(*like) : nullptr;
    if (!tool || !info->lpszText || info->lpszText == LPSTR_TEXTCALLBACKA)
        return 0;
    lstrcpynA(info->lpszText, textOf(*tool).c_str(), size ? static_cast<int>(size) : promised);
    return 0;
}

LRESULT ToolTip::currentTool(TOOLINFOA* info)
{
    if (m_under && info)
        fillInfo(*m_under, *info);
    return m_under.has_value();
}

void ToolTip::setDelay(WPARAM which, int milliseconds)
{
    const bool standard = milliseconds < 0;
    switch (which) {
    case TTDT_AUTOMATIC:
        m_delays = standard ? defaultDelays : Delays::from(milliseconds);
        return;
    case TTDT_RESHOW:
        m_delays.reshow = standard ? defaultDelays.reshow : milliseconds;
        return;
    case TTDT_AUTOPOP:
        m_delays.autopop = standard ? defaultDelays.autopop : milliseconds;
        return;
    case TTDT_INITIAL:
        m_delays.initial = standard ? defaultDelays.initial : milliseconds;
        return;
    default:
        return;
    }
}

LRESULT ToolTip::delay(WPARAM which) const
{
    switch (which) {
    case TTDT_AUTOMATIC:
    case TTDT_INITIAL:
        return m_delays.initial;
    case TTDT_RESHOW:
        return m_delays.reshow;
    case TTDT_AUTOPOP:
        return m_delays.autopop;
    default:
        return -1;
    }
}

// ---- the texts ----

std::string ToolTip::textOf(const Tool& tool)
{
    const std::string text = tool.text ? *tool.text : askOwner(tool);
    return text.substr(0, text.find('\t'));
}

template <class Info>
void prepare(Info& info, const Tool& tool, HWND from, UINT code)
{
    info.hdr = {from, tool.id, code};
    info.lpszText = info.szText;
    info.uFlags = tool.flags;
    info.lParam = tool.data;
}

// In the form of characters that the owner says it speaks. While it answers, the tools may change.
std::string ToolTip::askOwner(Tool tool)
{
    const HWND owner = tool.owner;
    std::string text;
    UINT flags = 0;
    if (SendMessageA(owner, WM_NOTIFYFORMAT, reinterpret_cast<WPARAM>(m_window), NF_QUERY) == NFR_UNICODE) {
        NMTTDISPINFOW info{};
        prepare(info, tool, m_window, TTN_GETDISPINFOW);
        SendMessageA(owner, WM_NOTIFY, tool.id, reinterpret_cast<LPARAM>(&info));
        text = info.lpszText ? QString::fromUtf16(info.lpszText).toStdString() : "";
        flags = info.uFlags;
    } else {
        NMTTDISPINFOA info{};
        prepare(info, tool, m_window, TTN_GETDISPINFOA);
        SendMessageA(owner, WM_NOTIFY, tool.id, reinterpret_cast<LPARAM>(&info));
        text = info.lpszText ? info.lpszText : "";
        flags = info.uFlags;
    }
    if (Tool* const kept = flags & TTF_DI_SETITEM ? m_tools.find(tool) : nullptr)
        kept->text = text;
    return text;
}

LRESULT ToolTip::notify(const Tool& tool, UINT code)
{
    NMHDR header{m_window, tool.id, code};
    return SendMessageA(tool.owner, WM_NOTIFY, tool.id, reinterpret_cast<LPARAM>(&header));
}

// ---- the pointer ----

bool ToolTip::watches(HWND window)
{
    for (std::size_t i = 0; const Tool* const tool = m_tools.at(i); ++i) {
        if ((tool->flags & TTF_SUBCLASS) && tool->window() == window)
            return true;
    }
    return false;
}

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
    if (!m_active)
        return;
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
            m_showTimer.start(); // the pointer is to rest
        return;
    }
    const bool wasShown = m_shown;
    leave();
    m_under = std::move(tool);
    m_showTimer.start(wasShown ? m_delays.reshow : m_delays.initial);
    m_leaveTimer.start(leavePoll);
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
    POINT pointer{};
    GetCursorPos(&pointer);
    const WindowPtr under = winapi::hitTest({pointer.x, pointer.y});
    if (!under || !m_under)
        return leave();
    ScreenToClient(under->handle, &pointer);
    if (!m_under->contains(under->handle, pointer))
        leave();
}

// Only where the window is active, unless the control is told otherwise.
bool ToolTip::mayShow(const Tool& tool) const
{
    const WindowPtr owner = findWindow(tool.window());
    if (!owner || !m_active)
        return false;
    if (GetWindowLongPtrA(m_window, GWL_STYLE) & TTS_ALWAYSTIP)
        return true;
    const Window& root = rootOf(*owner);
    return GetActiveWindow() == root.handle || (root.host && root.host->isActiveWindow());
}

QRect ToolTip::place(QPoint pointer, const std::string& text, const Tool& tool)
{
    if (!m_label)
        m_label = std::make_unique<TipLabel>();
    const WindowPtr owner = findWindow(tool.window());
    return m_label->showAt(pointer, QString::fromStdString(text), m_maxWidth,
                           owner ? rootOf(*owner).host.data() : nullptr);
}

void ToolTip::show()
{
    const WindowPtr self = findWindow(m_window);
    Tool* const tool = m_under ? m_tools.find(*m_under) : nullptr;
    if (!self || !tool || !mayShow(*tool))
        return;
    const std::string text = textOf(*tool);
    if (!isAlive(*self) || text.empty() || !m_under)
        return;
    const bool meant = self->is(TTS_NOPREFIX);
    self->text = text;
    self->rect = place(QCursor::pos(), shownText(text, meant), *m_under);
    self->style |= WS_VISIBLE;
    if (!std::exchange(m_shown, true))
        notify(*m_under, TTN_SHOW);
    m_autopopTimer.start(m_delays.autopop);
}

void ToolTip::pop()
{
    if (!std::exchange(m_shown, false))
        return;
    m_autopopTimer.stop();
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

void showToToolTips(const MSG& message)
{
    if (message.message < WM_MOUSEFIRST || message.message > WM_MOUSELAST)
        return;
    const auto controls = allToolTips();
    for (ToolTip* const control : controls) {
        if (control->watches(message.hwnd))
            control->see(message);
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

void InitCommonControls() {}
