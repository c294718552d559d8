// The state of each thread, from its first use to the end of the thread.
#include "ThreadState.h"

namespace {

thread_local ThreadState* t_pCurrent = nullptr;

struct EndOfThread
{
    ~EndOfThread()
    {
        delete t_pCurrent;
        t_pCurrent = nullptr;
    }
};

}

// An object that is deleted after the state, as static objects are, makes a new and empty state, which is
// never deleted.
ThreadState& ThreadState::Current()
{
    if (t_pCurrent)
        return *t_pCurrent;
    ThreadState* const pState = new ThreadState;
    t_pCurrent = pState;
    thread_local EndOfThread end;
    static_cast<void>(end);
    return *pState;
}

ThreadState::~ThreadState()
{
    if (hMessageFilter)
        ::UnhookWindowsHookEx(hMessageFilter);
}

void ThreadState::DeleteTemporary()
{
    windows.DeleteTemporary();
    contexts.DeleteTemporary();
    std::apply([](auto&... maps) { (maps.DeleteTemporary(), ...); }, drawingObjects);
}
