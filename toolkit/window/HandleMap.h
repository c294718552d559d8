// The way from a system handle to the object that stands for it.
#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>
#include <unordered_map>
#include <utility>

// The objects of one class by their handles. A permanent object belongs to who made it. Where a handle has no
// object, FromHandle makes a temporary one, which belongs to the map. HandleMember is the member of Object
// that holds the handle.
template <class Object, auto HandleMember>
class HandleMap
{
public:
    using Handle = std::remove_reference_t<decltype(std::declval<Object&>().*HandleMember)>;

    // The permanent object, or else a temporary one; null for null.
    Object* FromHandle(Handle handle)
    {
        if (!handle)
            return nullptr;
        if (Object* pPermanent = Permanent(handle))
            return pPermanent;
        Temporary& pTemporary = m_mapTemporary[handle];
        if (!pTemporary)
            pTemporary.reset(new Object);
        pTemporary.get()->*HandleMember = handle; // Detach may have parted the object from its handle
        return pTemporary.get();
    }

    Object* Permanent(Handle handle) const
    {
        const auto found = m_mapPermanent.find(handle);
        return found == m_mapPermanent.end() ? nullptr : found->second;
    }

    void Attach(Handle handle, Object* pObject) { m_mapPermanent[handle] = pObject; }

    // Forgets that the object is the permanent one of the handle. A temporary object stays until
    // DeleteTemporary.
    void Detach(Handle handle, const Object* pObject)
    {
        const auto found = m_mapPermanent.find(handle);
        if (found != m_mapPermanent.end() && found->second == pObject)
            m_mapPermanent.erase(found);
    }

    void DeleteTemporary() { m_mapTemporary.clear(); }

private:
    // Parts an object from its handle before deleting it, since a temporary object does not own the handle.
    struct PartAndDelete
    {
        void operator()(Object* pObject) const
        {
            pObject->*HandleMember = nullptr;
            delete pObject;
        }
    };
    using Temporary = std::unique_ptr<Object, PartAndDelete>;

    std::unordered_map<Handle, Object*> m_mapPermanent;
    std::unordered_map<Handle, Temporary> m_mapTemporary;
};
