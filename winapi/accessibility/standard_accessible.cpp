// The standard object: what can be said of any window, from its class, its style and its text.
#include "oleacc.h"

#include "window.h"
#include "window_tree.h"

#include <QString>

#include <algorithm>

using namespace winapi;

namespace {

LONG roleOf(const Window& window)
{
    const QString name = QString::fromStdString(window.windowClass->name).toLower();
    if (name == "button")
        return ROLE_SYSTEM_PUSHBUTTON;
    return name == "#32770" ? ROLE_SYSTEM_DIALOG : ROLE_SYSTEM_CLIENT;
}

QString textOf(HWND window)
{
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    GetWindowTextA(window, text.data(), static_cast<int>(text.size()));
    return QString::fromUtf8(text.c_str());
}

HRESULT give(const QString& text, BSTR* result)
{
    *result = text.isEmpty() ? nullptr
                             : SysAllocStringLen(reinterpret_cast<const OLECHAR*>(text.utf16()),
                                                 static_cast<UINT>(text.size()));
    return *result ? S_OK : S_FALSE;
}

HRESULT give(LONG number, VARIANT* result)
{
    *result = {};
    result->vt = VT_I4;
    result->lVal = number;
    return S_OK;
}

HRESULT giveObject(HWND window, IDispatch** object)
{
    return AccessibleObjectFromWindow(window, static_cast<DWORD>(OBJID_CLIENT), __uuidof(IDispatch),
                                      reinterpret_cast<void**>(object));
}

HRESULT giveObject(HWND window, VARIANT* result)
{
    *result = {};
    const HRESULT hr = giveObject(window, &result->pdispVal);
    result->vt = SUCCEEDED(hr) ? VT_DISPATCH : VT_EMPTY;
    return hr;
}

HRESULT giveNothing(VARIANT* result)
{
    *result = {};
    return S_FALSE;
}

class StandardAccessible final : public IAccessible
{
public:
    explicit StandardAccessible(HWND window) : m_window(window) {}
    StandardAccessible(const StandardAccessible&) = delete;
    StandardAccessible& operator=(const StandardAccessible&) = delete;

    HRESULT QueryInterface(REFIID id, void** object) override
    {
        const bool known =
            id == __uuidof(IUnknown) || id == __uuidof(IDispatch) || id == __uuidof(IAccessible);
        *object = known ? this : nullptr;
        if (!known)
            return E_NOINTERFACE;
        AddRef();
        return S_OK;
    }
    ULONG AddRef() override { return ++m_references; }
    ULONG Release() override
    {
        const ULONG left = --m_references;
        if (left == 0)
            delete this;
        return left;
    }

    HRESULT GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
    HRESULT Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override
    {
        return E_NOTIMPL;
    }

