#include "TestWnd.h"

#include <gmock/gmock.h>

using testing::ElementsAre;

namespace {
class Target : public CWnd
{
public:
    Log m_log;
    bool m_accept = true;
    bool m_enable = true;

protected:
    void OnPlain() { m_log.push_back("plain"); }
    BOOL OnEx(UINT id)
    {
        m_log.push_back("ex " + std::to_string(id));
        return m_accept;
    }
    void OnRange(UINT id) { m_log.push_back("range " + std::to_string(id)); }
    void OnUpdatePlain(CCmdUI* ui)
    {
        m_log.push_back("update " + std::to_string(ui->m_nID));
        ui->Enable(m_enable);
        ui->SetCheck(1);
    }
    void OnSilentUpdate(CCmdUI*) {}
    void OnFocusNotification() { m_log.push_back("control"); }
    void OnNotification(NMHDR* header, LRESULT* result)
    {
        m_log.push_back("notify " + std::to_string(static_cast<int>(header->code)));
        *result = 21;
    }
    void OnNotificationRange(UINT id, NMHDR*, LRESULT* result)
    {
        m_log.push_back("notify range " + std::to_string(id));
        *result = 22;
    }
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
    ON_COMMAND_EX(101, &Target::OnEx)
    ON_COMMAND_RANGE(110, 119, &Target::OnRange)
    ON_COMMAND(102, &Target::OnPlain)
    ON_UPDATE_COMMAND_UI(100, &Target::OnUpdatePlain)
    ON_UPDATE_COMMAND_UI(102, &Target::OnSilentUpdate)
    ON_CONTROL(BN_SETFOCUS, 100, &Target::OnFocusNotification)
    ON_BN_CLICKED(120, &Target::OnPlain)
    ON_NOTIFY(NM_CUSTOMDRAW, 130, &Target::OnNotification)
    ON_NOTIFY_RANGE(NM_CUSTOMDRAW, 131, 135, &Target::OnNotificationRange)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTW, 0, 0xFFFF, &Target::OnNeedText)
    ON_NOTIFY_EX_RANGE(TTN_NEEDTEXTA, 0, 0xFFFF, &Target::OnNeedText)
END_MESSAGE_MAP()

class Commands : public testing::Test
{
protected:
    Commands()
    {
        EXPECT_TRUE(CreateChild(m_target, m_frame, 1));
        EXPECT_TRUE(m_control.Create("", WS_CHILD, CRect(0, 0, 5, 5), &m_target, 7));
    }

    void FromMenu(UINT id) { m_target.SendMessage(WM_COMMAND, MAKEWPARAM(id, 0)); }
    void FromControl(UINT id, UINT code)
    {
        m_target.SendMessage(WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(m_control.m_hWnd));
    }
    LRESULT Notify(HWND from, UINT_PTR id, UINT code)
    {
        NMHDR header = {from, id, code};
        return m_target.SendMessage(WM_NOTIFY, id, reinterpret_cast<LPARAM>(&header));
    }

    TestFrame m_frame;
    Target m_target;
    CButton m_control;
};

/// An update of one item of a menu.
struct Item : CCmdUI
{
    Item(CMenu& menu, UINT index)
    {
        m_pMenu = &menu;
        m_nIndex = index;
        m_nID = menu.GetMenuItemID(static_cast<int>(index));
        m_nIndexMax = menu.GetMenuItemCount();
    }
};
}

TEST_F(Commands, ReachTheHandlerOfTheirIdAndCode)
{
    for (const UINT id : {100, 101, 110, 119, 120, 999}) // the last has no handler
        FromMenu(id);
    EXPECT_THAT(m_target.m_log,
                ElementsAre("update 100", "plain", "ex 101", "range 110", "range 119", "plain"));
    m_target.m_log.clear();
    for (const UINT id : {100, 120})
        for (const UINT code : {BN_CLICKED, BN_SETFOCUS})
            FromControl(id, code);
    EXPECT_THAT(m_target.m_log, ElementsAre("plain", "control", "plain"));
    m_target.m_log.clear();
    m_target.m_enable = false;
    FromMenu(100);
    EXPECT_THAT(m_target.m_log, ElementsAre("update 100")) << "a disabled item is not carried out";
}

