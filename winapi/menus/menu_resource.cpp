// The menus that modules have registered, and how a menu is made from its resource.
#include "menuresource.h"

#include "errors.h"
#include "menu.h"
#include "resource_id.h"
#include "winerror.h"

#include <dlfcn.h>

#include <algorithm>
#include <span>
#include <vector>

namespace winapi {

namespace {

struct Resource
{
    HMODULE module;
    UINT id;
    std::span<const MenuResourceItem> items;
};

std::vector<Resource>& resources()
{
    static auto& registered = *new std::vector<Resource>;
    return registered;
}

HMODULE moduleAt(const void* address)
{
    Dl_info info{};
    return dladdr(address, &info) ? static_cast<HMODULE>(info.dli_fbase) : nullptr;
}

const Resource* findResource(HMODULE module, UINT id)
{
    const HMODULE wanted = module ? module : GetModuleHandleA(nullptr);
    const auto& all = resources();
    const auto found = std::find_if(all.begin(), all.end(), [&](const Resource& resource) {
        return resource.module == wanted && resource.id == id;
    });
    return found == all.end() ? nullptr : &*found;
}

UINT toId(LPCSTR name)
{
    return isResourceId(name) ? static_cast<UINT>(reinterpret_cast<ULONG_PTR>(name)) : 0;
}

// Makes a menu of the items at the front of `items` that are as deep as the first, and takes them off.
HMENU buildMenu(std::span<const MenuResourceItem>& items)
{
    const HMENU menu = CreatePopupMenu();
    const int depth = items.front().depth;
    while (!items.empty() && items.front().depth == depth) {
        const MenuResourceItem item = items.front();
        items = items.subspan(1);
        const bool filled = (item.flags & MF_POPUP) && !items.empty() && items.front().depth > depth;
        const HMENU subMenu = filled ? buildMenu(items) : nullptr;
        AppendMenuA(menu, item.flags, filled ? reinterpret_cast<UINT_PTR>(subMenu) : item.id, item.text);
    }
    return menu;
}

}

}

using namespace winapi;

void RegisterMenuResource(UINT id, const MenuResourceItem* items, int count)
{
    resources().push_back({moduleAt(items), id, {items, static_cast<std::size_t>(count)}});
}

HRSRC FindResourceA(HMODULE module, LPCSTR name, LPCSTR type)
{
    const Resource* resource = type == RT_MENU ? findResource(module, toId(name)) : nullptr;
    if (!resource)
        return fail(ERROR_RESOURCE_NAME_NOT_FOUND, nullptr);
    return reinterpret_cast<HRSRC>(const_cast<Resource*>(resource));
}

HMENU LoadMenuA(HINSTANCE module, LPCSTR name)
{
    const Resource* resource = findResource(module, toId(name));
    if (!resource || resource->items.empty())
        return fail(ERROR_RESOURCE_NAME_NOT_FOUND, nullptr);
    auto items = resource->items;
    return buildMenu(items);
}
