// The root of the toolkit's classes, with run-time class information.
#pragma once

#include <windows.h>
#include <zeb17_export.h>

class CArchive;
class CObject;

// What is known of a class at run time. One constant per class, made by DECLARE_DYNAMIC and
// IMPLEMENT_DYNAMIC.
struct ZEB17_EXPORT CRuntimeClass
{
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema; // 0xFFFF: objects of the class are not stored by name
    CObject* (*m_pfnCreateObject)();
    const CRuntimeClass* m_pBaseClass;

    // True for the class itself and for each class above it.
    BOOL IsDerivedFrom(const CRuntimeClass* pBaseClass) const;
};

class ZEB17_EXPORT CObject
{
public:
    static const CRuntimeClass classCObject;

    virtual const CRuntimeClass* GetRuntimeClass() const;
    virtual ~CObject() = default;
    // Stores or loads the object, according to the direction of the archive.
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
