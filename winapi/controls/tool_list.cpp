#include "tool_list.h"

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
    Tool tool{info->uFlags, info->hwnd, info->uId, info->rect, info->hinst, {}, 0};
    if (info->lpszText != LPSTR_TEXTCALLBACKA)
        tool.text = info->lpszText && !IS_INTRESOURCE(info->lpszText) ? info->lpszText : "";
    if (info->cbSize >= TTTOOLINFOA_V2_SIZE)
        tool.data = info->lParam;
    return tool;
}

void fillInfo(const Tool& tool, TOOLINFOA& info)
{
    info.uFlags = tool.flags;
    info.hwnd = tool.owner;
    info.uId = tool.id;
    info.rect = tool.rect;
    info.hinst = tool.instance;
    if (info.cbSize >= TTTOOLINFOA_V2_SIZE)
        info.lParam = tool.data;
    if (!tool.text) {
        info.lpszText = LPSTR_TEXTCALLBACKA;
    } else if (info.lpszText && info.lpszText != LPSTR_TEXTCALLBACKA) {
        constexpr int promised = 80; // what a caller's buffer has to hold
        lstrcpynA(info.lpszText, tool.text->c_str(), promised);
    }
}

void ToolList::remove(const Tool& like)
{
    const auto found =
        std::find_if(m_tools.begin(), m_tools.end(), [&](const Tool& tool) { return tool.isSame(like); });
    if (found != m_tools.end())
        m_tools.erase(found);
}

Tool* ToolList::find(const Tool& like)
{
    const auto found =
        std::find_if(m_tools.begin(), m_tools.end(), [&](const Tool& tool) { return tool.isSame(like); });
    return found == m_tools.end() ? nullptr : &*found;
}

Tool* ToolList::hit(HWND window, POINT client)
{
    const auto found = std::find_if(m_tools.begin(), m_tools.end(),
                                    [&](const Tool& tool) { return tool.contains(window, client); });
    return found == m_tools.end() ? nullptr : &*found;
}

std::string shownText(const std::string& text, bool ampersandsAreMeant)
{
    if (ampersandsAreMeant)
        return text;
    std::string shown;
    for (std::size_t i = 0; i < text.size() && text[i] != '\t'; ++i) {
        if (text[i] == '&' && ++i == text.size())
            break;
        shown += text[i];
    }
    return shown;
}

}
