#include "threadstate.h"

namespace {
thread_local ThreadState* t_current = nullptr;

struct EndOfThread
{
    ~EndOfThread()
    {
        delete t_current;
        t_current = nullptr;
    }
};
}

// Objects that outlive the thread's own (static ones, as a rule) find a new and empty state, which stays.
ThreadState& ThreadState::Current()
{
    if (!t_current) {
        t_current = new ThreadState;
        thread_local EndOfThread end;
        static_cast<void>(end);
    }
    return *t_current;
}

ThreadState::~ThreadState()
{
    if (messageFilter)
        ::UnhookWindowsHookEx(messageFilter);
}

void ThreadState::DeleteTemporary()
{
    windows.DeleteTemporary();
    menus.DeleteTemporary();
    contexts.DeleteTemporary();
    std::apply([](auto&... maps) { (maps.DeleteTemporary(), ...); }, drawingObjects);
}
