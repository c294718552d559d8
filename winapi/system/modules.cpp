// Finds loaded modules: the program and its libraries. A handle is the address at which the module was
// loaded, as on Windows; "name.dll" is libname.so.
#include "errors.h"

#include <dlfcn.h>
#include <link.h>

#include <cctype>
#include <string>
#include <string_view>

using namespace winapi;

namespace {

struct Search
{
    std::string fileName; // empty: the program
    HMODULE found = nullptr;
};

std::string fileNameOfModule(std::string_view name)
{
    constexpr std::string_view kExtension = ".dll";
    std::string lower;
    for (const char ch : name)
        lower += static_cast<char>(std::tolower(static_cast<unsigned char>(ch)));
    if (lower.ends_with(kExtension))
        lower.resize(lower.size() - kExtension.size());
    return "lib" + lower + ".so";
}

HMODULE loadAddress(const dl_phdr_info& module)
{
    for (int i = 0; i < module.dlpi_phnum; ++i)
        if (module.dlpi_phdr[i].p_type == PT_LOAD)
            return reinterpret_cast<HMODULE>(module.dlpi_addr + module.dlpi_phdr[i].p_vaddr);
    return nullptr;
}

// The program comes first and has no name; a library may carry its version behind its name.
int testModule(dl_phdr_info* module, std::size_t, void* data)
{
    auto& search = *static_cast<Search*>(data);
    std::string_view name = module->dlpi_name ? module->dlpi_name : "";
    name.remove_prefix(name.find_last_of('/') + 1);
    if (search.fileName.empty() ? !name.empty() : !name.starts_with(search.fileName))
        return 0;
    search.found = loadAddress(*module);
    return 1;
}

}

HMODULE GetModuleHandleA(LPCSTR name)
{
    Search search;
    if (name)
        search.fileName = fileNameOfModule(name);
    dl_iterate_phdr(testModule, &search);
    if (!search.found)
        fail(ERROR_MOD_NOT_FOUND);
    return search.found;
}

namespace {

struct SearchByAddress
{
    ULONG_PTR address;
    HMODULE found = nullptr;
    std::string path; // empty: the program
};

int testAddress(dl_phdr_info* module, std::size_t, void* data)
{
    auto& search = *static_cast<SearchByAddress*>(data);
    for (int i = 0; i < module->dlpi_phnum; ++i) {
        const auto& part = module->dlpi_phdr[i];
        const ULONG_PTR begin = module->dlpi_addr + part.p_vaddr;
        if (part.p_type != PT_LOAD || search.address < begin || search.address - begin >= part.p_memsz)
            continue;
        search.found = loadAddress(*module);
        search.path = module->dlpi_name;
        return 1;
    }
    return 0;
}

// The program itself stays anyway.
HMODULE pinModuleAt(LPCSTR address)
{
    SearchByAddress search{reinterpret_cast<ULONG_PTR>(address), nullptr, {}};
    dl_iterate_phdr(testAddress, &search);
    const bool pinned =
        search.path.empty() || dlopen(search.path.c_str(), RTLD_NOW | RTLD_NOLOAD | RTLD_NODELETE);
    if (!search.found || !pinned)
        fail(ERROR_MOD_NOT_FOUND);
    return pinned ? search.found : nullptr;
}

}

BOOL GetModuleHandleExA(DWORD flags, LPCSTR name, HMODULE* module)
{
    *module = nullptr;
    if (flags == (GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS))
        *module = pinModuleAt(name);
    // Nothing is counted here, so a caller who wants the module counted is refused.
    else if (flags != GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT)
        return fail(ERROR_INVALID_PARAMETER);
    else
        *module = GetModuleHandleA(name);
    return *module != nullptr;
}
