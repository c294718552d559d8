#include <afxwin.h>

#include <algorithm>
#include <cstdio>
#include <memory>
#include <mutex>
#include <set>
#include <string>

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CCmdTarget)

static AFX_MODULE_STATE* MakeModuleState()
{
    auto state = std::make_unique<AFX_MODULE_STATE>();
    state->m_hCurrentInstanceHandle = state->m_hCurrentResourceHandle = ::GetModuleHandleA(nullptr);
    return state.release();
}

// Modules come before the static objects and go after them, so that the state stays to the end of the
// process.
AFX_MODULE_STATE* AfxGetModuleState()
{
    static AFX_MODULE_STATE* const state = MakeModuleState();
    return state;
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
    for (const CDynLinkLibrary* library : state.m_libraries)
        if (library->m_hResource && ::FindResourceA(library->m_hResource, lpszName, lpszType))
            return library->m_hResource;
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
    const std::vector<CDynLinkLibrary*> libraries = AfxGetModuleState()->m_libraries;
    for (CDynLinkLibrary* library : libraries)
        if (library->m_hModule == state.hModule)
            delete library;
    state = {};
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL)
    : m_hModule(state.hModule), m_hResource(state.hResource)
{
    auto& libraries = AfxGetModuleState()->m_libraries;
    libraries.insert(libraries.begin(), this);
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    std::erase(AfxGetModuleState()->m_libraries, this);
}

// ---- Window classes ----

static std::string NameWndClass(const WNDCLASSA& attributes)
{
    char name[128];
    std::snprintf(name, sizeof name, "AfxWnd:%p:%x:%p:%p:%p", static_cast<void*>(attributes.hInstance),
                  attributes.style, static_cast<void*>(attributes.hCursor),
                  static_cast<void*>(attributes.hbrBackground), static_cast<void*>(attributes.hIcon));
    return name;
}

LPCTSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON hIcon)
{
    static std::mutex mutex;
    static std::set<std::string>& names = *new std::set<std::string>; // the names outlive the static objects
    const std::lock_guard lock(mutex);

    WNDCLASSA wndClass{};
    wndClass.style = nClassStyle;
    wndClass.lpfnWndProc = &::DefWindowProcA;
    wndClass.hInstance = AfxGetInstanceHandle();
    wndClass.hIcon = hIcon;
    wndClass.hCursor = hCursor;
    wndClass.hbrBackground = hbrBackground;

    const auto [name, isNew] = names.insert(NameWndClass(wndClass));
    wndClass.lpszClassName = name->c_str();
    if (isNew && !::RegisterClassA(&wndClass)) {
        names.erase(name);
        AfxThrowResourceException();
    }
    return name->c_str();
}
