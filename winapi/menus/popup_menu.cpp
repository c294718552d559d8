// Shows a menu as a menu of Qt, and tells its owner what happens.
#include "application.h"
#include "errors.h"
#include "menu.h"
#include "rooms_above.h"
#include "window_tree.h"
#include "winerror.h"
#include "winuser.h"

#include <QKeyEvent>
#include <QMenu>
#include <QPointer>

#include <algorithm>
#include <vector>

namespace winapi {

namespace {

// What all menus of one showing share.
struct Showing
{
    HWND owner;
    UINT chosen = 0;

    void tell(UINT message, WPARAM wParam, LPARAM lParam) const
    {
        if (IsWindow(owner))
            SendMessageA(owner, message, wParam, lParam);
    }
};

class PopupMenu : public QMenu
{
public:
    PopupMenu(HMENU menu, Showing& showing, QWidget* parent = nullptr)
        : QMenu(parent), m_menu(menu), m_showing(showing)
    {
        connect(this, &QMenu::hovered, this, &PopupMenu::tellSelection);
        connect(this, &QMenu::aboutToHide, this, &PopupMenu::tellEnd);
    }

    HWND owner() const { return m_showing.owner; }

    // The owner may change the items before they are shown.
    void prepare(int positionInParent)
    {
        m_showing.tell(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(m_menu),
                       MAKELPARAM(positionInParent, FALSE));
        clear();
        if (const auto menu = findMenu(m_menu))
            for (const MenuItem& item : menu->items)
                addItem(item);
    }

protected:
    // A letter goes to the next item that it stands for, and chooses it if there is no other.
    void keyPressEvent(QKeyEvent* event) override
    {
        const std::vector<QAction*> matches = actionsFor(event->text());
        if (matches.empty())
            return QMenu::keyPressEvent(event);
        const auto current = std::find(matches.begin(), matches.end(), activeAction());
        const bool goOn = current != matches.end() && current + 1 != matches.end();
        setActiveAction(goOn ? *(current + 1) : firstAfterActive(matches));
        if (matches.size() == 1) {
            QKeyEvent choose(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QMenu::keyPressEvent(&choose);
        }
    }

private:
    void addItem(const MenuItem& item)
    {
        const auto position = static_cast<int>(actions().size());
        const QString text = QString::fromStdString(item.text);
        QAction* action = nullptr;
        if (item.isSeparator())
            action = addSeparator();
        else if (item.subMenu)
            action = addMenu(makeSubMenu(item.subMenu, position));
        else
            action = addAction(text, this, [this, id = item.id] { m_showing.chosen = id; });
        if (item.subMenu)
            action->setText(text);
        action->setEnabled(!(item.state & (MF_GRAYED | MF_DISABLED)));
        action->setData(item.subMenu ? static_cast<UINT>(position) : item.id);
        action->setProperty("flags", item.flags());
    }

    QMenu* makeSubMenu(HMENU menu, int position)
    {
        auto* const subMenu = new PopupMenu(menu, m_showing, this);
        connect(subMenu, &QMenu::aboutToShow, subMenu, [subMenu, position] { subMenu->prepare(position); });
        return subMenu;
    }

    // Qt also tells a menu about the items of its submenus.
    void tellSelection(QAction* action)
    {
        if (!actions().contains(action))
            return;
        const UINT flags = action->property("flags").toUInt() | MF_HILITE;
        m_showing.tell(WM_MENUSELECT, MAKEWPARAM(action->data().toUInt(), flags),
                       reinterpret_cast<LPARAM>(m_menu));
    }

    void tellEnd() { m_showing.tell(WM_UNINITMENUPOPUP, reinterpret_cast<WPARAM>(m_menu), 0); }

    // The letter of an item is the marked one, else its first.
    static QChar letterOf(const QString& text)
    {
        for (qsizetype i = 0; i + 1 < text.size(); ++i)
            if (text[i] == u'&' && text[++i] != u'&')
                return text[i].toCaseFolded();
        return text.isEmpty() ? QChar() : text[0].toCaseFolded();
    }

    std::vector<QAction*> actionsFor(const QString& typed) const
    {
        std::vector<QAction*> matches;
        if (typed.size() != 1 || !typed[0].isLetterOrNumber())
            return matches;
        for (QAction* action : actions())
            if (action->isEnabled() && !action->isSeparator() &&
                letterOf(action->text()) == typed[0].toCaseFolded())
                matches.push_back(action);
        return matches;
    }

    QAction* firstAfterActive(const std::vector<QAction*>& matches) const
    {
        const auto active = actions().indexOf(activeAction());
        for (QAction* action : matches)
            if (actions().indexOf(action) > active)
                return action;
        return matches.front();
    }

    HMENU m_menu;
    Showing& m_showing;
};

QPointer<PopupMenu>& shown()
{
    static auto& menu = *new QPointer<PopupMenu>;
    return menu;
}

// 0 for a key that a menu has no use for.
int toQtKey(WPARAM key)
{
    struct Key
    {
        WPARAM windows;
        int qt;
    };
    constexpr Key kKeys[] = {
        {VK_UP, Qt::Key_Up},         {VK_DOWN, Qt::Key_Down},     {VK_LEFT, Qt::Key_Left},
        {VK_RIGHT, Qt::Key_Right},   {VK_HOME, Qt::Key_Home},     {VK_END, Qt::Key_End},
        {VK_RETURN, Qt::Key_Return}, {VK_ESCAPE, Qt::Key_Escape},
    };
    const auto* found = std::find_if(std::begin(kKeys), std::end(kKeys),
                                     [key](const Key& known) { return known.windows == key; });
    return found == std::end(kKeys) ? 0 : found->qt;
}

void sendKey(int key, const QString& text)
{
    QKeyEvent event(QEvent::KeyPress, key, Qt::NoModifier, text);
    QCoreApplication::sendEvent(QApplication::activePopupWidget(), &event);
}

// A press that was waiting when the menu came up closes it.
bool takePress(const MSG& message)
{
    const UINT press = message.message;
    const bool isPress = press == WM_LBUTTONDOWN || press == WM_LBUTTONDBLCLK || press == WM_RBUTTONDOWN ||
                         press == WM_MBUTTONDOWN;
    if (isPress)
        endMenu();
    return isPress;
}

// The keys of the message queue go to the menu while it is shown, wherever the focus is.
bool takeKey(const MSG& message)
{
    if (message.message == WM_KEYDOWN) {
        const int key = toQtKey(message.wParam);
        if (key != 0)
            sendKey(key, QString());
        return key != 0;
    }
    const bool isLetter = message.message == WM_CHAR && message.wParam > ' ';
    if (isLetter)
        sendKey(0, QChar(static_cast<ushort>(message.wParam)));
    return isLetter;
}

LRESULT filterMenuMessage(int code, WPARAM wParam, LPARAM lParam)
{
    const auto& message = *reinterpret_cast<const MSG*>(lParam);
    if (code >= 0 && QApplication::activePopupWidget() && (takePress(message) || takeKey(message)))
        return TRUE;
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// While this lives, the messages of the menu's loop go through filterMenuMessage.
class MenuFilter
{
public:
    MenuFilter() : m_hook(SetWindowsHookExA(WH_MSGFILTER, filterMenuMessage, nullptr, GetCurrentThreadId()))
    {
    }
    ~MenuFilter() { UnhookWindowsHookEx(m_hook); }
    MenuFilter(const MenuFilter&) = delete;
    MenuFilter& operator=(const MenuFilter&) = delete;

private:
    HHOOK m_hook;
};

void show(PopupMenu& popup, QPoint place)
{
    const MenuFilter filter;
    popup.exec(place);
}

// False when there is nothing to show.
bool runMenu(HMENU menu, QPoint place, Showing& showing)
{
    PopupMenu popup(menu, showing);
    shown() = &popup;
    showing.tell(WM_ENTERMENULOOP, TRUE, 0);
    showing.tell(WM_INITMENU, reinterpret_cast<WPARAM>(menu), 0);
    popup.prepare(0);
    const bool filled = !popup.isEmpty();
    if (filled)
        show(popup, place);
    else
        showing.tell(WM_UNINITMENUPOPUP, reinterpret_cast<WPARAM>(menu), 0);
    showing.tell(WM_MENUSELECT, MAKEWPARAM(0, 0xFFFF), 0);
    showing.tell(WM_EXITMENULOOP, TRUE, 0);
    return filled;
}

}

void endMenu()
{
    if (shown())
        shown()->close();
}

}

void winapi::endMenuOf(const Window& window)
{
    const WindowPtr owner = shown() ? findWindow(shown()->owner()) : nullptr;
    if (owner && (owner.get() == &window || isDescendant(window, *owner)))
        shown()->close();
}

using namespace winapi;

BOOL TrackPopupMenu(HMENU menu, UINT flags, int x, int y, int, HWND owner, const RECT*)
{
    if (flags != 0)
        return fail(ERROR_INVALID_FLAGS);
    if (!findMenu(menu))
        return FALSE;
    if (!IsWindow(owner))
        return fail(ERROR_INVALID_WINDOW_HANDLE);
    if (shown())
        return fail(ERROR_POPUP_ALREADY_ACTIVE);
    application();
    Showing showing{owner};
    const bool wasShown = runMenu(menu, {x, y}, showing);
    SetLastError(ERROR_SUCCESS);
    if (!wasShown)
        return FALSE;
    if (showing.chosen != 0)
        PostMessageA(owner, WM_COMMAND, showing.chosen, 0);
    return TRUE;
}
