// The sample host of the calendar control.
//
//   zeb17_demo [--png FILE] [--web FILE] [--print FILE.pdf] [--select YYYY-MM-DD] [--today YYYY-MM-DD]
//              [--locale NAME] [--data DIRECTORY]

#include "GdiPlusSession.h"
#include "MainWindow.h"
#include "Picture.h"

#include <Clock.h>
#include <LocaleUtils.h>
#include <ZebrikUtils.h>

#include <cstdio>
#include <optional>
#include <string>

namespace {

struct Options
{
    std::string png;
    std::string web;
    std::string print;
    std::string locale;
    std::string data;
    std::optional<DateTime> today;
    std::optional<DateTime> select;

    bool HasOutput() const { return !png.empty() || !web.empty() || !print.empty(); }
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

bool TakeOption(Options& options, const std::string& name, const char* value)
{
    struct TextOption
    {
        const char* name;
        std::string Options::*value;
    };
    static constexpr TextOption texts[] = {{"--png", &Options::png},
                                           {"--web", &Options::web},
                                           {"--print", &Options::print},
                                           {"--locale", &Options::locale},
                                           {"--data", &Options::data}};
    for (const TextOption& option : texts) {
        if (name != option.name)
            continue;
        options.*option.value = value;
        return true;
    }
    if (name == "--today")
        return (options.today = ParseDate(value)).has_value();
    if (name == "--select")
        return (options.select = ParseDate(value)).has_value();
    return false;
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
    explicit DemoApp(const Options& options) : m_options(options), m_window(!options.HasOutput()) {}

    BOOL InitInstance()
    {
        if (!m_window.CreateMain())
            return FALSE;
        m_pMainWnd = &m_window;
        if (m_options.select)
            m_window.SelectDate(*m_options.select);
        m_window.ShowWindow(SW_SHOW);
        m_window.UpdateWindow();
        m_window.TellLoadError();
        return TRUE;
    }

    // Whether there is something to write without hands, instead of a window to use.
    bool HasOutput() const { return m_options.HasOutput(); }

    // Writes it; the exit code of the program.
    int RunOutput()
    {
        PumpWaitingMessages();
        const struct
        {
            const std::string& path;
            bool (*write)(MainWindow& window, const CString& path);
        } outputs[] = {
            {m_options.png,
             [](MainWindow& window, const CString& path) { return SaveWindowAsPng(window, path); }},
            {m_options.web, [](MainWindow& window, const CString& path) { return window.SaveWebPage(path); }},
            {m_options.print,
             [](MainWindow& window, const CString& path) { return window.PrintToFile(path); }},
        };
        int exitCode = 0;
        for (const auto& output : outputs) {
            if (output.path.empty() || output.write(m_window, output.path.c_str()))
                continue;
            std::fprintf(stderr, "zeb17_demo: could not write %s\n", output.path.c_str());
            exitCode = 1;
        }
        return exitCode;
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
                     "usage: zeb17_demo [--png FILE] [--web FILE] [--print FILE.pdf] [--select YYYY-MM-DD]\n"
                     "                  [--today YYYY-MM-DD] [--locale NAME] [--data DIRECTORY]\n");
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
    return app.HasOutput() ? app.RunOutput() : app.Run();
}
