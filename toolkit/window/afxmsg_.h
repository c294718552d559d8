// Message maps: the tables that lead from a window message or a command to the member that handles it.
// Included by afxwin.h.
//
//     class CMyWnd : public CWnd
//     {
//         afx_msg void OnSize(UINT nType, int cx, int cy);
//         afx_msg void OnFileOpen();
//         DECLARE_MESSAGE_MAP()
//     };
//
//     BEGIN_MESSAGE_MAP(CMyWnd, CWnd)
//         ON_WM_SIZE()
//         ON_COMMAND(ID_FILE_OPEN, &CMyWnd::OnFileOpen)
//     END_MESSAGE_MAP()
//
// A handler whose arguments or result do not fit its macro does not compile.
#pragma once

#include <type_traits>

#include <afx.h>
#include <windows.h>

#include <atltypes.h>

class CCmdTarget;
class CCmdUI;
class CDC;
class CWnd;

#define afx_msg

// The call of a handler: what it may need, and what it answers.
struct AFX_EVENT
{
    WPARAM wParam = 0;
    LPARAM lParam = 0;
    UINT nID = 0;               // the id of a command or of the control of a notification
    CCmdUI* pCmdUI = nullptr;   // the item that an update handler sets
    NMHDR* pNMHDR = nullptr;    // what a notification tells
    LRESULT* pResult = nullptr; // where the handler of a notification writes its answer
    LRESULT lResult = 0;        // the answer of the handler of a message
};

// Calls a handler of the target. Gives false if the handler passes the event on.
using AFX_HANDLER = bool (*)(CCmdTarget* pTarget, AFX_EVENT& event);

// A line of a message map. A command or a notification fits a line by message, code and id, any other message
// by its number.
struct AFX_MSGMAP_ENTRY
{
    UINT nMessage;
    UINT nCode;
    UINT nID;
    UINT nLastID;
    AFX_HANDLER pfnHandler;
};

// The lines of one class, the last of which has no handler, and the function that gives the map of the base
// class.
struct AFX_MSGMAP
{
    const AFX_MSGMAP* (*pfnGetBaseMap)();
    const AFX_MSGMAP_ENTRY* lpEntries;
};

// Each of these takes one argument of a handler out of an event.
namespace AfxArg {
inline UINT WParam(const AFX_EVENT& e)
{
    return static_cast<UINT>(e.wParam);
}
inline UINT WParamLow(const AFX_EVENT& e)
{
    return LOWORD(e.wParam);
}
inline short WParamHighSigned(const AFX_EVENT& e)
{
    return static_cast<short>(HIWORD(e.wParam));
}
inline UINT LParamLow(const AFX_EVENT& e)
{
    return LOWORD(e.lParam);
}
inline UINT LParamHigh(const AFX_EVENT& e)
{
    return HIWORD(e.lParam);
}
inline int LParamLowSigned(const AFX_EVENT& e)
{
    return static_cast<short>(LOWORD(e.lParam));
}
inline int LParamHighSigned(const AFX_EVENT& e)
{
    return static_cast<short>(HIWORD(e.lParam));
}
inline WPARAM WParamWhole(const AFX_EVENT& e)
{
    return e.wParam;
}
inline LPARAM LParamWhole(const AFX_EVENT& e)
{
    return e.lParam;
}
inline UINT_PTR TimerId(const AFX_EVENT& e)
{
    return e.wParam;
}
inline int ControlId(const AFX_EVENT& e)
{
    return static_cast<int>(e.wParam);
}
inline CPoint LParamPoint(const AFX_EVENT& e)
{
    return CPoint(e.lParam);
}
ZEB17_EXPORT CWnd* WParamWnd(const AFX_EVENT& e);
ZEB17_EXPORT CDC* WParamDC(const AFX_EVENT& e);
template <class Structure>
Structure* LParamStruct(const AFX_EVENT& e)
{
    return reinterpret_cast<Structure*>(e.lParam);
}
inline UINT CommandId(const AFX_EVENT& e)
{
    return e.nID;
}
inline CCmdUI* CmdUI(const AFX_EVENT& e)
{
    return e.pCmdUI;
}
inline NMHDR* Header(const AFX_EVENT& e)
{
    return e.pNMHDR;
}
inline LRESULT* Result(const AFX_EVENT& e)
{
    return e.pResult;
}
}

