#include "CATBaseUnknown.h"

#include "Publications.h"
#include "host/FaultPoints.h"
#include "host/LiveObjects.h"

const IID IID_CATBaseUnknown = CATIidFromName("CATBaseUnknown");

CATMetaClass* CATBaseUnknown::meta_object = nullptr;

CATBaseUnknown::CATBaseUnknown() {
    host::LiveObjects::Join(*this);
}

CATBaseUnknown::CATBaseUnknown(const CATBaseUnknown&) {
    host::LiveObjects::Join(*this);
}

CATBaseUnknown& CATBaseUnknown::operator=(const CATBaseUnknown&) {
    return *this;
}

CATBaseUnknown::~CATBaseUnknown() {
    if (_publications != nullptr)
        host::Publications::End(*this);
    host::LiveObjects::Leave(*this);
}

HRESULT CATBaseUnknown::QueryInterface(const IID& iInterface, void** oPointer) {
    if (oPointer == nullptr)
        return E_FAIL;
    *oPointer = nullptr;
    if (host::FaultPoints::Fails("interface query") || iInterface != IID_CATBaseUnknown)
        return E_NOINTERFACE;
    AddRef();
    *oPointer = this;
    return S_OK;
}

CATULong CATBaseUnknown::AddRef() {
    return ++_references;
}

CATULong CATBaseUnknown::Release() {
    const CATULong left = --_references;
    if (left == 0)
        delete this;
    return left;
}

HRESULT CATBaseUnknown::GetTypeInfoCount(unsigned int*) {
    return E_NOTIMPL;
}

HRESULT CATBaseUnknown::GetTypeInfo(unsigned int, CATULong, void**) {
    return E_NOTIMPL;
}

HRESULT CATBaseUnknown::GetIDsOfNames(const IID&, char**, unsigned int, CATULong, long*) {
    return E_NOTIMPL;
}

HRESULT CATBaseUnknown::Invoke(long, const IID&, CATULong, unsigned short, void*, void*) {
    return E_NOTIMPL;
}

CATBaseUnknown* CATBaseUnknown::QueryInterface(const char* iName) {
    void* found = nullptr;
    if (FAILED(QueryInterface(CATIidFromName(iName), &found)))
        return nullptr;
    return static_cast<CATBaseUnknown*>(found);
}

CATMetaClass* CATBaseUnknown::GetMetaObject() const {
    return MetaObject();
}

const char* CATBaseUnknown::IsA() const {
    return ClassName();
}

int CATBaseUnknown::IsAKindOf(const char* iClassName) const {
    return MetaObject()->IsAKindOf(iClassName);
}

CATBaseUnknown* CATBaseUnknown::GetImpl(int) const {
    return const_cast<CATBaseUnknown*>(this);
}

void CATBaseUnknown::SetImpl(CATBaseUnknown*) {}

int CATBaseUnknown::IsNull() const {
    return 0;
}

int CATBaseUnknown::IsEqual(const CATBaseUnknown* iOther) const {
    return iOther != nullptr && GetImpl() == iOther->GetImpl() ? 1 : 0;
}

HRESULT CATBaseUnknown::ChangeComponentState(int, int, const void*) {
    return E_NOTIMPL;
}

CATMetaClass* CATBaseUnknown::MetaObject() {
    if (meta_object == nullptr)
        meta_object = CATMetaClass::Find("CATBaseUnknown", Implementation, nullptr, "CATNull");
    return meta_object;
}

const CLSID& CATBaseUnknown::ClassId() {
    return MetaObject()->GetClassId();
}

const char* CATBaseUnknown::ClassName() {
    return "CATBaseUnknown";
}

CATBaseUnknown* CATBaseUnknown::CreateItself() {
    return nullptr;
}
