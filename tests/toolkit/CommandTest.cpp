// Commands and notifications.
#include "TestWnd.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {
constexpr UINT kFocusCode = 6; // of a button that gets the focus

class Target : public CWnd
{
public:
    Log m_log;
    bool m_accept = true;

protected:
    void OnPlain() { m_log.push_back("plain"); }
    void OnUpdatePlain(CCmdUI* ui)
    {
        m_log.push_back("update " + std::to_string(ui->m_nID));
        ui->Enable(FALSE);
    }
    void OnFocusNotification() { m_log.push_back("control"); }
    BOOL OnNeedText(UINT id, NMHDR* header, LRESULT* result)
    {
        m_log.push_back("need text " + std::to_string(id) + " " +
                        std::to_string(static_cast<int>(header->code)));
        *result = 23;
        return m_accept;
    }
    DECLARE_MESSAGE_MAP()
};

BEGIN_MESSAGE_MAP(Target, CWnd)
    ON_COMMAND(100, &Target::OnPlain)
    ON_COMMAND(110, &Target::OnPlain)
    ON_UPDATE_COMMAND_UI(100, &Target::OnUpdatePlain)
    ON_CONTROL(kFocusCode, 100, &Target::OnFocusNotification)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTA, 7, 9, &Target::OnNeedText)
END_MESSAGE_MAP()

class Commands : public testing::Test
{
protected:
    Commands()
    {
        EXPECT_TRUE(CreateChild(m_target, m_frame, 1));
        EXPECT_TRUE(m_control.Create("", WS_CHILD, CRect(0, 0, 5, 5), &m_target, 7));
    }

    void Send(UINT id, UINT code = 0, HWND from = nullptr)
    {
        m_target.SendMessage(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(from));
    }
    LRESULT Notify(UINT code)
    {
        NMHDR header = {m_control, 999, code};
        return m_target.SendMessage(WM_NOTIFY, header.idFrom, reinterpret_cast<LPARAM>(&header));
    }

    TestFrame m_frame;
    Target m_target;
    CButton m_control;
};
}

TEST_F(Commands, ReachTheHandlerOfTheirIdAndCode)
{
    Send(110);
    Send(999); // has no handler
    Send(100); // its update handler disables the item
    EXPECT_THAT(m_target.m_log, ElementsAre("plain", "update 100"));
    m_target.m_log.clear();
    for (const UINT code : {UINT(BN_CLICKED), UINT(kFocusCode)})
        Send(100, code, m_control);
    EXPECT_THAT(m_target.m_log, ElementsAre("plain", "control"));
}

TEST_F(Commands, NotificationsMatchTheControlsOwnIdAndMayBeDeclined)
{
    EXPECT_EQ(Notify(TTN_NEEDTEXTA), 23);
    EXPECT_EQ(Notify(TTN_SHOW), 0); // no handler
    EXPECT_THAT(m_target.m_log, ElementsAre("need text 7 -520"));
    const int code = static_cast<int>(MAKELONG(TTN_NEEDTEXTA, WM_NOTIFY));
    LRESULT result = 0;
    NMHDR header = {m_control, 0, TTN_NEEDTEXTA};
    AFX_NOTIFY notify = {&result, &header};
    EXPECT_FALSE(m_target.OnCmdMsg(6, code, &notify)) << "below the range";
    EXPECT_FALSE(m_target.OnCmdMsg(10, code, &notify)) << "above it";
    EXPECT_TRUE(m_target.OnCmdMsg(9, code, &notify));
    m_target.m_accept = false;
    EXPECT_FALSE(m_target.OnCmdMsg(9, code, &notify));
}
