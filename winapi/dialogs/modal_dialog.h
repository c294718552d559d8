// Dialogs of Qt, run for a window of ours.
#pragma once

#include "winuser.h"

class QDialog;

namespace winapi {

// Shows the dialog until it is answered, the owner disabled meanwhile. Gives what QDialog::exec gives.
int runModal(QDialog& dialog, HWND owner);

// What CommDlgExtendedError tells.
DWORD& lastDialogError();
BOOL failDialog(DWORD error);

}
