// The modules of the process, the search for resources in them, and the window classes that the toolkit
// registers.
#include <afxapp_.h>
#include <afxdll_.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <mutex>
#include <set>
#include <string>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

namespace {

AFX_MODULE_STATE* MakeModuleState()
{
    auto pState = std::make_unique<AFX_MODULE_STATE>();
    pState->m_hCurrentInstanceHandle = pState->m_hCurrentResourceHandle = ::GetModuleHandleA(nullptr);
    return pState.release();
}

std::string MakeWndClassName(const WNDCLASSA& attributes)
{
    char szName[128];
    std::snprintf(szName, sizeof szName, "AfxWnd:%p:%x:%p:%p:%p", static_cast<void*>(attributes.hInstance),
                  attributes.style, static_cast<void*>(attributes.hCursor),
                  static_cast<void*>(attributes.hbrBackground), static_cast<void*>(attributes.hIcon));
    return szName;
}

}

// Modules are attached before the static objects are made and detached after these are deleted, so the state
// stays to the end of the process.
AFX_MODULE_STATE* AfxGetModuleState()
{
    static AFX_MODULE_STATE* const s_pState = MakeModuleState();
    return s_pState;
}

HINSTANCE AfxGetInstanceHandle()
{
    return AfxGetModuleState()->m_hCurrentInstanceHandle;
}

HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType)
{
    const AFX_MODULE_STATE& state = *AfxGetModuleState();
    if (::FindResourceA(state.m_hCurrentResourceHandle, lpszName, lpszType))
        return state.m_hCurrentResourceHandle;
    for (const CDynLinkLibrary* pLibrary : state.m_vLibraries)
        if (pLibrary->m_hResource && ::FindResourceA(pLibrary->m_hResource, lpszName, lpszType))
            return pLibrary->m_hResource;
    return state.m_hCurrentResourceHandle;
}

// ---- Extension modules ----

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule)
{
    state.bInitialized = TRUE;
    state.hModule = hModule;
    state.hResource = hModule;
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL)
{
    if (!state.bInitialized)
        return;
    const std::vector<CDynLinkLibrary*> vLibraries = AfxGetModuleState()->m_vLibraries; // each end changes it
    for (CDynLinkLibrary* pLibrary : vLibraries)
        if (pLibrary->m_hModule == state.hModule)
            delete pLibrary;
    state = {};
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL)
    : m_hModule(state.hModule), m_hResource(state.hResource)
{
    auto& vLibraries = AfxGetModuleState()->m_vLibraries;
    vLibraries.insert(vLibraries.begin(), this);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    std::erase(AfxGetModuleState()->m_vLibraries, this);
}

// ---- Window classes ----

LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    static std::mutex s_mutex;
    static std::set<std::string>& s_names = *new std::set<std::string>; // not deleted: names stay valid
    const std::lock_guard lock(s_mutex);

    WNDCLASSA wndClass{};
    wndClass.style = nClassStyle;
    wndClass.lpfnWndProc = &::DefWindowProcA;
    wndClass.hInstance = AfxGetInstanceHandle();
    wndClass.hIcon = hIcon;
    wndClass.hCursor = hCursor;
    wndClass.hbrBackground = hbrBackground;

    const auto [name, bNew] = s_names.insert(MakeWndClassName(wndClass));
    wndClass.lpszClassName = name->c_str();
    if (bNew && !::RegisterClassA(&wndClass)) {
        s_names.erase(name);
        AfxThrowResourceException();
    }
    return name->c_str();
}