// Stands for the result of a handler whose BOOL says whether it has handled the event.
struct AfxHandled
{
};

// The signature of a handler: what it returns, and where each argument comes from.
template <class Result, auto... Arguments>
struct AfxSignature
{
    using Return = std::conditional_t<std::is_same_v<Result, AfxHandled>, BOOL, Result>;
    template <class Target>
    using Handler = Return (Target::*)(std::invoke_result_t<decltype(Arguments), const AFX_EVENT&>...);

    template <class Target>
    static bool Call(Target* pTarget, Handler<Target> pfn, AFX_EVENT& event)
    {
        if constexpr (std::is_void_v<Return>) {
            (pTarget->*pfn)(Arguments(event)...);
            return true;
        } else {
            event.lResult = static_cast<LRESULT>((pTarget->*pfn)(Arguments(event)...));
            return !std::is_same_v<Result, AfxHandled> || event.lResult != 0;
        }
    }
};

namespace AfxSig {
using namespace AfxArg;
using Plain = AfxSignature<void>;
using Size = AfxSignature<void, WParam, LParamLowSigned, LParamHighSigned>;
using Mouse = AfxSignature<void, WParam, LParamPoint>;
using Wheel = AfxSignature<BOOL, WParamLow, WParamHighSigned, LParamPoint>;
using Cursor = AfxSignature<BOOL, WParamWnd, LParamLow, LParamHigh>;
using Focus = AfxSignature<void, WParamWnd>;
using Key = AfxSignature<void, WParam, LParamLow, LParamHigh>;
using Erase = AfxSignature<BOOL, WParamDC>;
using Timer = AfxSignature<void, TimerId>;
using DrawItem = AfxSignature<void, ControlId, LParamStruct<DRAWITEMSTRUCT>>;
using Message = AfxSignature<LRESULT, WParamWhole, LParamWhole>;
using Command = AfxSignature<void>;
using CommandRange = AfxSignature<void, CommandId>;
using Update = AfxSignature<void, CmdUI>;
using NotifyEx = AfxSignature<AfxHandled, CommandId, Header, Result>;
}

#define DECLARE_MESSAGE_MAP()                                                                                \
protected:                                                                                                   \
    static const AFX_MSGMAP* GetThisMessageMap();                                                            \
    const AFX_MSGMAP* GetMessageMap() const override;

#define BEGIN_MESSAGE_MAP(theClass, baseClass)                                                               \
    const AFX_MSGMAP* theClass::GetMessageMap() const                                                        \
    {                                                                                                        \
        return GetThisMessageMap();                                                                          \
    }                                                                                                        \
    const AFX_MSGMAP* theClass::GetThisMessageMap()                                                          \
    {                                                                                                        \
        using ThisClass [[maybe_unused]] = theClass;                                                         \
        using TheBaseClass = baseClass;                                                                      \
        static const AFX_MSGMAP_ENTRY kEntries[] = {

#define END_MESSAGE_MAP()                                                                                    \
    {                                                                                                        \
        0, 0, 0, 0, nullptr                                                                                  \
    }                                                                                                        \
    }                                                                                                        \
    ;                                                                                                        \
    static const AFX_MSGMAP kMap = {&TheBaseClass::GetThisMessageMap, kEntries};                             \
    return &kMap;                                                                                            \
    }

