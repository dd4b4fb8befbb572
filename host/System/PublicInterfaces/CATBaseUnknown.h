#ifndef CATBaseUnknown_H
#define CATBaseUnknown_H

#include "CATDataType.h"
#include "CATErrorDef.h"
#include "CATIID.h"
#include "CATMetaClass.h"

namespace host {
class LiveObjects;
struct Publications;
} // namespace host

// Base of every object of the platform: reference counting, interfaces, meta class.
//
// An object is born with one reference, which belongs to whoever created it, and dies when its last reference
// is released. Objects of the dialog tree are deleted by their parent instead. A copy is an object of its
// own: it starts with one reference and no subscriptions.
class CATBaseUnknown {
  public:
    CATBaseUnknown();
    CATBaseUnknown(const CATBaseUnknown& iOther);
    CATBaseUnknown& operator=(const CATBaseUnknown& iOther);

    // Gives the interface iInterface and adds a reference to it. E_NOINTERFACE when the object has none, and
    // *oPointer is then null; E_FAIL when oPointer is null.
    virtual HRESULT QueryInterface(const IID& iInterface, void** oPointer);
    // Both give the number of references that remain.
    virtual CATULong AddRef();
    virtual CATULong Release();
    // Automation is not offered: these four answer E_NOTIMPL and write nothing.
    virtual HRESULT GetTypeInfoCount(unsigned int* oCount);
    virtual HRESULT GetTypeInfo(unsigned int iIndex, CATULong iLocale, void** oInformation);
    virtual HRESULT GetIDsOfNames(const IID& iReserved, char** iNames, unsigned int iCount, CATULong iLocale,
                                  long* oIds);
    virtual HRESULT Invoke(long iMember, const IID& iReserved, CATULong iLocale, unsigned short iFlags,
                           void* ioParameters, void* oResult);
    // The interface called iName with a reference added, or null.
    virtual CATBaseUnknown* QueryInterface(const char* iName);

    virtual ~CATBaseUnknown();

    virtual CATMetaClass* GetMetaObject() const;
    virtual const char* IsA() const;
    virtual int IsAKindOf(const char* iClassName) const;

    // The object that stands behind an interface: the object itself unless it says otherwise. No reference is
    // added.
    virtual CATBaseUnknown* GetImpl(int iReserved = 0) const;
    virtual void SetImpl(CATBaseUnknown* iImplementation);
    virtual int IsNull() const;
    virtual int IsEqual(const CATBaseUnknown* iOther) const;
    virtual HRESULT ChangeComponentState(int iFrom, int iTo, const void* iContext);

    static CATMetaClass* MetaObject();
    static const CLSID& ClassId();
    static const char* ClassName();
    static CATBaseUnknown* CreateItself();
    static CATMetaClass* meta_object;

  private:
    friend class host::LiveObjects;
    friend struct host::Publications;

    CATULong _references = 1;
    host::Publications* _publications =
        nullptr;                             // subscriptions on this object; null as long as there is none
    CATBaseUnknown* _previousLive = nullptr; // chain of all live objects
    CATBaseUnknown* _nextLive = nullptr;
};

extern const IID IID_CATBaseUnknown;

#include "CATBaseUnknown_var.h"

#endif
