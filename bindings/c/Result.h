// How a call of the interface ends: what it gives, and what the thread remembers of its last failure.
#pragma once

#include "zeb17.h"

#include <ThreadState.h>

#include <new>
#include <stdexcept>
#include <string>

namespace Zeb17 {

// Notes a failure as the last one of the thread, and gives its code. ZEB17_OK is none, and is not noted.
int Note(int nResult, std::string strDetail = {}) noexcept;

// Notes the failure that an exception of the toolkit stands for, and deletes the exception.
int Note(CException* pException) noexcept;

// How many failures the thread has noted.
unsigned int CountOfFailures() noexcept;

// While one lives, the toolkit's temporary objects stay. The outermost of a thread deletes them, unless the
// toolkit's own loop does so: nobody else would in the loop of a host in C.
class ToolkitCall
{
public:
    ToolkitCall() : m_state(ThreadState::Current()) { ++m_state.nDepth; }
    ~ToolkitCall()
    {
        if (--m_state.nDepth == 0 && !m_state.hMessageFilter)
            m_state.DeleteTemporary();
    }
    ToolkitCall(const ToolkitCall&) = delete;
    ToolkitCall& operator=(const ToolkitCall&) = delete;

private:
    ThreadState& m_state;
};

// Makes a call that gives a code, and turns what it throws into one.
template <class Call>
int Run(Call call) noexcept
{
    try {
        const ToolkitCall scope;
        return Note(call());
    } catch (CException* pException) {
        return Note(pException);
    } catch (const std::bad_alloc&) {
        return Note(ZEB17_NO_MEMORY);
    } catch (const std::length_error&) { // a data file that counts too many entries
        return Note(ZEB17_FILE_DAMAGED);
    } catch (...) {
        return Note(ZEB17_FAILED);
    }
}

}
