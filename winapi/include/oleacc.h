// What windows tell screen readers and other assistive technology.
//
// A window may answer WM_GETOBJECT with an object of its own; the standard object speaks for any other. Qt
// passes on to the desktop what the objects say.
#pragma once

#include "winuser.h"
#include "oleauto.h"

struct IAccessible : IDispatch
{
    static constexpr IID kId{0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};

    virtual HRESULT STDMETHODCALLTYPE get_accParent(IDispatch** parent) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accChildCount(LONG* count) = 0;
    // S_FALSE, and null, for a child that is no object of its own.
    virtual HRESULT STDMETHODCALLTYPE get_accChild(VARIANT child, IDispatch** object) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accName(VARIANT child, BSTR* name) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accValue(VARIANT child, BSTR* value) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accDescription(VARIANT child, BSTR* description) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accRole(VARIANT child, VARIANT* role) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accState(VARIANT child, VARIANT* state) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accHelp(VARIANT child, BSTR* help) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accHelpTopic(BSTR* file, VARIANT child, LONG* topic) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accKeyboardShortcut(VARIANT child, BSTR* shortcut) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accFocus(VARIANT* child) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accSelection(VARIANT* children) = 0;
    virtual HRESULT STDMETHODCALLTYPE get_accDefaultAction(VARIANT child, BSTR* action) = 0;
    virtual HRESULT STDMETHODCALLTYPE accSelect(LONG flags, VARIANT child) = 0;
    virtual HRESULT STDMETHODCALLTYPE accLocation(LONG* left, LONG* top, LONG* width, LONG* height,
                                                  VARIANT child) = 0;
    virtual HRESULT STDMETHODCALLTYPE accNavigate(LONG direction, VARIANT start, VARIANT* end) = 0;
    virtual HRESULT STDMETHODCALLTYPE accHitTest(LONG x, LONG y, VARIANT* child) = 0;
    virtual HRESULT STDMETHODCALLTYPE accDoDefaultAction(VARIANT child) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_accName(VARIANT child, BSTR name) = 0;
    virtual HRESULT STDMETHODCALLTYPE put_accValue(VARIANT child, BSTR value) = 0;
};

#define WM_GETOBJECT 0x003D

#define CHILDID_SELF 0
#define OBJID_CLIENT (static_cast<LONG>(-4))

#define SELFLAG_TAKEFOCUS 0x01
#define SELFLAG_TAKESELECTION 0x02

#define ROLE_SYSTEM_CLIENT 0x0A
#define ROLE_SYSTEM_DIALOG 0x12
#define ROLE_SYSTEM_TABLE 0x18
#define ROLE_SYSTEM_CELL 0x1D
#define ROLE_SYSTEM_STATICTEXT 0x29
#define ROLE_SYSTEM_PUSHBUTTON 0x2B

#define STATE_SYSTEM_UNAVAILABLE 0x00000001
#define STATE_SYSTEM_SELECTED 0x00000002
#define STATE_SYSTEM_FOCUSED 0x00000004
#define STATE_SYSTEM_INVISIBLE 0x00008000
#define STATE_SYSTEM_FOCUSABLE 0x00100000
#define STATE_SYSTEM_SELECTABLE 0x00200000

// What a window answers to WM_GETOBJECT with, for the object that speaks for it. The answer holds a reference
// of its own to the object until AccessibleObjectFromWindow takes it.
WINUSERAPI LRESULT WINAPI LresultFromObject(REFIID id, WPARAM wParam, IUnknown* object)
    ZEB17_NAME(LresultFromObject);

// The object that speaks for a window, its own or the standard one. Only OBJID_CLIENT is served.
WINUSERAPI HRESULT WINAPI AccessibleObjectFromWindow(HWND window, DWORD objectId, REFIID id, void** object)
    ZEB17_NAME(AccessibleObjectFromWindow);
WINUSERAPI HRESULT WINAPI CreateStdAccessibleObject(HWND window, LONG objectId, REFIID id, void** object)
    ZEB17_NAME(CreateStdAccessibleObject);

// ---- events ----

#define EVENT_OBJECT_REORDER 0x8004
#define EVENT_OBJECT_FOCUS 0x8005
#define EVENT_OBJECT_SELECTION 0x8006
#define EVENT_OBJECT_NAMECHANGE 0x800C

#define WINEVENT_OUTOFCONTEXT 0x0000

DECLARE_HANDLE(HWINEVENTHOOK);
using WINEVENTPROC = void (*)(HWINEVENTHOOK, DWORD event, HWND, LONG objectId, LONG child, DWORD thread,
                              DWORD time);

// Tells assistive technology that something has changed about a window, or about a child of its object.
WINUSERAPI void WINAPI NotifyWinEvent(DWORD event, HWND window, LONG objectId, LONG child)
    ZEB17_NAME(NotifyWinEvent);
// The procedure is called for each event of this process, at once.
WINUSERAPI HWINEVENTHOOK WINAPI SetWinEventHook(DWORD eventMin, DWORD eventMax, HMODULE module,
                                                WINEVENTPROC procedure, DWORD process, DWORD thread,
                                                DWORD flags) ZEB17_NAME(SetWinEventHook);
WINUSERAPI BOOL WINAPI UnhookWinEvent(HWINEVENTHOOK hook) ZEB17_NAME(UnhookWinEvent);
