// The tools of a tool-tip control, and their texts.
#include "tool_list.h"

#include "resource_id.h"

#include <algorithm>

namespace winapi {

bool Tool::contains(HWND target, POINT client) const
{
    if (flags & TTF_IDISHWND)
        return window() == target;
    return owner == target && PtInRect(&rect, client);
}

std::optional<Tool> toTool(const TOOLINFOA* info)
{
    if (!info || info->cbSize < TTTOOLINFOA_V1_SIZE)
        return std::nullopt;
    Tool tool{info->uFlags, info->hwnd, info->uId, info->rect, {}};
    if (info->lpszText != LPSTR_TEXTCALLBACKA)
        tool.text = info->lpszText && !isResourceId(info->lpszText) ? info->lpszText : "";
    return tool;
}

std::deque<Tool>::const_iterator ToolList::placeOf(const Tool& like) const
{
    return std::find_if(m_tools.begin(), m_tools.end(), [&](const Tool& tool) { return tool.isSame(like); });
}

void ToolList::remove(const Tool& like)
{
    const auto found = placeOf(like);
    if (found != m_tools.end())
        m_tools.erase(found);
}

const Tool* ToolList::find(const Tool& like) const
{
    const auto found = placeOf(like);
    return found == m_tools.end() ? nullptr : &*found;
}

const Tool* ToolList::hit(HWND window, POINT client) const
{
    const auto found = std::find_if(m_tools.begin(), m_tools.end(),
                                    [&](const Tool& tool) { return tool.contains(window, client); });
    return found == m_tools.end() ? nullptr : &*found;
}

std::string shownText(const std::string& text)
{
    std::string shown;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '&' && ++i == text.size())
            break;
        shown += text[i];
    }
    return shown;
}

}
