// Hooks: procedures of a program that hear of events before windows do.
#include "hooks.h"

#include "winbase.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace winapi {

namespace {

struct Hook
{
    ULONG_PTR id;
    int type;
    HOOKPROC procedure;
};

struct HookChain
{
    std::vector<Hook> hooks; // the newest last
    ULONG_PTR running = 0;   // whose procedure is being called
    ULONG_PTR lastId = 0;
};

HookChain& chain()
{
    static auto& hooks = *new HookChain;
    return hooks;
}

// The newest hook of the type that is older than `below`.
LRESULT callBelow(int type, ULONG_PTR below, int code, WPARAM wParam, LPARAM lParam)
{
    const auto& hooks = chain().hooks;
    const auto found = std::find_if(hooks.rbegin(), hooks.rend(),
                                    [&](const Hook& hook) { return hook.type == type && hook.id < below; });
    if (found == hooks.rend())
        return 0;
    const Hook hook = *found;
    const ULONG_PTR before = std::exchange(chain().running, hook.id);
    const LRESULT result = hook.procedure(code, wParam, lParam);
    chain().running = before;
    return result;
}

}

LRESULT callHooks(int type, int code, WPARAM wParam, LPARAM lParam)
{
    return callBelow(type, ~ULONG_PTR(0), code, wParam, lParam);
}

}

using namespace winapi;

HHOOK SetWindowsHookExA(int type, HOOKPROC proc, HINSTANCE, DWORD)
{
    if (!proc) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return nullptr;
    }
    const ULONG_PTR id = ++chain().lastId;
    chain().hooks.push_back({id, type, proc});
    return reinterpret_cast<HHOOK>(id);
}

BOOL UnhookWindowsHookEx(HHOOK hook)
{
    const auto removed = std::erase_if(
        chain().hooks, [&](const Hook& one) { return one.id == reinterpret_cast<ULONG_PTR>(hook); });
    if (!removed)
        SetLastError(ERROR_INVALID_HOOK_HANDLE);
    return removed != 0;
}

// Goes on from the hook that is running, whatever handle is given, as on Windows.
LRESULT CallNextHookEx(HHOOK, int code, WPARAM wParam, LPARAM lParam)
{
    const auto& hooks = chain().hooks;
    const ULONG_PTR running = chain().running;
    const auto self =
        std::find_if(hooks.begin(), hooks.end(), [&](const Hook& hook) { return hook.id == running; });
    return self == hooks.end() ? 0 : callBelow(self->type, running, code, wParam, lParam);
}

BOOL CallMsgFilterA(MSG* message, int code)
{
    return callHooks(WH_MSGFILTER, code, 0, reinterpret_cast<LPARAM>(message)) != 0;
}
