// Takes the mutex of the first argument, says so by making the file of the second, and dies with the mutex
// when it finds the file of the third. The fourth is the directory of the locks.
#include <LockHome.h>
#include <MTMutex.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <thread>

int main(int argc, char** argv)
{
    if (argc != 5)
        return EXIT_FAILURE;
    LockHome::Set(argv[4]);
    MTMutex mutex(false, argv[1], nullptr);
    if (mutex.Lock() != ERROR_SUCCESS)
        return EXIT_FAILURE;
    std::ofstream(argv[2]).close();
    for (int i = 0; i < 3000 && !std::filesystem::exists(argv[3]); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    std::_Exit(EXIT_SUCCESS);
}
