#ifndef CATBaseUnknown_var_H
#define CATBaseUnknown_var_H

#include "CATBaseUnknown.h"
#include "CATHandle.h"

// The handle of any object.
//
// It differs from the handle of an interface in one point: it keeps the very pointer that it is given, since
// every object is a CATBaseUnknown.
template<>
class CATHandle<CATBaseUnknown> {
  public:
    constexpr CATHandle() noexcept = default;
    CATHandle(std::nullptr_t) {}
    CATHandle(const CATHandle& iOther) : CATHandle(iOther._object) {}
    CATHandle(CATBaseUnknown* iObject) : _object(iObject) {
        if (_object != nullptr)
            _object->AddRef();
    }
    CATHandle(const CATBaseUnknown* iObject) : CATHandle(const_cast<CATBaseUnknown*>(iObject)) {}
    template<class Other>
    CATHandle(const CATHandle<Other>& iOther) : CATHandle(iOther.Object()) {}
    ~CATHandle() {
        if (_object != nullptr)
            _object->Release();
    }

    CATHandle& operator=(const CATHandle& iOther) {
        CATBaseUnknown* previous = _object;
        _object = iOther._object;
        if (_object != nullptr)
            _object->AddRef();
        if (previous != nullptr)
            previous->Release();
        return *this;
    }

    CATBaseUnknown* operator->() const {
        if (_object == nullptr)
            CATRaiseNullHandle(CATBaseUnknown::ClassName());
        return _object;
    }
    operator CATBaseUnknown*() const { return _object; }
    bool operator!() const { return _object == nullptr; }
    CATBaseUnknown* Object() const { return _object; }

    template<class Other>
    bool operator==(const CATHandle<Other>& iOther) const {
        return Same(iOther.Object());
    }
    template<class Other>
    bool operator!=(const CATHandle<Other>& iOther) const {
        return !Same(iOther.Object());
    }

  private:
    bool Same(const CATBaseUnknown* iOther) const {
        if (_object == nullptr || iOther == nullptr)
            return _object == iOther;
        return _object->IsEqual(iOther) != 0;
    }

    CATBaseUnknown* _object = nullptr; // one reference is held
};

typedef CATHandle<CATBaseUnknown> CATBaseUnknown_var;

// The null handle.
extern const CATBaseUnknown_var NULL_var;

#endif
