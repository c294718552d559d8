// Windows that note each message they get, in words.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

// Serves messages until none has come for a while.
void serveMessages();

class MessageRecorder
{
public:
    MessageRecorder();
    ~MessageRecorder();

    // Makes a window whose messages are noted under `name`. Children take `parent`, others may have an owner.
    HWND create(const char* name, DWORD style, HWND parent = nullptr, int id = 0, UINT classStyle = 0);
    HWND createTop(const char* name, DWORD style = WS_POPUP | WS_VISIBLE);
    // Notes messages of a window of another class too.
    void subclass(HWND window, const char* name);

    // What was noted since the last call, parted by blanks.
    std::string take();
    // The same, when what waits has been served.
    std::string served()
    {
        serveMessages();
        return take();
    }
    void clear() { m_notes.clear(); }
    // Only messages whose name begins with one of these are noted; all of the table by default.
    void only(std::vector<std::string> names)
    {
        m_only = std::move(names);
        clear();
    }

    std::string nameOf(HWND window) const;

private:
    struct Named
    {
        HWND window;
        std::string name;
        WNDPROC original;
    };
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void note(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    const Named* find(HWND window) const;

    std::vector<Named> m_named;
    std::string m_creating;
    std::vector<std::string> m_notes;
    std::vector<std::string> m_only;
    static MessageRecorder* s_current;
};