    HRESULT get_accParent(IDispatch** parent) override
    {
        *parent = nullptr;
        return tell([&](Window& window) {
            return window.isTopLevel() ? S_FALSE : giveObject(window.parent->handle, parent);
        });
    }
    HRESULT get_accChildCount(LONG* count) override
    {
        return tell([&](Window& window) {
            *count = static_cast<LONG>(shownChildren(window).size());
            return S_OK;
        });
    }
    HRESULT get_accChild(VARIANT child, IDispatch** object) override
    {
        *object = nullptr;
        return tell([&](Window& window) {
            if (child.vt == VT_I4 && child.lVal == CHILDID_SELF)
                return QueryInterface(__uuidof(IDispatch), reinterpret_cast<void**>(object));
            const std::vector<Window*> children = shownChildren(window);
            const auto index = static_cast<std::size_t>(child.lVal) - 1;
            return child.vt == VT_I4 && index < children.size() ? giveObject(children[index]->handle, object)
                                                                : E_INVALIDARG;
        });
    }
    HRESULT get_accName(VARIANT child, BSTR* name) override
    {
        return tellOfSelf(child, [&](Window&) { return give(textOf(m_window).remove('&'), name); });
    }
    HRESULT get_accValue(VARIANT child, BSTR* value) override
    {
        return tellOfSelf(child, [&](Window&) { return give(QString(), value); });
    }
    HRESULT get_accDescription(VARIANT, BSTR* text) override { return give(QString(), text); }
    HRESULT get_accHelp(VARIANT, BSTR* text) override { return give(QString(), text); }
    HRESULT get_accHelpTopic(BSTR*, VARIANT, LONG*) override { return E_NOTIMPL; }
    HRESULT get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) override
    {
        return tellOfSelf(child, [&](Window&) {
            const QString text = textOf(m_window);
            const qsizetype mark = text.indexOf('&');
            const bool marked = mark >= 0 && mark + 1 < text.size();
            return give(marked ? "Alt+" + text.mid(mark + 1, 1).toUpper() : QString(), shortcut);
        });
    }
    HRESULT get_accRole(VARIANT child, VARIANT* role) override
    {
        return tellOfSelf(child, [&](Window& window) { return give(roleOf(window), role); });
    }
    HRESULT get_accState(VARIANT child, VARIANT* state) override
    {
        return tellOfSelf(child, [&](Window& window) { return give(stateOf(window), state); });
    }
    HRESULT get_accFocus(VARIANT* child) override
    {
        return tell([&](Window&) {
            const HWND focus = GetFocus();
            if (focus == m_window)
                return give(CHILDID_SELF, child);
            return IsChild(m_window, focus) ? giveObject(focus, child) : giveNothing(child);
        });
    }
    HRESULT get_accSelection(VARIANT* child) override { return giveNothing(child); }
    HRESULT get_accDefaultAction(VARIANT child, BSTR* action) override
    {
        return tellOfSelf(child, [&](Window& window) {
            return give(canBePressed(window) ? QStringLiteral("Press") : QString(), action);
        });
    }
    HRESULT accSelect(LONG flags, VARIANT child) override
    {
        return tellOfSelf(child, [&](Window&) {
            if (flags != SELFLAG_TAKEFOCUS)
                return E_INVALIDARG;
            SetFocus(m_window);
            return S_OK;
        });
    }
    HRESULT accLocation(LONG* left, LONG* top, LONG* width, LONG* height, VARIANT child) override
    {
        return tellOfSelf(child, [&](Window& window) {
            const QPoint origin = screenOrigin(window);
            *left = origin.x();
            *top = origin.y();
            *width = window.rect.width();
            *height = window.rect.height();
            return S_OK;
        });
    }
    HRESULT accNavigate(LONG, VARIANT, VARIANT*) override { return E_NOTIMPL; }
    HRESULT accHitTest(LONG x, LONG y, VARIANT* child) override
    {
        return tell([&](Window& window) {
            const QPoint place = QPoint(x, y) - screenOrigin(window);
            const HWND hit = ChildWindowFromPoint(m_window, {place.x(), place.y()});
            if (!hit)
                return giveNothing(child);
            return hit == m_window ? give(CHILDID_SELF, child) : giveObject(hit, child);
        });
    }
    HRESULT accDoDefaultAction(VARIANT child) override
    {
        return tellOfSelf(child, [&](Window& window) {
            if (!canBePressed(window))
                return DISP_E_MEMBERNOTFOUND;
            PostMessageA(m_window, BM_CLICK, 0, 0);
            return S_OK;
        });
    }
    HRESULT put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    HRESULT put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

private:
    ~StandardAccessible() = default;

    template <class Answer>
    HRESULT tell(Answer answer) const
    {
        const WindowPtr window = findWindow(m_window);
        return window ? answer(*window) : CO_E_OBJNOTCONNECTED;
    }
    template <class Answer>
    HRESULT tellOfSelf(const VARIANT& child, Answer answer) const
    {
        return child.vt == VT_I4 && child.lVal == CHILDID_SELF ? tell(answer) : E_INVALIDARG;
    }

    static bool canBePressed(const Window& window)
    {
        return window.isEnabled() && roleOf(window) == ROLE_SYSTEM_PUSHBUTTON;
    }

    LONG stateOf(const Window& window) const
    {
        LONG state = 0;
        if (!window.isVisible())
            state |= STATE_SYSTEM_INVISIBLE;
        if (!window.isEnabled())
            state |= STATE_SYSTEM_UNAVAILABLE;
        else if (window.is(WS_TABSTOP))
            state |= STATE_SYSTEM_FOCUSABLE;
        if (GetFocus() == m_window)
            state |= STATE_SYSTEM_FOCUSED;
        return state;
    }

    const HWND m_window;
    ULONG m_references = 1;
};

}

// Who asks is in this process: the answer is the object itself, with one reference more.
LRESULT LresultFromObject(REFIID id, WPARAM, IUnknown* object)
{
    void* reference = nullptr;
    const HRESULT hr = object->QueryInterface(id, &reference);
    return SUCCEEDED(hr) ? reinterpret_cast<LRESULT>(reference) : hr;
}

HRESULT AccessibleObjectFromWindow(HWND window, DWORD objectId, REFIID id, void** object)
{
    const LRESULT own = SendMessageA(window, WM_GETOBJECT, 0, static_cast<LONG>(objectId));
    if (own <= 0)
        return CreateStdAccessibleObject(window, static_cast<LONG>(objectId), id, object);
    auto* const reference = reinterpret_cast<IUnknown*>(own);
    const HRESULT hr = reference->QueryInterface(id, object);
    reference->Release();
    return hr;
}

HRESULT CreateStdAccessibleObject(HWND window, LONG objectId, REFIID id, void** object)
{
    *object = nullptr;
    if (objectId != OBJID_CLIENT || !IsWindow(window))
        return E_FAIL;
    IAccessible* const created = new StandardAccessible(window);
    const HRESULT hr = created->QueryInterface(id, object);
    created->Release();
    return hr;
}
