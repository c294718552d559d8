// The root of the toolkit's classes, with run-time class information.
#pragma once

#include <windows.h>
#include <zeb17_export.h>

class CArchive;
class CObject;

// What a program can ask about a class while it runs. DECLARE_DYNAMIC in the class and IMPLEMENT_DYNAMIC in
// its source file make one such constant for the class.
struct ZEB17_EXPORT CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema;                  // 0xFFFF: objects of the class are not stored by name
    CObject* (*m_pfnCreateObject)(); // null: objects of the class are not created by name
    const CRuntimeClass* m_pBaseClass;

    // True for the class itself and for each class above it.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
};

// The base of all classes of the toolkit that can be asked for their class.
class ZEB17_EXPORT CObject
{
public:
    static const CRuntimeClass classCObject;

    virtual const CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;
    // Stores the object in the archive or loads it from there, as the archive is open for the one or the
    // other.
    virtual void Serialize(CArchive& ar);

    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;

    BOOL IsKindOf(const CRuntimeClass* pClass) const;

protected:
    CObject() = default;
};

#define RUNTIME_CLASS(class_name) (&class_name::class##class_name)

#define DECLARE_DYNAMIC(class_name)                                                                          \
public:                                                                                                      \
    static const CRuntimeClass class##class_name;                                                            \
    const CRuntimeClass* GetRuntimeClass() const override;

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    const CRuntimeClass class_name::class##class_name = {#class_name, sizeof(class_name), 0xFFFF, nullptr,   \
                                                         RUNTIME_CLASS(base_class_name)};                    \
    const CRuntimeClass* class_name::GetRuntimeClass() const                                                 \
    {                                                                                                        \
        return RUNTIME_CLASS(class_name);                                                                    \
    }
