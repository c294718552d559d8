// Modules: what the process is made of, and where its resources are looked for.
#pragma once

#include <afxwin.h>

#include <vector>

class CDynLinkLibrary;

/// The state of the process's modules.
struct AFX_MODULE_STATE
{
    CWinApp* m_pCurrentWinApp = nullptr;
    HINSTANCE m_hCurrentInstanceHandle = nullptr;
    HINSTANCE m_hCurrentResourceHandle = nullptr; ///< where resources are looked for first
    std::vector<CDynLinkLibrary*> m_libraries;    ///< extension modules, the latest first
};

/// An extension module's own state, one static object in each.
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized = FALSE;
    HMODULE hModule = nullptr;
    HMODULE hResource = nullptr;
};

/// Fills the state in. Called while the module is attached.
ZEB17_EXPORT BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& state, HMODULE hModule);
/// Deletes the CDynLinkLibrary of the module. Called while the module is detached.
ZEB17_EXPORT void AfxTermExtensionModule(AFX_EXTENSION_MODULE& state, BOOL bAll = FALSE);

/// Stands for an extension module in the chain of resources. Made by `new` while the module is attached, and
/// deleted by AfxTermExtensionModule.
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
/// The module that holds the resource: the current one, else the first extension module that has it, else the
/// current one again.
ZEB17_EXPORT HINSTANCE AfxFindResourceHandle(LPCTSTR lpszName, LPCTSTR lpszType);
