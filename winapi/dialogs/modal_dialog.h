// How a dialog of Qt is run for a window of winapi.
#pragma once

#include "winuser.h"

class QDialog;

namespace winapi {

// Shows the dialog until it is answered, the owner disabled meanwhile. Gives what QDialog::exec gives.
int runModal(QDialog& dialog, HWND owner);

// What CommDlgExtendedError gives.
DWORD& lastDialogError();
// Sets that, and gives FALSE.
BOOL failDialog(DWORD error);

}