TEST_F(Commands, NotificationsMatchTheControlsOwnId)
{
    m_control.DestroyWindow();
    ASSERT_TRUE(m_control.Create("", WS_CHILD, CRect(0, 0, 5, 5), &m_target, 130));
    CButton other;
    ASSERT_TRUE(other.Create("", WS_CHILD, CRect(0, 0, 5, 5), &m_target, 135));

    EXPECT_EQ(Notify(m_control, 999, NM_CUSTOMDRAW), 21);
    EXPECT_EQ(Notify(other, 130, NM_CUSTOMDRAW), 22);
    EXPECT_EQ(Notify(other, 130, TTN_SHOW), 0); // no handler
    EXPECT_THAT(m_target.m_log, ElementsAre("notify -12", "notify range 135"));
}

TEST_F(Commands, ToolTipTextsAreAskedForInBothFormsWhateverTheId)
{
    CToolTipCtrl tip;
    ASSERT_TRUE(tip.Create(&m_frame));
    const auto handleAsId = reinterpret_cast<UINT_PTR>(m_control.m_hWnd);
    EXPECT_EQ(Notify(tip, handleAsId, TTN_NEEDTEXTA), 23);
    EXPECT_EQ(Notify(tip, 0x12345678, TTN_NEEDTEXTW), 23);
    EXPECT_THAT(m_target.m_log, ElementsAre("need text 0 -520", "need text 0 -530"));
}

TEST_F(Commands, AHandlerMayDeclineOrBeFoundWithoutACall)
{
    for (const bool accept : {false, true}) {
        m_target.m_accept = accept;
        EXPECT_EQ(m_target.OnCmdMsg(101, CN_COMMAND, nullptr, nullptr), accept);
    }
    m_target.m_log.clear();
    AFX_CMDHANDLERINFO info;
    EXPECT_TRUE(m_target.OnCmdMsg(115, CN_COMMAND, nullptr, &info));
    EXPECT_EQ(info.pTarget, &m_target);
    EXPECT_FALSE(m_target.OnCmdMsg(140, CN_COMMAND, nullptr, &info));
    EXPECT_THAT(m_target.m_log, ElementsAre());
}

TEST_F(Commands, UpdatesSetTheItemsOfAMenu)
{
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    for (const UINT id : {100, 102, 110, 140})
        menu.AppendMenu(MF_STRING, id, "item");
    m_target.m_enable = false;

    const struct
    {
        UINT index;
        BOOL handled;
        UINT state;
        const char* why;
    } cases[] = {
        {0, TRUE, MF_GRAYED | MF_DISABLED | MF_CHECKED, "set by its update handler"},
        {1, TRUE, 0, "left alone by its update handler, and a handler carries it out"},
        {2, FALSE, 0, "a handler carries it out"},
        {3, FALSE, MF_GRAYED | MF_DISABLED, "nothing carries it out"},
    };
    for (const auto& c : cases) {
        Item item(menu, c.index);
        EXPECT_EQ(item.DoUpdate(&m_target, TRUE), c.handled) << c.why;
        EXPECT_EQ(menu.GetMenuState(c.index, MF_BYPOSITION) & (MF_GRAYED | MF_DISABLED | MF_CHECKED), c.state)
            << c.why;
    }
    Item kept(menu, 3);
    menu.EnableMenuItem(3, MF_BYPOSITION | MF_ENABLED);
    kept.DoUpdate(&m_target, FALSE);
    EXPECT_EQ(menu.GetMenuState(3, MF_BYPOSITION) & MF_GRAYED, 0U);

    Item renamed(menu, 0);
    renamed.SetText("other");
    CString text;
    menu.GetMenuString(0, text, MF_BYPOSITION);
    EXPECT_STREQ(text, "other");
    EXPECT_EQ(menu.GetMenuState(0, MF_BYPOSITION) & (MF_GRAYED | MF_CHECKED), UINT(MF_GRAYED | MF_CHECKED));
}

TEST_F(Commands, UpdatesSetAControl)
{
    CCmdUI ui;
    ui.m_nID = 100;
    ui.m_pOther = &m_control;
    m_target.m_enable = false;
    EXPECT_TRUE(ui.DoUpdate(&m_target, TRUE));
    EXPECT_FALSE(m_control.IsWindowEnabled());
    ui.SetText("named");
    CString text;
    m_control.GetWindowText(text);
    EXPECT_STREQ(text, "named");
}
