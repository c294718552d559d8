// What the toolkit keeps for each thread: the objects of handles, and the message at hand.
#pragma once

#include <afxcmn.h>
#include <afxwin.h>

#include "HandleMap.h"

#include <tuple>

template <class Object>
using GdiMap = HandleMap<Object, &Object::m_hObject>;

// The toolkit's own tool tip, which the windows of a thread share, and the tool that it shows a tip for.
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

    // The state of the calling thread.
    static ThreadState& Current();

    // Deletes the temporary objects of all maps. To be called when no handler is at work that could hold one.
    void DeleteTemporary();

    HandleMap<CWnd, &CWnd::m_hWnd> windows;
    HandleMap<CDC, &CDC::m_hDC> contexts;
    std::tuple<GdiMap<CGdiObject>, GdiMap<CPen>, GdiMap<CBrush>, GdiMap<CFont>, GdiMap<CBitmap>>
        drawingObjects;

    MSG message{};             // the message that the innermost window procedure handles
    int nDepth = 0;            // how many window procedures are at work, one within the other
    CWnd* pCreating = nullptr; // the object that waits for the handle of its window
    LPCSTR lpszCreatingClass = nullptr;
    HHOOK hMessageFilter = nullptr;
    const MSG* pOffered = nullptr; // the message that is being offered to windows
    MSG lastOffered{};             // the last one that was
    SharedToolTip toolTip;         // behind the maps, since its end needs them
};
