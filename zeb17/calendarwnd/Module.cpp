// The shared library as a module of the toolkit. The layers, which the tests link, do without it.
#include <afxdll_.h>

namespace {

AFX_EXTENSION_MODULE g_module;

}

extern "C" int APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
{
    if (dwReason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(g_module, hInstance))
            return FALSE;
        new CDynLinkLibrary(g_module); // deleted by AfxTermExtensionModule
    } else if (dwReason == DLL_PROCESS_DETACH)
        AfxTermExtensionModule(g_module);
    return TRUE;
}
