// The dialog that asks for a colour.
#include "application.h"
#include "commdlg.h"
#include "modal_dialog.h"
#include "drawing_objects.h"

#include <QColorDialog>

using namespace winapi;

namespace {

constexpr int customColors = 16;

void showCustomColors(const COLORREF* colors)
{
    for (int i = 0; colors && i < customColors; ++i)
        QColorDialog::setCustomColor(i, toColor(colors[i]));
}

void takeCustomColors(COLORREF* colors)
{
    for (int i = 0; colors && i < customColors; ++i)
        colors[i] = toColorRef(QColorDialog::customColor(i));
}

}

BOOL ChooseColorA(CHOOSECOLORA* dialog)
{
    if (!dialog || dialog->lStructSize != sizeof *dialog)
        return failDialog(dialog ? CDERR_STRUCTSIZE : CDERR_INITIALIZATION);
    lastDialogError() = 0;
    application();
    showCustomColors(dialog->lpCustColors);
    QColorDialog chooser(toColor(dialog->Flags & CC_RGBINIT ? dialog->rgbResult : 0));
    const int result = runModal(chooser, dialog->hwndOwner);
    takeCustomColors(dialog->lpCustColors);
    if (result != QDialog::Accepted)
        return FALSE;
    dialog->rgbResult = toColorRef(chooser.currentColor());
    return TRUE;
}
