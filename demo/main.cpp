// The sample host of the calendar control.
//
//   zeb17_demo [--png FILE] [--today YYYY-MM-DD] [--locale NAME] [--data DIRECTORY]
//              [--select YYYY-MM-DD]

#include "GdiPlusSession.h"
#include "MainWindow.h"
#include "Picture.h"

#include <Clock.h>
#include <LocaleUtils.h>
#include <ZebrikUtils.h>

#include <cstdio>
#include <cstring>
#include <optional>
#include <string>

namespace {

struct Options
{
    std::string png;
    std::string locale;
    std::string data;
    std::optional<DateTime> today;
    std::optional<DateTime> select;
};

std::optional<DateTime> ParseDate(const char* text)
{
    int year = 0, month = 0, day = 0;
    char rest = 0;
    if (std::sscanf(text, "%4d-%2d-%2d%c", &year, &month, &day, &rest) != 3 || year < 1 || month < 1 ||
        month > 12 || day < 1 || day > DateTime::GetDaysInMonth(year, month))
        return std::nullopt;
    return DateTime(year, month, day, 0, 0, 0);
}

bool TakeOption(Options& options, const char* name, const char* value)
{
    if (std::strcmp(name, "--png") == 0)
        options.png = value;
    else if (std::strcmp(name, "--locale") == 0)
        options.locale = value;
    else if (std::strcmp(name, "--data") == 0)
        options.data = value;
    else if (std::strcmp(name, "--today") == 0)
        return (options.today = ParseDate(value)).has_value();
    else if (std::strcmp(name, "--select") == 0)
        return (options.select = ParseDate(value)).has_value();
    else
        return false;
    return true;
}

std::optional<Options> ParseOptions(int argc, char** argv)
{
    Options options;
    for (int i = 1; i < argc; i += 2)
        if (i + 1 == argc || !TakeOption(options, argv[i], argv[i + 1]))
            return std::nullopt;
    return options;
}

class DemoApp : public CWinApp
{
public:
    explicit DemoApp(const Options& options) : m_options(options) {}

    BOOL InitInstance() override
    {
        if (!m_window.CreateMain())
            return FALSE;
        m_pMainWnd = &m_window;
        if (m_options.select)
            m_window.SelectDate(*m_options.select);
        m_window.ShowWindow(SW_SHOW);
        m_window.UpdateWindow();
        return TRUE;
    }

    // Runs what was asked for without hands; true if the window has nothing left to do.
    bool RunOutput(int& exitCode)
    {
        if (m_options.png.empty())
            return false;
        PumpWaitingMessages();
        exitCode = SaveWindowAsPng(m_window, m_options.png.c_str()) ? 0 : 1;
        if (exitCode != 0)
            std::fprintf(stderr, "zeb17_demo: could not write %s\n", m_options.png.c_str());
        return true;
    }

private:
    // The picture is taken when every window has painted itself.
    void PumpWaitingMessages()
    {
        MSG message;
        while (PeekMessage(&message, nullptr, 0, 0, PM_NOREMOVE) && PumpMessage())
            ;
    }

    const Options& m_options;
    MainWindow m_window;
};

}

int main(int argc, char** argv)
{
    const std::optional<Options> options = ParseOptions(argc, argv);
    if (!options) {
        std::fprintf(stderr,
                     "usage: zeb17_demo [--png FILE] [--today YYYY-MM-DD] [--locale NAME] [--data DIRECTORY]"
                     " [--select YYYY-MM-DD]\n");
        return 2;
    }
    if (options->today)
        Clock::SetToday(options->today->GetYear(), options->today->GetMonth(), options->today->GetDay());
    if (!options->locale.empty())
        LocaleUtils::SetLocale(options->locale.c_str());

    if (!options->data.empty())
        ZebrikUtils::SetDataDirectory(options->data.c_str());

    AfxWinInit(GetModuleHandle(nullptr), nullptr, nullptr, SW_SHOW);
    const GdiPlusSession gdiPlus;
    DemoApp app(*options);
    if (!app.InitInstance()) {
        std::fprintf(stderr, "zeb17_demo: the window could not be created\n");
        return 1;
    }
    int exitCode = 0;
    return app.RunOutput(exitCode) ? exitCode : app.Run();
}
