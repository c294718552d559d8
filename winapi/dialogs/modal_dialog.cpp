#include "modal_dialog.h"

#include "commdlg.h"
#include "host_widget.h"
#include "window_tree.h"

#include <QDialog>
#include <QWindow>

namespace winapi {

namespace {

// The top-level window of the owner takes no input while this lives.
class OwnerDisabled
{
public:
    explicit OwnerDisabled(HWND owner) : m_root(owner ? GetAncestor(owner, GA_ROOT) : nullptr)
    {
        m_focus = GetFocus();
        m_disabled = m_root && !EnableWindow(m_root, FALSE);
    }
    ~OwnerDisabled()
    {
        if (!m_disabled || !IsWindow(m_root))
            return;
        EnableWindow(m_root, TRUE);
        SetActiveWindow(m_root);
        if (IsWindow(m_focus))
            SetFocus(m_focus);
    }
    OwnerDisabled(const OwnerDisabled&) = delete;
    OwnerDisabled& operator=(const OwnerDisabled&) = delete;

private:
    HWND m_root;
    HWND m_focus;
    bool m_disabled;
};

// Not as its parent, which would destroy it when the owner goes.
void standOver(QDialog& dialog, HWND owner)
{
    const WindowPtr window = findWindow(owner);
    HostWidget* const host = window ? rootOf(*window).host : nullptr;
    if (!host)
        return;
    dialog.winId();
    dialog.windowHandle()->setTransientParent(host->window()->windowHandle());
}

}

int runModal(QDialog& dialog, HWND owner)
{
    const OwnerDisabled disabled(owner);
    standOver(dialog, owner);
    return dialog.exec();
}

DWORD& lastDialogError()
{
    static DWORD error = 0;
    return error;
}

BOOL failDialog(DWORD error)
{
    lastDialogError() = error;
    return FALSE;
}

}

DWORD CommDlgExtendedError()
{
    return winapi::lastDialogError();
}