#define AFX_MAP_ENTRY(message, code, id, lastId, Signature, memberFxn)                                       \
    {message, static_cast<WORD>(code), static_cast<UINT>(id), static_cast<UINT>(lastId),                     \
     [](CCmdTarget* pTarget, AFX_EVENT& event) {                                                             \
         return AfxSig::Signature::Call(static_cast<ThisClass*>(pTarget),                                    \
                                        static_cast<AfxSig::Signature::Handler<ThisClass>>(memberFxn),       \
                                        event);                                                              \
     }},

// Commands of menus (code 0) and of controls, and the updates of menu items.
#define CN_COMMAND 0
#define CN_UPDATE_COMMAND_UI 0xFFFFU

#define ON_COMMAND(id, memberFxn) AFX_MAP_ENTRY(WM_COMMAND, CN_COMMAND, id, id, Command, memberFxn)
#define ON_UPDATE_COMMAND_UI(id, memberFxn)                                                                  \
    AFX_MAP_ENTRY(WM_COMMAND, CN_UPDATE_COMMAND_UI, id, id, Update, memberFxn)
#define ON_CONTROL(wNotifyCode, id, memberFxn)                                                               \
    AFX_MAP_ENTRY(WM_COMMAND, wNotifyCode, id, id, Command, memberFxn)
#define ON_BN_CLICKED(id, memberFxn) ON_CONTROL(BN_CLICKED, id, memberFxn)

// Notifications. Only the low 16 bits of their codes are compared.
#define ON_NOTIFY_EX_RANGE(wNotifyCode, id, idLast, memberFxn)                                               \
    AFX_MAP_ENTRY(WM_NOTIFY, wNotifyCode, id, idLast, NotifyEx, memberFxn)

// Messages of the program's own.
#define ON_MESSAGE(message, memberFxn) AFX_MAP_ENTRY(message, 0, 0, 0, Message, memberFxn)
#define ON_REGISTERED_MESSAGE(nMessageVariable, memberFxn) ON_MESSAGE(nMessageVariable, memberFxn)

// Messages of the system, with handlers of fixed names.
#define AFX_MAP_WM(message, Signature, name) AFX_MAP_ENTRY(message, 0, 0, 0, Signature, &ThisClass::name)

#define ON_WM_DESTROY() AFX_MAP_WM(WM_DESTROY, Plain, OnDestroy)
#define ON_WM_DRAWITEM() AFX_MAP_WM(WM_DRAWITEM, DrawItem, OnDrawItem)
#define ON_WM_ERASEBKGND() AFX_MAP_WM(WM_ERASEBKGND, Erase, OnEraseBkgnd)
#define ON_WM_KEYDOWN() AFX_MAP_WM(WM_KEYDOWN, Key, OnKeyDown)
#define ON_WM_KILLFOCUS() AFX_MAP_WM(WM_KILLFOCUS, Focus, OnKillFocus)
#define ON_WM_LBUTTONDBLCLK() AFX_MAP_WM(WM_LBUTTONDBLCLK, Mouse, OnLButtonDblClk)
#define ON_WM_LBUTTONDOWN() AFX_MAP_WM(WM_LBUTTONDOWN, Mouse, OnLButtonDown)
#define ON_WM_MOUSEMOVE() AFX_MAP_WM(WM_MOUSEMOVE, Mouse, OnMouseMove)
#define ON_WM_MOUSEWHEEL() AFX_MAP_WM(WM_MOUSEWHEEL, Wheel, OnMouseWheel)
#define ON_WM_NCDESTROY() AFX_MAP_WM(WM_NCDESTROY, Plain, OnNcDestroy)
#define ON_WM_PAINT() AFX_MAP_WM(WM_PAINT, Plain, OnPaint)
#define ON_WM_SETCURSOR() AFX_MAP_WM(WM_SETCURSOR, Cursor, OnSetCursor)
#define ON_WM_SETFOCUS() AFX_MAP_WM(WM_SETFOCUS, Focus, OnSetFocus)
#define ON_WM_SIZE() AFX_MAP_WM(WM_SIZE, Size, OnSize)
#define ON_WM_TIMER() AFX_MAP_WM(WM_TIMER, Timer, OnTimer)
