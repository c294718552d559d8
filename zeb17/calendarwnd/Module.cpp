// The library as a module of the toolkit. It is compiled into the shared library only.

#include <afxdll_.h>

namespace {

AFX_EXTENSION_MODULE theModule;

}

extern "C" int APIENTRY DllMain(HINSTANCE hInstance, DWORD dwReason, LPVOID)
{
    if (dwReason == DLL_PROCESS_ATTACH) {
        if (!AfxInitExtensionModule(theModule, hInstance))
            return FALSE;
        new CDynLinkLibrary(theModule); // deleted by AfxTermExtensionModule
    } else if (dwReason == DLL_PROCESS_DETACH)
        AfxTermExtensionModule(theModule);
    return TRUE;
}
