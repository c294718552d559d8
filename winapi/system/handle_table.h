// Tables of objects by handle. A handle is never given out twice, so a released one is known to be bad.
#pragma once

#include "windef.h"

#include <memory>
#include <unordered_map>
#include <utility>

namespace winapi {

// Smaller numbers stand for system colours, resource ids and the like.
constexpr ULONG_PTR kFirstHandle = 0x10000;

inline ULONG_PTR nextHandleValue()
{
    static ULONG_PTR last = kFirstHandle;
    return last += 4;
}

template <class Handle, class Object>
class HandleTable
{
public:
    Handle add(std::shared_ptr<Object> object)
    {
        const ULONG_PTR value = nextHandleValue();
        m_objects.emplace(value, std::move(object));
        return reinterpret_cast<Handle>(value);
    }

    std::shared_ptr<Object> find(const void* handle) const
    {
        const auto found = m_objects.find(reinterpret_cast<ULONG_PTR>(handle));
        return found == m_objects.end() ? nullptr : found->second;
    }

    bool contains(const void* handle) const
    {
        return m_objects.contains(reinterpret_cast<ULONG_PTR>(handle));
    }

    std::shared_ptr<Object> remove(const void* handle)
    {
        const auto node = m_objects.extract(reinterpret_cast<ULONG_PTR>(handle));
        return node ? node.mapped() : nullptr;
    }

    template <class Visit>
    void forEach(Visit visit)
    {
        for (const auto& [value, object] : m_objects)
            visit(*object);
    }

    std::size_t size() const { return m_objects.size(); }

private:
    std::unordered_map<ULONG_PTR, std::shared_ptr<Object>> m_objects;
};

}
