#include "CATBaseUnknown.h" // comes before the guard: it needs this header at its end

#ifndef CATHandle_H
#define CATHandle_H

#include <cstddef>

// Raises the platform's error for the use of a null handle.
[[noreturn]] void CATRaiseNullHandle(const char* iHandleClass);

// A counted pointer to an interface. The handle classes X_var are made from it.
//
// A handle that is made from an object asks it for the interface and is null when the object has none. The
// operator -> on a null handle raises the platform's null-handle error. Two handles are equal when the same
// object stands behind both, whatever their interfaces.
template<class Interface>
class CATHandle {
  public:
    constexpr CATHandle() noexcept = default;
    CATHandle(std::nullptr_t) {}
    CATHandle(const CATHandle& iOther) : _interface(iOther._interface) { Retain(); }
    CATHandle(CATHandle&& iOther) noexcept : _interface(iOther._interface) { iOther._interface = nullptr; }
    CATHandle(CATBaseUnknown* iObject) : _interface(Query(iObject)) {}
    CATHandle(const CATBaseUnknown* iObject) : CATHandle(const_cast<CATBaseUnknown*>(iObject)) {}
    CATHandle(Interface* iInterface) : _interface(iInterface) { Retain(); }
    template<class Other>
    CATHandle(const CATHandle<Other>& iOther) : _interface(Query(iOther.Object())) {}
    ~CATHandle() { Forget(); }

    CATHandle& operator=(const CATHandle& iOther) {
        CATHandle copy(iOther);
        Swap(copy);
        return *this;
    }
    CATHandle& operator=(CATHandle&& iOther) noexcept {
        Swap(iOther);
        return *this;
    }

    Interface* operator->() const {
        if (_interface == nullptr)
            CATRaiseNullHandle(Interface::ClassName());
        return _interface;
    }
    operator Interface*() const { return _interface; }
    bool operator!() const { return _interface == nullptr; }

    // The object behind the handle without a reference; null for a null handle.
    CATBaseUnknown* Object() const { return _interface; }

    template<class Other>
    bool operator==(const CATHandle<Other>& iOther) const {
        return Same(Object(), iOther.Object());
    }
    template<class Other>
    bool operator!=(const CATHandle<Other>& iOther) const {
        return !Same(Object(), iOther.Object());
    }

  private:
    static Interface* Query(CATBaseUnknown* iObject) {
        if (iObject == nullptr)
            return nullptr;
        void* found = nullptr;
        if (FAILED(iObject->QueryInterface(Interface::ClassId(), &found)))
            return nullptr;
        return static_cast<Interface*>(found);
    }
    static bool Same(const CATBaseUnknown* iLeft, const CATBaseUnknown* iRight) {
        if (iLeft == nullptr || iRight == nullptr)
            return iLeft == iRight;
        return iLeft->IsEqual(iRight) != 0;
    }
    void Retain() {
        if (_interface != nullptr)
            _interface->AddRef();
    }
    void Forget() {
        if (_interface != nullptr)
            _interface->Release();
        _interface = nullptr;
    }
    void Swap(CATHandle& ioOther) {
        Interface* kept = _interface;
        _interface = ioOther._interface;
        ioOther._interface = kept;
    }

    Interface* _interface = nullptr; // one reference is held
};

#endif
