// The elements by which Qt shows our windows and their items to the desktop.
#include "accessible_element.h"

#include "host_widget.h"
#include "rooms_above.h"
#include "window_tree.h"

#include <QAccessibleActionInterface>
#include <QAccessibleWidget>

#include <algorithm>
#include <map>

namespace winapi {

namespace {

struct Release
{
    void operator()(IUnknown* object) const { object->Release(); }
};
template <class Interface>
using Reference = std::unique_ptr<Interface, Release>;

Reference<IAccessible> objectOf(HWND window)
{
    void* object = nullptr;
    AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IAccessible), &object);
    return Reference<IAccessible>(static_cast<IAccessible*>(object));
}

VARIANT childId(LONG item)
{
    VARIANT child{};
    child.vt = VT_I4;
    child.lVal = item;
    return child;
}

struct RolePair
{
    LONG role;
    QAccessible::Role qt;
};
constexpr RolePair kRoles[] = {
    {ROLE_SYSTEM_DIALOG, QAccessible::Dialog},     {ROLE_SYSTEM_TABLE, QAccessible::Table},
    {ROLE_SYSTEM_CELL, QAccessible::Cell},         {ROLE_SYSTEM_STATICTEXT, QAccessible::StaticText},
    {ROLE_SYSTEM_PUSHBUTTON, QAccessible::Button},
};

QAccessible::Role roleFor(LONG role)
{
    const auto* const found = std::find_if(std::begin(kRoles), std::end(kRoles),
                                           [role](const RolePair& pair) { return pair.role == role; });
    return found == std::end(kRoles) ? QAccessible::Client : found->qt;
}

QAccessible::State stateFor(LONG flags)
{
    const auto has = [flags](LONG flag) { return (flags & flag) != 0; };
    QAccessible::State state;
    state.disabled = has(STATE_SYSTEM_UNAVAILABLE);
    state.selected = has(STATE_SYSTEM_SELECTED);
    state.focused = has(STATE_SYSTEM_FOCUSED);
    state.invisible = has(STATE_SYSTEM_INVISIBLE);
    state.focusable = has(STATE_SYSTEM_FOCUSABLE);
    state.selectable = has(STATE_SYSTEM_SELECTABLE);
    return state;
}

QAccessibleInterface* childWindowAt(const Window& window, int index)
{
    const std::vector<Window*> children = shownChildren(window);
    const bool there = index >= 0 && static_cast<std::size_t>(index) < children.size();
    return there ? accessibleOf(*children[static_cast<std::size_t>(index)]) : nullptr;
}

int indexOfWindow(const Window& window, const QAccessibleInterface* child)
{
    const std::vector<Window*> children = shownChildren(window);
    for (std::size_t i = 0; i < children.size(); ++i) {
        if (accessibleOf(*children[i]) == child)
            return static_cast<int>(i);
    }
    return -1;
}

QAccessibleInterface* childWindowAt(const Window& window, QPoint screen)
{
    const QPoint place = screen - screenOrigin(window);
    for (Window* child : shownChildren(window)) {
        if (child->rect.contains(place))
            return accessibleOf(*child);
    }
    return nullptr;
}

// A child window, or an item of one.
class Element final : public QAccessibleInterface, public QAccessibleActionInterface
{
public:
    Element(HWND window, LONG item) : m_window(window), m_item(item), m_object(objectOf(window)) {}

    bool isValid() const override { return IsWindow(m_window) && m_object; }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override
    {
        const WindowPtr window = findWindow(m_window);
        QWidget* const host = window ? rootOf(*window).host.data() : nullptr;
        return host ? host->window()->windowHandle() : nullptr;
    }

    QAccessibleInterface* parent() const override
    {
        const WindowPtr window = findWindow(m_window);
        if (!window)
            return nullptr;
        return accessibleOf(m_item == CHILDID_SELF ? *window->parent : *window);
    }

    int childCount() const override
    {
        const WindowPtr window = findWindow(m_window);
        if (!window || m_item != CHILDID_SELF)
            return 0;
        return itemCount() + static_cast<int>(shownChildren(*window).size());
    }

