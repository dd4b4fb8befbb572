#ifndef host_Component_H
#define host_Component_H

#include "CATMacForInterfaces.h"
#include "host/FaultPoints.h"

namespace host {

// Base of an object that implements one interface of the platform.
//
//     class MyPublisher : public host::Component<CATIParmPublisher> { ... };
//     CATIParmPublisher_var publisher = host::Adopt<CATIParmPublisher>(new MyPublisher);
template<class Interface>
class Component : public Interface {
  public:
    using Interface::QueryInterface;

    HRESULT QueryInterface(const IID& iInterface, void** oPointer) override {
        void* const found = oPointer == nullptr ? nullptr : Find(iInterface);
        if (found == nullptr)
            return Interface::QueryInterface(iInterface, oPointer);
        *oPointer = nullptr;
        if (FaultPoints::Fails("interface query"))
            return E_NOINTERFACE;
        this->AddRef();
        *oPointer = found;
        return S_OK;
    }

  protected:
    // The pointer to the interface called iInterface, without a reference; null where there is none. Objects
    // with more interfaces override it.
    virtual void* Find(const IID& iInterface) {
        return iInterface == Interface::ClassId() ? static_cast<Interface*>(this) : nullptr;
    }
};

// A handle that takes over the one reference of a new object.
template<class Interface>
CATHandle<Interface> Adopt(Interface* iNew) {
    CATHandle<Interface> handle(iNew);
    iNew->Release();
    return handle;
}

} // namespace host

#endif
