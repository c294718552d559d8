// Does for a module what the loader does on Windows: tells its DllMain, if it has one, of its loading and
// unloading. This layer is linked last, so that the module's static objects stand before.
#include "winbase.h"

extern "C" {
[[gnu::weak, gnu::visibility("hidden")]] BOOL WINAPI DllMain(HINSTANCE module, DWORD reason, LPVOID reserved);
// The start of the module in memory, from the linker.
[[gnu::visibility("hidden")]] extern char __ehdr_start;
}

namespace {

void callDllMain(DWORD reason)
{
    if (DllMain)
        DllMain(reinterpret_cast<HINSTANCE>(&__ehdr_start), reason, nullptr);
}

[[gnu::constructor]] void attachModule()
{
    callDllMain(DLL_PROCESS_ATTACH);
}

[[gnu::destructor]] void detachModule()
{
    callDllMain(DLL_PROCESS_DETACH);
}

}
