// A window that is shown until the user has answered it, with the keyboard of a dialog.
#pragma once

#include <afxwin.h>

class ModalWindow : public CWnd
{
public:
    // Shows the window, with the owner disabled, and gives the id of the button that ended it: IDCANCEL for
    // Esc and for a press on the frame's cross.
    int RunModal();

protected:
    // Creates the window in the middle of its owner, with a client area of this size, not yet visible.
    bool CreateModal(const char* title, CSize client, CWnd& owner);
    void End(int result) { m_result = result; }

    afx_msg void OnClose() { End(IDCANCEL); }
    BOOL PreTranslateMessage(MSG* pMsg) override;
    DECLARE_MESSAGE_MAP()

private:
    CWnd* m_owner = nullptr;
    int m_result = 0;
};
