// The way from a system handle to the object that stands for it.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>
#include <unordered_map>
#include <utility>

/// The objects of one class by their handles. Permanent objects belong to whoever made them; the temporary
/// ones of handles without an object belong to the map. HandleMember: the member that holds the handle.
/// Handle: its type as the map's key.
template <class Object, auto HandleMember>
class HandleMap
{
public:
    using Handle = std::remove_reference_t<decltype(std::declval<Object&>().*HandleMember)>;

    /// The permanent object, else a temporary one, made if need be; null for null.
    Object* FromHandle(Handle handle)
    {
        if (!handle)
            return nullptr;
        if (Object* permanent = Permanent(handle))
            return permanent;
        Temporary& temporary = m_temporary[handle];
        if (!temporary)
            temporary.reset(new Object);
        temporary.get()->*HandleMember = handle; // its last holder may have parted it from an earlier one
        return temporary.get();
    }

    Object* Permanent(Handle handle) const
    {
        const auto found = m_permanent.find(handle);
        return found == m_permanent.end() ? nullptr : found->second;
    }

    void Attach(Handle handle, Object* object) { m_permanent[handle] = object; }

    /// Forgets that the handle is this object's. A temporary one stays as long as its holder may look at it.
    void Detach(Handle handle, const Object* object)
    {
        const auto found = m_permanent.find(handle);
        if (found != m_permanent.end() && found->second == object)
            m_permanent.erase(found);
    }

    void DeleteTemporary() { m_temporary.clear(); }

private:
    // A temporary object owns nothing, so that it is parted from its handle before it ends.
    struct PartAndDelete
    {
        void operator()(Object* object) const
        {
            object->*HandleMember = nullptr;
            delete object;
        }
    };
    using Temporary = std::unique_ptr<Object, PartAndDelete>;

    std::unordered_map<Handle, Object*> m_permanent;
    std::unordered_map<Handle, Temporary> m_temporary;
};
