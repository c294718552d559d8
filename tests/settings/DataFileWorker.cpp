// A process that works on the data file, as SaveTest runs it:
//
//     data_file_worker LOCKS DIRECTORY die MARK N     saves, but ends without a word at the Nth file
//     operation
//     data_file_worker LOCKS DIRECTORY share MARK N   N times: loads, checks that all is of one mark, and
//     saves its own
//     data_file_worker LOCKS DIRECTORY hold 0 0       holds the lock of the data file while there is a file
//     `hold` in the directory, and a file `held` as long
//
// LOCKS is the directory of the locks. Ends with 0 when done, with 9 when it died as told, with 1 when
// what it loaded is not of one mark.
#include "MarkedSettings.h"

#include <FileFault.h>
#include <LockHome.h>
#include <MTAutoLock.h>
#include <ZebrikUtils.h>

#include <cstdlib>
#include <exception>
#include <filesystem>
#include <fstream>
#include <string>

namespace {

constexpr int kDied = 9;

int g_nOperationsLeft = 0;

DWORD DieAtLast(FileOperation)
{
    if (--g_nOperationsLeft == 0)
        std::_Exit(kDied);
    return ERROR_SUCCESS;
}

bool Share(int nMark, int nTimes)
{
    for (int i = 0; i < nTimes; ++i) {
        CalendarSettings loaded;
        if (!loaded.Load() || MarkOf(loaded) == 0)
            return false;
        CalendarSettings own;
        SetMark(own, nMark);
        own.Save();
    }
    return true;
}

bool Hold(const std::filesystem::path& directory)
{
    MTMutex mutex(false, "zeb17data", nullptr);
    const MTAutoLock lock(&mutex);
    if (lock.GetError() != ERROR_SUCCESS)
        return false;
    std::ofstream(directory / "held").close();
    for (int i = 0; i < 3000 && std::filesystem::exists(directory / "hold"); ++i)
        Sleep(10);
    std::filesystem::remove(directory / "held");
    return true;
}

int Run(const std::string& strDirectory, const std::string& strAction, int nMark, int nNumber)
{
    if (strAction == "share")
        return Share(nMark, nNumber) ? EXIT_SUCCESS : EXIT_FAILURE;
    if (strAction == "hold")
        return Hold(strDirectory) ? EXIT_SUCCESS : EXIT_FAILURE;
    CalendarSettings settings;
    SetMark(settings, nMark);
    g_nOperationsLeft = nNumber;
    g_fileFault = DieAtLast;
    settings.Save();
    return EXIT_SUCCESS;
}

}

int main(int argc, char** argv)
{
    if (argc < 6)
        return 2;
    LockHome::Set(argv[1]);
    ZebrikUtils::SetDataDirectory(argv[2]);
    try {
        return Run(argv[2], argv[3], std::atoi(argv[4]), std::atoi(argv[5]));
    } catch (CException* pException) {
        pException->Delete();
        return 3;
    }
}
