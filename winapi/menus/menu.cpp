// Menus: their items and states.
#include "menu.h"

#include "errors.h"
#include "handle_table.h"
#include "winerror.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace winapi {

namespace {

constexpr UINT kStateFlags = MF_GRAYED | MF_DISABLED;
constexpr UINT kNotFound = static_cast<UINT>(-1);

HandleTable<HMENU, Menu>& menus()
{
    static auto& table = *new HandleTable<HMENU, Menu>;
    return table;
}

// Where an item stands. Its menu may be a submenu of the menu that was asked.
struct Place
{
    std::shared_ptr<Menu> menu;
    std::size_t position;

    MenuItem& item() const { return menu->items[position]; }
};

std::optional<Place> findById(const std::shared_ptr<Menu>& menu, UINT id)
{
    if (!menu)
        return std::nullopt;
    for (std::size_t i = 0; i < menu->items.size(); ++i) {
        const MenuItem& item = menu->items[i];
        if (item.subMenu) {
            if (const auto inside = findById(menus().find(item.subMenu), id))
                return inside;
        } else if (item.id == id)
            return Place{menu, i};
    }
    return std::nullopt;
}

std::optional<Place> findItem(HMENU handle, UINT item, UINT flags)
{
    const auto menu = findMenu(handle);
    if (!menu)
        return std::nullopt;
    std::optional<Place> place;
    if (!(flags & MF_BYPOSITION))
        place = findById(menu, item);
    else if (item < menu->items.size())
        place = Place{menu, item};
    if (!place)
        fail(ERROR_MENU_ITEM_NOT_FOUND);
    return place;
}

MenuItem makeItem(UINT flags, UINT_PTR id, LPCSTR text)
{
    MenuItem item;
    item.type = flags & MF_SEPARATOR;
    item.state = flags & kStateFlags;
    if (flags & MF_POPUP)
        item.subMenu = reinterpret_cast<HMENU>(id);
    else
        item.id = static_cast<UINT>(id);
    if (item.isSeparator())
        item.state |= MF_GRAYED | MF_DISABLED;
    else if (text)
        item.text = text;
    return item;
}

}

std::shared_ptr<Menu> findMenu(HMENU handle)
{
    auto menu = menus().find(handle);
    if (!menu)
        fail(ERROR_INVALID_MENU_HANDLE);
    return menu;
}

}

using namespace winapi;

HMENU CreatePopupMenu()
{
    return menus().add(std::make_shared<Menu>());
}

BOOL DestroyMenu(HMENU handle)
{
    const auto menu = menus().remove(handle);
    if (!menu)
        return fail(ERROR_INVALID_MENU_HANDLE);
    for (const MenuItem& item : menu->items)
        if (item.subMenu)
            DestroyMenu(item.subMenu);
    return TRUE;
}

BOOL AppendMenuA(HMENU handle, UINT flags, UINT_PTR id, LPCSTR text)
{
    const auto menu = findMenu(handle);
    MenuItem item = makeItem(flags, id, text);
    if (!menu || (item.subMenu && !findMenu(item.subMenu)))
        return FALSE;
    menu->items.push_back(std::move(item));
    return TRUE;
}

BOOL RemoveMenu(HMENU menu, UINT item, UINT flags)
{
    const auto place = findItem(menu, item, flags);
    if (!place)
        return FALSE;
    auto& items = place->menu->items;
    items.erase(items.begin() + static_cast<std::ptrdiff_t>(place->position));
    return TRUE;
}

int GetMenuItemCount(HMENU handle)
{
    const auto menu = findMenu(handle);
    return menu ? static_cast<int>(menu->items.size()) : -1;
}

UINT GetMenuItemID(HMENU menu, int position)
{
    const auto place = findItem(menu, static_cast<UINT>(position), MF_BYPOSITION);
    return !place || place->item().subMenu ? kNotFound : place->item().id;
}

UINT GetMenuState(HMENU menu, UINT item, UINT flags)
{
    const auto place = findItem(menu, item, flags);
    if (!place)
        return kNotFound;
    const MenuItem& found = place->item();
    if (!found.subMenu)
        return found.flags();
    return static_cast<UINT>(GetMenuItemCount(found.subMenu)) << 8 | (found.flags() & 0xFF);
}

HMENU GetSubMenu(HMENU menu, int position)
{
    const auto place = findItem(menu, static_cast<UINT>(position), MF_BYPOSITION);
    return place ? place->item().subMenu : nullptr;
}

int GetMenuStringA(HMENU menu, UINT item, LPSTR text, int size, UINT flags)
{
    const auto place = findItem(menu, item, flags);
    if (text && size > 0)
        text[0] = '\0';
    if (!place)
        return 0;
    const std::string& full = place->item().text;
    if (!text || size <= 0)
        return static_cast<int>(full.size());
    const auto copied = std::min(full.size(), static_cast<std::size_t>(size - 1));
    std::memcpy(text, full.data(), copied);
    text[copied] = '\0';
    return static_cast<int>(copied);
}

BOOL EnableMenuItem(HMENU menu, UINT item, UINT flags)
{
    const auto place = findItem(menu, item, flags);
    if (!place)
        return -1;
    UINT& state = place->item().state;
    const UINT before = state & kStateFlags;
    state = (state & ~kStateFlags) | (flags & kStateFlags);
    return static_cast<BOOL>(before);
}
