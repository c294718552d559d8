// The tools of a tool-tip control: windows, or parts of windows, that have a tip.
#pragma once

#include "commctrl.h"

#include <deque>
#include <optional>
#include <string>

namespace winapi {

struct Tool
{
    UINT flags = 0;
    HWND owner = nullptr;            // gets the notifications
    UINT_PTR id = 0;                 // with TTF_IDISHWND: the window that is the tool
    RECT rect{};                     // else: the tool's place in the owner's client area
    std::optional<std::string> text; // none: the owner is asked each time

    HWND window() const { return flags & TTF_IDISHWND ? reinterpret_cast<HWND>(id) : owner; }
    bool contains(HWND window, POINT client) const;
    bool isSame(const Tool& other) const { return owner == other.owner && id == other.id; }
};

// None when the structure is smaller than its first version.
std::optional<Tool> toTool(const TOOLINFOA* info);

class ToolList
{
public:
    // The list may hold the same tool more than once.
    void add(Tool tool) { m_tools.push_back(std::move(tool)); }
    void remove(const Tool& like);
    const Tool* find(const Tool& like) const;
    // The tool at a place in the client area of a window.
    const Tool* hit(HWND window, POINT client) const;
    std::size_t count() const { return m_tools.size(); }

private:
    std::deque<Tool>::const_iterator placeOf(const Tool& like) const;

    std::deque<Tool>
        m_tools; // those that were added first go first, so the first one is found and taken at once
};

// What a tip shows of a text: a single ampersand is left out, a double one shows as one.
std::string shownText(const std::string& text);

}
