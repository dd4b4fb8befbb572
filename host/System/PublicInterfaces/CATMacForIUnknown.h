#ifndef CATMacForIUnknown_H
#define CATMacForIUnknown_H

#include "CATMetaClass.h"

// Declaration of a class of the object model. In the class, ended with a semicolon; what follows is public:
//     CATDeclareClass;
#define CATDeclareClass                                                                                      \
  public:                                                                                                    \
    static CATMetaClass* MetaObject();                                                                       \
    static const CLSID& ClassId();                                                                           \
    static const char* ClassName();                                                                          \
    static CATBaseUnknown* CreateItself();                                                                   \
    CATMetaClass* GetMetaObject() const override;                                                            \
    const char* IsA() const override;                                                                        \
    int IsAKindOf(const char* iClassName) const override;                                                    \
    static CATMetaClass* meta_object

// Registration of that class, in one source file, ended with a semicolon:
//     CATImplementClass(OrvKvExample, Implementation, CATNotification, CATNull);
// The meta class is looked up once, on first use, under the name of the class.
#define CATImplementClass(iClass, iType, iBase, iExtended)                                                   \
    CATMetaClass* iClass::MetaObject() {                                                                     \
        if (meta_object == nullptr)                                                                          \
            meta_object = CATMetaClass::Find(#iClass, iType, iBase::MetaObject(), #iExtended);               \
        return meta_object;                                                                                  \
    }                                                                                                        \
    const CLSID& iClass::ClassId() {                                                                         \
        return MetaObject()->GetClassId();                                                                   \
    }                                                                                                        \
    const char* iClass::ClassName() {                                                                        \
        return #iClass;                                                                                      \
    }                                                                                                        \
    CATBaseUnknown* iClass::CreateItself() {                                                                 \
        return nullptr;                                                                                      \
    }                                                                                                        \
    CATMetaClass* iClass::GetMetaObject() const {                                                            \
        return MetaObject();                                                                                 \
    }                                                                                                        \
    const char* iClass::IsA() const {                                                                        \
        return ClassName();                                                                                  \
    }                                                                                                        \
    int iClass::IsAKindOf(const char* iClassName) const {                                                    \
        return MetaObject()->IsAKindOf(iClassName);                                                          \
    }                                                                                                        \
    CATMetaClass* iClass::meta_object = nullptr

#endif
