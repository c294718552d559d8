// The run-time class of CObject, and the questions to run-time classes.
#include "CObject.h"

const CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr, nullptr};

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    const CRuntimeClass* pClass = this;
    while (pClass && pClass != pBaseClass)
        pClass = pClass->m_pBaseClass;
    return pClass != nullptr;
}

const CRuntimeClass* CObject::GetRuntimeClass() const
{
    return RUNTIME_CLASS(CObject);
}

void CObject::Serialize(CArchive&) {}

BOOL CObject::IsKindOf(const CRuntimeClass* pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}