    QAccessibleInterface* child(int index) const override
    {
        const WindowPtr window = findWindow(m_window);
        if (!window || m_item != CHILDID_SELF || index < 0)
            return nullptr;
        const int items = itemCount();
        return index < items ? accessibleOf(*window, index + 1) : childWindowAt(*window, index - items);
    }

    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const WindowPtr window = findWindow(m_window);
        const auto* const element = dynamic_cast<const Element*>(child);
        if (!window || !element || m_item != CHILDID_SELF)
            return -1;
        if (element->m_window == m_window)
            return static_cast<int>(element->m_item) - 1;
        const int index = indexOfWindow(*window, child);
        return index < 0 ? -1 : itemCount() + index;
    }

    QAccessibleInterface* childAt(int x, int y) const override
    {
        const WindowPtr window = findWindow(m_window);
        if (!window || m_item != CHILDID_SELF)
            return nullptr;
        if (QAccessibleInterface* const child = childWindowAt(*window, QPoint(x, y)))
            return child;
        return itemIn(*window, [&](VARIANT* hit) { return m_object->accHitTest(x, y, hit); });
    }

    QAccessibleInterface* focusChild() const override
    {
        const WindowPtr window = findWindow(m_window);
        if (!window || m_item != CHILDID_SELF)
            return nullptr;
        return itemIn(*window, [&](VARIANT* focus) { return m_object->get_accFocus(focus); });
    }

    QString text(QAccessible::Text kind) const override
    {
        switch (kind) {
        case QAccessible::Name:
            return ask(&IAccessible::get_accName);
        case QAccessible::Description:
            return ask(&IAccessible::get_accDescription);
        case QAccessible::Value:
            return ask(&IAccessible::get_accValue);
        case QAccessible::Accelerator:
            return ask(&IAccessible::get_accKeyboardShortcut);
        default:
            return {};
        }
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override
    {
        LONG left = 0, top = 0, width = 0, height = 0;
        m_object->accLocation(&left, &top, &width, &height, childId(m_item));
        return {left, top, width, height};
    }

    QAccessible::Role role() const override { return roleFor(ask(&IAccessible::get_accRole)); }
    QAccessible::State state() const override { return stateFor(ask(&IAccessible::get_accState)); }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override
    {
        const bool active = !ask(&IAccessible::get_accDefaultAction).isEmpty();
        return active ? QStringList{pressAction()} : QStringList{};
    }
    void doAction(const QString& name) override
    {
        if (name == pressAction())
            m_object->accDoDefaultAction(childId(m_item));
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    // The items, which are no objects of their own, come first among the children, the child windows after
    // them.
    int itemCount() const
    {
        LONG count = 0;
        m_object->get_accChildCount(&count);
        const WindowPtr window = findWindow(m_window);
        return static_cast<int>(count) - static_cast<int>(shownChildren(*window).size());
    }

    template <class Ask>
    QAccessibleInterface* itemIn(Window& window, Ask ask) const
    {
        VARIANT answer{};
        ask(&answer);
        const LONG item = answer.vt == VT_I4 ? answer.lVal : CHILDID_SELF;
        VariantClear(&answer);
        return item != CHILDID_SELF ? accessibleOf(window, item) : nullptr;
    }

    QString ask(HRESULT (IAccessible::*get)(VARIANT, BSTR*)) const
    {
        BSTR text = nullptr;
        (m_object.get()->*get)(childId(m_item), &text);
        const QString result = QString::fromUtf16(text, static_cast<qsizetype>(SysStringLen(text)));
        SysFreeString(text);
        return result;
    }

    LONG ask(HRESULT (IAccessible::*get)(VARIANT, VARIANT*)) const
    {
        VARIANT number{};
        (m_object.get()->*get)(childId(m_item), &number);
        return number.vt == VT_I4 ? number.lVal : 0;
    }

    const HWND m_window;
    const LONG m_item;
    const Reference<IAccessible> m_object;
};

// The widget of a top-level window. Its children are the child windows of that window.
class HostElement final : public QAccessibleWidget
{
public:
    explicit HostElement(HostWidget* host) : QAccessibleWidget(host, QAccessible::Window), m_host(host) {}

    int childCount() const override
    {
        const WindowPtr window = m_host->served();
        return window ? static_cast<int>(shownChildren(*window).size()) : 0;
    }
    QAccessibleInterface* child(int index) const override
    {
        const WindowPtr window = m_host->served();
        return window ? childWindowAt(*window, index) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override
    {
        const WindowPtr window = m_host->served();
        return window ? indexOfWindow(*window, child) : -1;
    }
    QAccessibleInterface* childAt(int x, int y) const override
    {
        const WindowPtr window = m_host->served();
        return window ? childWindowAt(*window, QPoint(x, y)) : nullptr;
    }
    QAccessibleInterface* focusChild() const override
    {
        const WindowPtr root = m_host->served();
        const WindowPtr focus = GetFocus() ? findWindow(GetFocus()) : nullptr;
        if (!root || !focus || !isDescendant(*root, *focus))
            return nullptr;
        QAccessibleInterface* const element = accessibleOf(*focus);
        QAccessibleInterface* const item = element ? element->focusChild() : nullptr;
        return item ? item : element;
    }
    // Qt gives the widget the focus even when a child window has it.
    QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.focused = state.focused && !focusChild();
        return state;
    }

private:
    HostWidget* m_host;
};

QAccessibleInterface* makeHostElement(const QString&, QObject* object)
{
    auto* const host = dynamic_cast<HostWidget*>(object);
    return host ? new HostElement(host) : nullptr;
}

// The elements made so far, by window and item. Qt owns them.
using Elements = std::map<std::pair<HWND, LONG>, QAccessible::Id>;

Elements& elements()
{
    static auto& made = *new Elements; // never destroyed: a program may leave windows behind
    return made;
}

void forgetFrom(HWND window, LONG firstItem)
{
    auto& made = elements();
    const auto begin = made.lower_bound({window, firstItem});
    auto end = begin;
    for (; end != made.end() && end->first.first == window; ++end)
        QAccessible::deleteAccessibleInterface(end->second);
    made.erase(begin, end);
}

}

void installAccessibility()
{
    QAccessible::installFactory(&makeHostElement);
}

QAccessibleInterface* accessibleOf(Window& window)
{
    if (window.isTopLevel())
        return window.host ? QAccessible::queryAccessibleInterface(window.host) : nullptr;
    return accessibleOf(window, CHILDID_SELF);
}

QAccessibleInterface* accessibleOf(Window& window, LONG item)
{
    QAccessible::Id& id = elements()[{window.handle, item}];
    if (QAccessibleInterface* const known = id ? QAccessible::accessibleInterface(id) : nullptr)
        return known;
    auto* const made = new Element(window.handle, item);
    id = QAccessible::registerAccessibleInterface(made);
    return made;
}

void forgetAccessibleItems(HWND window)
{
    forgetFrom(window, CHILDID_SELF + 1);
}

void forgetAccessible(HWND window)
{
    forgetFrom(window, CHILDID_SELF);
}

}
