// The message box.
#include "application.h"
#include "modal_dialog.h"

#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

#include <algorithm>

using namespace winapi;

namespace {

struct Answer
{
    int id;
    QMessageBox::StandardButton button;
};
constexpr Answer answers[] = {{IDOK, QMessageBox::Ok},
                              {IDCANCEL, QMessageBox::Cancel},
                              {IDYES, QMessageBox::Yes},
                              {IDNO, QMessageBox::No}};

struct Kind
{
    UINT type;
    std::vector<QMessageBox::StandardButton> buttons;
    bool canBeDismissed; // by Escape and by closing
};

const Kind* findKind(UINT type)
{
    static const Kind kinds[] = {
        {MB_OK, {QMessageBox::Ok}, true},
        {MB_OKCANCEL, {QMessageBox::Ok, QMessageBox::Cancel}, true},
        {MB_YESNOCANCEL, {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}, true},
        {MB_YESNO, {QMessageBox::Yes, QMessageBox::No}, false},
    };
    const auto found = std::find_if(std::begin(kinds), std::end(kinds),
                                    [type](const Kind& kind) { return kind.type == (type & MB_TYPEMASK); });
    return found == std::end(kinds) ? nullptr : found;
}

QMessageBox::Icon iconOf(UINT type)
{
    switch (type & MB_ICONMASK) {
    case MB_ICONHAND:
        return QMessageBox::Critical;
    case MB_ICONQUESTION:
        return QMessageBox::Question;
    case MB_ICONEXCLAMATION:
        return QMessageBox::Warning;
    case MB_ICONASTERISK:
        return QMessageBox::Information;
    default:
        return QMessageBox::NoIcon;
    }
}

class Box : public QMessageBox
{
public:
    Box(const Kind& kind, UINT type) : m_canBeDismissed(kind.canBeDismissed)
    {
        setTextFormat(Qt::PlainText);
        setIcon(iconOf(type));
        for (const StandardButton button : kind.buttons)
            addButton(button);
        const auto preferred =
            std::min<std::size_t>((type & MB_DEFMASK) / MB_DEFBUTTON2, kind.buttons.size() - 1);
        setDefaultButton(kind.buttons[preferred]);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override
    {
        if (event->key() != Qt::Key_Escape || m_canBeDismissed)
            QMessageBox::keyPressEvent(event);
    }
    void closeEvent(QCloseEvent* event) override
    {
        if (m_canBeDismissed)
            QMessageBox::closeEvent(event);
        else
            event->ignore();
    }

private:
    bool m_canBeDismissed;
};

}

int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT type)
{
    const Kind* const kind = findKind(type);
    if (!kind) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return 0;
    }
    application();
    Box box(*kind, type);
    box.setText(QString::fromUtf8(text));
    box.setWindowTitle(QString::fromUtf8(caption ? caption : "Error"));
    const int pressed = runModal(box, owner);
    const auto answer = std::find_if(std::begin(answers), std::end(answers),
                                     [pressed](const Answer& one) { return one.button == pressed; });
    return answer == std::end(answers) ? 0 : answer->id;
}
