// The modules that a process is made of, and the search for resources in them. Included by afxwin.h.
#pragma once

#include <afxwnd_.h>

#include <vector>

class CDynLinkLibrary;
class CWinApp;

// The state of the process's modules.
struct AFX_MODULE_STATE
{
    CWinApp* m_pCurrentWinApp = nullptr;
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr; // where resources are looked for first
    std::vector<CDynLinkLibrary*> m_vLibraries;   // the extension modules, the latest first
};

// What an extension module knows of itself: one static object in each module.
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
};

// Fills the state in. To be called while the module is attached.
ZEB17_EXPORT BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
// Deletes the CDynLinkLibrary of the module. To be called while the module is detached.
ZEB17_EXPORT void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

// Makes the resources of an extension module known to AfxFindResourceHandle. To be made by `new` while the
// module is attached; AfxTermExtensionModule deletes it.
class ZEB17_EXPORT CDynLinkLibrary : public CCmdTarget
{
    DECLARE_DYNAMIC(CDynLinkLibrary)
public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& state, BOOL bSystem = FALSE);
    ~CDynLinkLibrary() override;

    HMODULE m_hModule;
    HMODULE m_hResource;
};

ZEB17_EXPORT AFX_MODULE_STATE* AfxGetModuleState();
ZEB17_EXPORT HINSTANCE AfxGetInstanceHandle();
// The module that holds the resource: the current one if it does, or else the first extension module that
// does; the current one if none does.
ZEB17_EXPORT HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
