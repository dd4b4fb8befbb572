#ifndef Facet_H
#define Facet_H

#include "CATBaseUnknown.h"

namespace host {

// A further interface of an object, as a member of it: references, interfaces and identity are the owner's.
template<class Interface, class Owner>
class Facet : public Interface {
  public:
    explicit Facet(Owner& ioOwner) : _owner(ioOwner) {}
    Facet(const Facet&) = delete;
    Facet& operator=(const Facet&) = delete;

    HRESULT QueryInterface(const IID& iInterface, void** oPointer) override {
        return _owner.QueryInterface(iInterface, oPointer);
    }
    CATBaseUnknown* QueryInterface(const char* iName) override { return _owner.QueryInterface(iName); }
    CATULong AddRef() override { return _owner.AddRef(); }
    CATULong Release() override { return _owner.Release(); }
    CATBaseUnknown* GetImpl(int iReserved = 0) const override { return _owner.GetImpl(iReserved); }

  protected:
    Owner& _owner;
};

} // namespace host

#endif
