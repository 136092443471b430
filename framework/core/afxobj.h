// CObject and the run-time class information that hangs on it.
//
// Differences from MFC: classes are not registered by name, so CRuntimeClass::FromName does not exist.
// Serialize does nothing and cannot be driven, because there is no CArchive.
#pragma once

#include "afxdefs.h"

class CArchive;
class CObject;

// What is known about a class at run time. Objects of it are made by the DECLARE_/IMPLEMENT_ macros only.
struct ORVANEFW_API CRuntimeClass {
    LPCSTR m_lpszClassName;
    int m_nObjectSize;
    UINT m_wSchema; // 0xFFFF: not serializable
    CObject *(*m_pfnCreateObject)();
    CRuntimeClass *(*m_pfnGetBaseClass)();

    // Null when the class was not declared with DYNCREATE or SERIAL.
    CObject *CreateObject();
    BOOL IsDerivedFrom(const CRuntimeClass *base) const;
};

class ORVANEFW_API CObject {
public:
    virtual CRuntimeClass *GetRuntimeClass() const;
    virtual ~CObject();

    BOOL IsSerializable() const;
    BOOL IsKindOf(const CRuntimeClass *runtimeClass) const;
    virtual void Serialize(CArchive &archive);
    virtual void AssertValid() const;

    static CRuntimeClass *GetThisClass();
    static CRuntimeClass classCObject;

protected:
    CObject() {}

private:
    CObject(const CObject &) = delete;
    void operator=(const CObject &) = delete;
};

// The object if it is of the class, else null; null stays null.
ORVANEFW_API CObject *AfxDynamicDownCast(CRuntimeClass *runtimeClass, CObject *object);

#define RUNTIME_CLASS(class_name) (class_name::GetThisClass())

#define DYNAMIC_DOWNCAST(class_name, object)                                                                 \
    (static_cast<class_name *>(AfxDynamicDownCast(RUNTIME_CLASS(class_name), object)))
#define STATIC_DOWNCAST(class_name, object) (static_cast<class_name *>(object))

#define DECLARE_DYNAMIC(class_name)                                                                          \
public:                                                                                                      \
    static CRuntimeClass class##class_name;                                                                  \
    static CRuntimeClass *GetThisClass();                                                                    \
    virtual CRuntimeClass *GetRuntimeClass() const override;                                                 \
                                                                                                             \
private:                                                                                                     \
    static CRuntimeClass *_GetBaseClass();                                                                   \
                                                                                                             \
public:

#define DECLARE_DYNCREATE(class_name)                                                                        \
    DECLARE_DYNAMIC(class_name)                                                                              \
    static CObject *CreateObject();

#define DECLARE_SERIAL(class_name) DECLARE_DYNCREATE(class_name)

#define IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, create)                                  \
    CRuntimeClass *class_name::_GetBaseClass() {                                                             \
        return RUNTIME_CLASS(base_class_name);                                                               \
    }                                                                                                        \
    CRuntimeClass class_name::class##class_name = {#class_name, sizeof(class_name), schema, create,          \
                                                   &class_name::_GetBaseClass};                              \
    CRuntimeClass *class_name::GetThisClass() {                                                              \
        return &class_name::class##class_name;                                                               \
    }                                                                                                        \
    CRuntimeClass *class_name::GetRuntimeClass() const {                                                     \
        return &class_name::class##class_name;                                                               \
    }

#define IMPLEMENT_DYNAMIC(class_name, base_class_name)                                                       \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, nullptr)

#define IMPLEMENT_DYNCREATE(class_name, base_class_name)                                                     \
    CObject *class_name::CreateObject() {                                                                    \
        return new class_name;                                                                               \
    }                                                                                                        \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, 0xFFFF, &class_name::CreateObject)

#define IMPLEMENT_SERIAL(class_name, base_class_name, schema)                                                \
    CObject *class_name::CreateObject() {                                                                    \
        return new class_name;                                                                               \
    }                                                                                                        \
    IMPLEMENT_RUNTIMECLASS(class_name, base_class_name, schema, &class_name::CreateObject)
