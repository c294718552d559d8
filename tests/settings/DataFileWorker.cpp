// A process that works on the data file, as SaveTest runs it:
//
//     data_file_worker DIRECTORY die MARK N     saves, but ends without a word at the Nth file operation
//     data_file_worker DIRECTORY share MARK N   N times: loads, checks that all is of one mark, and saves its
//     own
//
// Ends with 0 when done, with 9 when it died as told, with 1 when what it loaded is not of one mark.
#include "MarkedSettings.h"

#include <FileFault.h>
#include <ZebrikUtils.h>

#include <cstdlib>
#include <exception>
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

int Run(const std::string& strAction, int nMark, int nNumber)
{
    if (strAction == "share")
        return Share(nMark, nNumber) ? EXIT_SUCCESS : EXIT_FAILURE;
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
    if (argc < 5)
        return 2;
    ZebrikUtils::SetDataDirectory(argv[1]);
    try {
        return Run(argv[2], std::atoi(argv[3]), std::atoi(argv[4]));
    } catch (CException* pException) {
        pException->Delete();
        return 3;
    }
}
