// Runs a dialog of Qt for a window of winapi, and keeps the last error of the dialogs.
#include "modal_dialog.h"

#include "commdlg.h"
#include "focus.h"
#include "host_widget.h"
#include "window_tree.h"

#include <QDialog>
#include <QWindow>

namespace winapi {

namespace {

// While this object lives, the top-level window of the owner takes no input.
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
        const WindowPtr root = m_disabled ? findWindow(m_root) : nullptr;
        if (!root)
            return;
        EnableWindow(m_root, TRUE);
        activate(root.get(), ActivatedBy::Program);
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

// Keeps the dialog above its owner. Were the owner its parent in Qt, destroying the owner would delete the
// dialog.
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
