// The dialogs that ask for a file.
#include "application.h"
#include "commdlg.h"
#include "modal_dialog.h"

#include <QFileDialog>
#include <QFileInfo>

#include <algorithm>

using namespace winapi;

namespace {

QString toText(LPCSTR text)
{
    return QString::fromUtf8(text);
}

// From pairs of texts, each ended by a zero, to Qt's notation: a description with its patterns in
// parentheses.
QStringList filtersOf(LPCSTR pairs)
{
    QStringList filters;
    while (pairs && *pairs) {
        QString description = toText(pairs);
        pairs += qstrlen(pairs) + 1;
        const QString patterns = toText(pairs).replace(';', ' ').replace("*.*", "*");
        pairs += qstrlen(pairs) + 1;
        // Qt would take what stands in parentheses already for the patterns.
        description = description.section('(', 0, 0).trimmed();
        filters.append(description + " (" + patterns + ")");
    }
    return filters;
}

void prepare(QFileDialog& chooser, const OPENFILENAMEA& request, bool save)
{
    chooser.setAcceptMode(save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
    chooser.setFileMode(QFileDialog::AnyFile);
    chooser.setOption(QFileDialog::DontConfirmOverwrite, !(request.Flags & OFN_OVERWRITEPROMPT));
    chooser.setDefaultSuffix(toText(request.lpstrDefExt));
    if (request.lpstrTitle)
        chooser.setWindowTitle(toText(request.lpstrTitle));
    if (request.lpstrInitialDir)
        chooser.setDirectory(toText(request.lpstrInitialDir));

    const QStringList filters = filtersOf(request.lpstrFilter);
    if (!filters.isEmpty()) {
        chooser.setNameFilters(filters);
        const auto last = static_cast<DWORD>(filters.size());
        chooser.selectNameFilter(
            filters[static_cast<int>(std::clamp<DWORD>(request.nFilterIndex, 1, last)) - 1]);
    }
    if (*request.lpstrFile)
        chooser.selectFile(toText(request.lpstrFile));
}

BOOL tellChoice(const QFileDialog& chooser, OPENFILENAMEA& request)
{
    const QByteArray path = chooser.selectedFiles().value(0).toUtf8();
    if (path.size() >= static_cast<qsizetype>(request.nMaxFile))
        return failDialog(FNERR_BUFFERTOOSMALL);
    lstrcpynA(request.lpstrFile, path.constData(), static_cast<int>(request.nMaxFile));
    const auto name = path.lastIndexOf('/') + 1;
    const auto dot = path.lastIndexOf('.');
    request.nFileOffset = static_cast<WORD>(name);
    request.nFileExtension = static_cast<WORD>(dot >= name ? dot + 1 : 0);
    if (request.lpstrFileTitle)
        lstrcpynA(request.lpstrFileTitle, path.constData() + name, static_cast<int>(request.nMaxFileTitle));
    const auto filter = chooser.nameFilters().indexOf(chooser.selectedNameFilter());
    request.nFilterIndex = static_cast<DWORD>(filter + 1);
    return TRUE;
}

BOOL askForFile(OPENFILENAMEA* request, bool save)
{
    if (!request || request->lStructSize != sizeof *request)
        return failDialog(request ? CDERR_STRUCTSIZE : CDERR_INITIALIZATION);
    if (!request->lpstrFile || request->nMaxFile == 0)
        return failDialog(CDERR_INITIALIZATION);
    lastDialogError() = 0;
    application();
    QFileDialog chooser;
    prepare(chooser, *request, save);
    return runModal(chooser, request->hwndOwner) == QDialog::Accepted ? tellChoice(chooser, *request) : FALSE;
}

}

BOOL GetOpenFileNameA(OPENFILENAMEA* dialog)
{
    return askForFile(dialog, false);
}

BOOL GetSaveFileNameA(OPENFILENAMEA* dialog)
{
    return askForFile(dialog, true);
}
