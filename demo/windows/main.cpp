// The desk calendar for Windows. Its command line is described in command_line.h.

#include "GdiPlusSession.h"
#include "MainWindow.h"
#include "Picture.h"

#include <command_line.h>

#include <Clock.h>
#include <LocaleUtils.h>
#include <ZebrikUtils.h>

#include <cstdio>

namespace {

class DemoApp : public CWinApp
{
public:
    explicit DemoApp(const DeskOptions& options) : m_options(options), m_window(!deskHasOutput(&options)) {}

    BOOL InitInstance()
    {
        if (!m_window.CreateMain())
            return FALSE;
        m_pMainWnd = &m_window;
        if (m_options.select.year != 0)
            m_window.SelectDate(
                DateTime(m_options.select.year, m_options.select.month, m_options.select.day, 0, 0, 0));
        m_window.ShowWindow(SW_SHOW);
        m_window.UpdateWindow();
        m_window.TellLoadError();
        return TRUE;
    }

    // Writes what the command line asks for; the exit code of the program.
    int RunOutput()
    {
        PumpWaitingMessages();
        const struct
        {
            const char* path;
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
            if (!output.path || output.write(m_window, output.path))
                continue;
            std::fprintf(stderr, "zeb17_demo: could not write %s\n", output.path);
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

    const DeskOptions& m_options;
    MainWindow m_window;
};

}

int main(int argc, char** argv)
{
    DeskOptions options;
    if (!deskReadOptions(&options, argc, argv))
        return 2;
    if (options.today.year != 0)
        Clock::SetToday(options.today.year, options.today.month, options.today.day);
    if (options.locale)
        LocaleUtils::SetLocale(options.locale);
    if (options.data)
        ZebrikUtils::SetDataDirectory(options.data);

    AfxWinInit(GetModuleHandle(nullptr), nullptr, nullptr, SW_SHOW);
    const GdiPlusSession gdiPlus;
    DemoApp app(options);
    if (!app.InitInstance()) {
        std::fprintf(stderr, "zeb17_demo: the window could not be created\n");
        return 1;
    }
    return deskHasOutput(&options) ? app.RunOutput() : app.Run();
}
