// The message box: a text and one button.
#include "application.h"
#include "modal_dialog.h"

#include <QMessageBox>

using namespace winapi;

int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type)
{
    if (type & ~static_cast<UINT>(MB_ICONMASK)) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    application();
    QMessageBox box;
    box.setTextFormat(Qt::PlainText);
    box.setIcon(type == MB_ICONEXCLAMATION ? QMessageBox::Warning : QMessageBox::NoIcon);
    box.setText(QString::fromUtf8(text));
    box.setWindowTitle(QString::fromUtf8(caption ? caption : "Error"));
    box.addButton(QMessageBox::Ok);
    return runModal(box, owner) == QMessageBox::Ok ? IDOK : 0;
}
