// Calls of the system on files, of which a test lets one fail. Linux only: the linker leads the calls of the
// test program here (--wrap).
#pragma once

// The call that makes this 0 fails with EIO; it goes down by one with each. Below 0 all succeed.
extern long g_nCallsLeft;
