#include "afx.h"

CRuntimeClass CObject::classCObject = {"CObject", sizeof(CObject), 0xFFFF, nullptr, nullptr};

CObject *CRuntimeClass::CreateObject() {
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

BOOL CRuntimeClass::IsDerivedFrom(const CRuntimeClass *base) const {
    for (const CRuntimeClass *cls = this; cls;
         cls = cls->m_pfnGetBaseClass ? cls->m_pfnGetBaseClass() : nullptr)
        if (cls == base)
            return TRUE;
    return FALSE;
}

CRuntimeClass *CObject::GetThisClass() {
    return &classCObject;
}

CRuntimeClass *CObject::GetRuntimeClass() const {
    return &classCObject;
}

CObject::~CObject() {}

BOOL CObject::IsSerializable() const {
    return GetRuntimeClass()->m_wSchema != 0xFFFF;
}

BOOL CObject::IsKindOf(const CRuntimeClass *runtimeClass) const {
    return GetRuntimeClass()->IsDerivedFrom(runtimeClass);
}

void CObject::Serialize(CArchive &) {}

void CObject::AssertValid() const {}

CObject *AfxDynamicDownCast(CRuntimeClass *runtimeClass, CObject *object) {
    return object && object->IsKindOf(runtimeClass) ? object : nullptr;
}

void AfxAssertFailed(LPCSTR expression, LPCSTR file, int line) {
    std::fprintf(stderr, "%s:%d: assertion failed: %s\n", file, line, expression);
    std::fflush(stderr);
    std::abort();
}
