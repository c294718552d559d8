// Finds loaded modules: the program and its libraries. A handle is the address at which the module was
// loaded, as on Windows; "name.dll" is libname.so.
#include "errors.h"

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

BOOL GetModuleHandleExA(DWORD flags, LPCSTR name, HMODULE* module)
{
    *module = nullptr;
    // Nothing is counted here, so a caller who wants the module counted is refused.
    if (flags != GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT)
        return fail(ERROR_INVALID_PARAMETER);
    *module = GetModuleHandleA(name);
    return *module != nullptr;
}
