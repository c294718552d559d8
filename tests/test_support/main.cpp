// The main program of every test program: its locks are its own.
#include "LockHome.h"
#include "TemporaryDirectory.h"

#include <gmock/gmock.h>

int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    const TemporaryDirectory locks;
    LockHome::Set(locks.PathOf(""));
    return RUN_ALL_TESTS();
}
