#include "ErrorText.h"

#include <afxwin.h>

#include <cstdio>
#include <exception>

bool RunTellingErrors(const std::function<void()>& action, CString& words)
{
    try {
        action();
        return true;
    } catch (CException* e) {
        char text[512] = "";
        e->GetErrorMessage(text, sizeof text);
        words = text;
        e->Delete();
    } catch (const std::exception& e) {
        words = e.what();
    }
    return false;
}

void TellUser(const CString& words, bool attended)
{
    std::fprintf(stderr, "zeb17_demo: %s\n", words.GetString());
    if (attended)
        AfxMessageBox(words, MB_OK | MB_ICONEXCLAMATION);
}
