// What a window of our own tells screen readers and other assistive technology.
#pragma once

#include <afxwin.h>
#include <oleacc.h>

#include <atomic>

// Speaks for a window, for the items that it draws itself, and lists its child windows, which speak for
// themselves. Items are numbered from 1; number 0 is the window. Clients may keep the object for as long as
// they like: once the window is gone all calls fail.
//
// A derived class says what there is. It is only asked for items that exist, while IsConnected.
class WindowAccessible : public IAccessible
{
public:
    explicit WindowAccessible(HWND hWnd);
    WindowAccessible(const WindowAccessible&) = delete;
    WindowAccessible& operator=(const WindowAccessible&) = delete;

    // Whether a WM_GETOBJECT asks for this object.
    static bool IsAskedFor(LPARAM lParam) { return static_cast<LONG>(lParam) == OBJID_CLIENT; }
    // The answer to it. Takes over the caller's reference.
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
    // What DoAction does, in a word; empty for nothing.
    virtual CString GetAction(LONG nItem) const = 0;
    virtual void DoAction(LONG nItem) = 0;

    // Of items only; places are in client coordinates.
    virtual CRect GetItemRect(LONG) const { return {}; }
    virtual LONG GetItemAt(CPoint) const { return 0; }
    virtual LONG GetSelectedItem() const { return 0; }

    LONG GetWindowState() const;

    const HWND m_hWnd;

private:
    static HRESULT NoText(BSTR* pText);
    // Whether the item exists, with S_OK, and which one it is.
    HRESULT Find(const VARIANT& child, LONG& nItem) const;
    template <class Get>
    HRESULT GiveText(const VARIANT& child, BSTR* pText, Get get) const;
    template <class Get>
    HRESULT GiveNumber(const VARIANT& child, VARIANT* pNumber, Get get) const;

    IAccessible* m_pStandard = nullptr; // the system's object for the window, which knows its surroundings
    std::atomic<ULONG> m_nReferences = 1;
};

// The same for an object of the toolkit: found anew at each call, so that none is kept alive or missed.
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
