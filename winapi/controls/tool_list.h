// The tools of one tool-tip control.
#pragma once

#include "commctrl.h"

#include <optional>
#include <string>
#include <vector>

namespace winapi {

struct Tool
{
    UINT flags = 0;
    HWND owner = nullptr; // hears the notifications
    UINT_PTR id = 0;      // a window with TTF_IDISHWND
    RECT rect{};          // in the owner's client area, unless the tool is a window
    HINSTANCE instance = nullptr;
    std::optional<std::string> text; // none: the owner is asked each time
    LPARAM data = 0;

    HWND window() const { return flags & TTF_IDISHWND ? reinterpret_cast<HWND>(id) : owner; }
    bool contains(HWND window, POINT client) const;
    bool isSame(const Tool& other) const { return owner == other.owner && id == other.id; }
};

// The structure as far as the caller's version of it goes.
std::optional<Tool> toTool(const TOOLINFOA* info);
void fillInfo(const Tool& tool, TOOLINFOA& info);

class ToolList
{
public:
    // A tool that is there already is added once more.
    void add(Tool tool) { m_tools.push_back(std::move(tool)); }
    void remove(const Tool& like);
    Tool* find(const Tool& like);
    Tool* at(std::size_t index) { return index < m_tools.size() ? &m_tools[index] : nullptr; }
    Tool* hit(HWND window, POINT client);
    std::size_t count() const { return m_tools.size(); }

private:
    std::vector<Tool> m_tools;
};

// What is shown of a text: up to a tab, single ampersands left out and doubled ones single, unless they are
// meant.
std::string shownText(const std::string& text, bool ampersandsAreMeant);

}
