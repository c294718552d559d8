// What a window of this library tells screen readers and other assistive technology.
#pragma once

#include <afxwin.h>
#include <oleacc.h>

#include <atomic>

// Answers for a window and for the items that the window draws itself, and lists the child windows, each of
// which has an object of its own. Items are numbered from 1; number 0 is the window. Clients may keep the
// object for as long as they like; once the window is gone, all calls fail.
//
// A derived class tells what the window and its items are. It is asked only while IsConnected is true, and
// only for items that exist.
class WindowAccessible : public IAccessible
{
public:
    explicit WindowAccessible(HWND hWnd);
    WindowAccessible(const WindowAccessible&) = delete;
    WindowAccessible& operator=(const WindowAccessible&) = delete;

    // Whether a message WM_GETOBJECT with this parameter asks for the object.
    static bool IsAskedFor(LPARAM lParam) { return static_cast<LONG>(lParam) == OBJID_CLIENT; }
    // The result of that message. Takes over the caller's reference to the object.
    static LRESULT HandOut(WindowAccessible* pObject, WPARAM wParam);

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID riid, void** ppObject) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;

    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override
    {
        return E_NOTIMPL;
    }
    HRESULT STDMETHODCALLTYPE Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*,
                                     UINT*) override
    {
        return E_NOTIMPL;
    }

    HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** ppParent) override;
    HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* pCount) override;
    HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** ppChild) override;
    HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* pName) override;
    HRESULT STDMETHODCALLTYPE get_accValue(VARIANT, BSTR* pText) override { return NoText(pText); }
    HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT, BSTR* pText) override { return NoText(pText); }
    HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* pRole) override;
    HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* pState) override;
    HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT, BSTR* pText) override { return NoText(pText); }
    HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR*, VARIANT, LONG*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* pKey) override;
    HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* pChild) override;
    HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* pChild) override;
    HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* pAction) override;
    HRESULT STDMETHODCALLTYPE accSelect(LONG nFlags, VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accLocation(LONG* pLeft, LONG* pTop, LONG* pWidth, LONG* pHeight,
                                          VARIANT child) override;
    HRESULT STDMETHODCALLTYPE accNavigate(LONG, VARIANT, VARIANT*) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* pChild) override;
    HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) override;
    HRESULT STDMETHODCALLTYPE put_accName(VARIANT, BSTR) override { return E_NOTIMPL; }
    HRESULT STDMETHODCALLTYPE put_accValue(VARIANT, BSTR) override { return E_NOTIMPL; }

protected:
    virtual ~WindowAccessible();

    virtual bool IsConnected() const = 0;
    virtual LONG GetItemCount() const { return 0; }
    virtual CString GetName(LONG nItem) const = 0;
    virtual LONG GetRole(LONG nItem) const = 0;
    virtual LONG GetState(LONG) const { return GetWindowState(); }
    // What DoAction does, in one word; empty if it does nothing.
    virtual CString GetAction(LONG nItem) const = 0;
    virtual void DoAction(LONG nItem) = 0;

    // For a window with items. Places are in client coordinates.
    virtual CRect GetItemRect(LONG) const { return {}; }
    virtual LONG GetItemAt(CPoint) const { return 0; }
    virtual LONG GetSelectedItem() const { return 0; }

    LONG GetWindowState() const;

    const HWND m_hWnd;

private:
    static HRESULT NoText(BSTR* pText);
    // The number of the item that `child` names. S_OK if there is such an item and the window still exists.
    HRESULT Find(const VARIANT& child, LONG& nItem) const;
    template <class Get>
    HRESULT GiveText(const VARIANT& child, BSTR* pText, Get get) const;
    template <class Get>
    HRESULT GiveNumber(const VARIANT& child, VARIANT* pNumber, Get get) const;

    IAccessible* m_pStandard = nullptr; // the system's object for the window, which knows its surroundings
    std::atomic<ULONG> m_nReferences = 1;
};

// The base of an object for a window of the class Wnd. It looks the window's object up at each call, since
// that object may end at any time.
template <class Wnd>
class AccessibleOf : public WindowAccessible
{
public:
    using WindowAccessible::WindowAccessible;

protected:
    bool IsConnected() const override { return FindWnd() != nullptr; }
    Wnd& GetWnd() const { return *FindWnd(); }

private:
    Wnd* FindWnd() const { return dynamic_cast<Wnd*>(CWnd::FromHandlePermanent(m_hWnd)); }
};
