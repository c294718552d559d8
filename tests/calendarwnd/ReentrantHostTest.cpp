// A host that does anything inside any notification, at random.
#include "CalendarFixture.h"
#include "RandomGame.h"

#include <WndWatch.h>
#include <ZebrikUtils.h>

namespace {

// The window around the control. Everything it hears makes it do something.
class Frame : public CWnd
{
public:
    std::function<void()> m_onHeard = [] {};

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        if (message < 0xC000 && message != WM_PARENTNOTIFY && message != WM_SETFOCUS &&
            message != WM_ACTIVATE)
            return CWnd::WindowProc(message, wParam, lParam);
        const CWndWatch watch(*this);
        m_onHeard();
        return watch.IsAlive() ? CWnd::WindowProc(message, wParam, lParam) : 0;
    }
};

class ReentrantHostTest : public testing::Test, public testing::WithParamInterface<unsigned>
{
protected:
    ReentrantHostTest() { ZebrikUtils::SetDataDirectory(m_directory.PathOf("data").c_str()); }
    ~ReentrantHostTest() override
    {
        m_nDepth = kDeepest; // no reaction any more
        m_calendar.reset();
        m_frame.reset();
        Pump();
        ZebrikUtils::SetDataDirectory("");
    }

    void Revive()
    {
        if (!m_frame || !m_frame->m_hWnd) {
            m_frame = std::make_unique<Frame>();
            m_frame->m_onHeard = [this] { React(); };
            m_frame->CreateEx(0, AfxRegisterWndClass(0), "frame", WS_POPUP | WS_VISIBLE,
                              CRect(0, 0, 400, 300), nullptr, 0);
        }
        if (!m_calendar)
            m_calendar = std::make_unique<TestCalendar>();
        if (!m_calendar->m_hWnd && m_frame && m_frame->m_hWnd)
            CreateCalendar();
    }

    void CreateCalendar()
    {
        m_calendar->Create(kCalendarId, CRect(10, 20, 310, 260), m_random.Pick(2) != 0, m_frame.get(), true,
                           true, true, true);
    }

    // What the host does inside of a notification, to a depth.
    void React()
    {
        if (m_nDepth >= kDeepest || m_random.Pick(3) == 0)
            return;
        ++m_nDepth;
        ++m_nReactions;
        try {
            ReactOnce();
        } catch (...) {
            --m_nDepth;
            throw;
        }
        --m_nDepth;
    }

    void ReactOnce()
    {
        const bool bWindow = m_calendar && m_calendar->m_hWnd;
        switch (m_random.Pick(12)) {
        case 0:
            if (m_calendar)
                m_calendar->DestroyWindow();
            break;
        case 1:
            m_calendar.reset();
            break;
        case 2:
            if (m_frame)
                m_frame->DestroyWindow();
            break;
        case 3:
            m_calendar.reset();
            m_frame.reset();
            break;
        case 4:
            if (m_calendar)
                m_calendar->SetDate(m_random.PickDate());
            break;
        case 5:
            if (m_frame && m_frame->m_hWnd)
                m_frame->SetFocus();
            break;
        case 6:
            if (bWindow)
                m_calendar->SetFocus();
            break;
        case 7:
            if (bWindow)
                m_calendar->ReloadSpecialDates();
            break;
        case 8:
            if (m_calendar && m_frame && m_frame->m_hWnd) {
                m_calendar->DestroyWindow();
                if (m_calendar && m_frame && m_frame->m_hWnd)
                    CreateCalendar();
            }
            break;
        case 9:
            Pump();
            break;
        case 10:
            if (m_nDepth == 1) // in a message of the frame's, which ends it
                AfxThrowMemoryException();
            break;
        default:
            ShowModal();
            break;
        }
    }

    void Pump()
    {
        MSG msg;
        for (int i = 0; i < 20 && ::PeekMessageA(&msg, nullptr, 0, 0, PM_REMOVE); ++i) {
            if (AfxPreTranslateMessage(&msg))
                continue;
            ::TranslateMessage(&msg);
            ::DispatchMessageA(&msg);
        }
    }

    // A window before which the frame takes no input.
    void ShowModal()
    {
        const HWND hFrame = m_frame ? m_frame->m_hWnd : nullptr;
        const HWND hModal = ::CreateWindowExA(0, AfxRegisterWndClass(0), "modal", WS_POPUP | WS_VISIBLE, 50,
                                              50, 100, 100, hFrame, nullptr, nullptr, nullptr);
        if (hFrame)
            ::EnableWindow(hFrame, FALSE);
        Pump();
        if (::IsWindow(hFrame))
            ::EnableWindow(hFrame, TRUE);
        ::DestroyWindow(hModal);
    }

    static constexpr int kDeepest = 3;

    TemporaryDirectory m_directory;
    RandomGame m_random{GetParam()};
    int m_nDepth = 0;
    unsigned m_nReactions = 0;
    std::unique_ptr<Frame> m_frame;
    std::unique_ptr<TestCalendar> m_calendar;
};

}

TEST_P(ReentrantHostTest, IsSurvived)
{
    const unsigned nMessages = RandomGame::GetSetting("ZEB17_MONKEY_MESSAGES", MONKEY_MESSAGES / 3);
    for (unsigned i = 0; i < nMessages; ++i) {
        SCOPED_TRACE("seed " + std::to_string(GetParam()) + " message " + std::to_string(i));
        Revive();
        if (!m_calendar || !m_calendar->m_hWnd)
            continue;
        const HWND hCalendar = m_calendar->m_hWnd;
        switch (m_random.Pick(6)) {
        case 0:
            m_random.Press(hCalendar);
            break;
        case 1:
            ::SendMessageA(hCalendar, WM_MOUSEWHEEL, MAKEWPARAM(0, m_random.Pick(3) - 1), 0);
            break;
        case 2:
            ::SendMessageA(::GetDlgItem(hCalendar, 2600 + m_random.Pick(6)), BM_CLICK, 0, 0);
            break;
        case 3:
            ::SendMessageA(hCalendar, WM_COMMAND, MAKEWPARAM(42032 + m_random.Pick(17), 0), 0);
            break;
        case 4:
            m_calendar->SetDate(m_random.PickDate());
            break;
        default:
            m_random.Key(hCalendar);
            break;
        }
        if (i % 16 == 0)
            Pump();
    }
    EXPECT_GT(m_nReactions, nMessages / 10);
}

INSTANTIATE_TEST_SUITE_P(Seeds, ReentrantHostTest, testing::ValuesIn(RandomGame::GetSeeds()),
                         testing::PrintToStringParamName());
