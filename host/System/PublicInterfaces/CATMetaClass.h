#ifndef CATMetaClass_H
#define CATMetaClass_H

#include "CATIID.h"

class CATBaseUnknown;

// How a class takes part in the object model.
enum CATTypeOfClass {
    Implementation = 1,
    DataExtension = 2,
    CodeExtension = 3,
    CacheExtension = 4,
    TransientExtension = 5
};

// Description of a class of the object model: its name, its kind and the class it is derived from there.
//
// There is one meta class per class name for the life of the process; nobody deletes one.
class CATMetaClass {
  public:
    // The meta class called iName. Made on the first call; later calls give the same object and ignore the
    // other arguments. iBase may be null for a root; iExtended names the class that an extension extends.
    static CATMetaClass* Find(const char* iName, CATTypeOfClass iType, CATMetaClass* iBase,
                              const char* iExtended);

    CATMetaClass(const CATMetaClass&) = delete;
    CATMetaClass& operator=(const CATMetaClass&) = delete;

    const char* GetName() const { return _name; }
    CATTypeOfClass GetTypeOfClass() const { return _type; }
    CATMetaClass* GetBase() const { return _base; }
    const char* GetExtendedName() const { return _extended; }
    const CLSID& GetClassId() const { return _id; }

    // 1 for the class itself and for each class above it; 0 otherwise, a null name included.
    int IsAKindOf(const char* iName) const;

  private:
    CATMetaClass(const char* iName, CATTypeOfClass iType, CATMetaClass* iBase, const char* iExtended);

    const char* _name;
    CATTypeOfClass _type;
    CATMetaClass* _base;
    const char* _extended;
    CLSID _id;
};

#endif
