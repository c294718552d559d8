#include "ErrorText.h"

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
