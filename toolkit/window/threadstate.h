// What the toolkit keeps for each thread: the objects of its handles and the message at hand.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include "handlemap.h"

#include <tuple>

template <class Object>
using GdiMap = HandleMap<Object, &Object::m_hObject>;

/// The toolkit's own tool tip, which the windows of the thread share, and the tool that it holds.
struct SharedToolTip
{
    CToolTipCtrl control;
    TOOLINFOA tool{};
};

struct ThreadState
{
    ThreadState() = default;
    ~ThreadState();
    ThreadState(const ThreadState&) = delete;
    ThreadState& operator=(const ThreadState&) = delete;

    static ThreadState& Current();

    /// Deletes the temporary objects of all maps. Called when no handler is at work that could hold one.
    void DeleteTemporary();

    HandleMap<CWnd, &CWnd::m_hWnd> windows;
    HandleMap<CMenu, &CMenu::m_hMenu> menus;
    HandleMap<CDC, &CDC::m_hDC> contexts;
    std::tuple<GdiMap<CGdiObject>, GdiMap<CPen>, GdiMap<CBrush>, GdiMap<CFont>, GdiMap<CBitmap>, GdiMap<CRgn>>
        drawingObjects;

    MSG message{};            ///< the message that the innermost window procedure handles
    int depth = 0;            ///< how many window procedures are at work
    CWnd* creating = nullptr; ///< the object that waits for the handle of its window
    LPCSTR creatingClass = nullptr;
    HHOOK messageFilter = nullptr;
    const MSG* offered = nullptr; ///< the message that is being offered to windows
    SharedToolTip toolTip;        ///< after the maps, which its end still uses
};
