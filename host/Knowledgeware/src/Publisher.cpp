#include "Publisher.h"

#include "Parameter.h"

namespace host {

CATImplementClass(Publisher, Implementation, CATBaseUnknown, CATNull);

Publisher::~Publisher() {
    for (int position = 1; position <= _parameters.Size(); ++position)
        Parameter::Behind(_parameters[position])->SetPublisher(nullptr);
}

HRESULT Publisher::Append(const CATBaseUnknown_var& iParameter) {
    Parameter* const parameter = Parameter::Behind(iParameter);
    if (parameter == nullptr || parameter->PublishedBy() == this)
        return E_FAIL;
    const CATBaseUnknown_var kept(static_cast<CATICkeParm*>(parameter));
    if (parameter->PublishedBy() != nullptr)
        parameter->PublishedBy()->Remove(kept);
    _parameters.Append(kept);
    parameter->SetPublisher(this);
    return S_OK;
}

HRESULT Publisher::Remove(const CATBaseUnknown_var& iParameter) {
    Parameter* const parameter = Parameter::Behind(iParameter);
    if (parameter == nullptr || parameter->PublishedBy() != this)
        return E_FAIL;
    parameter->SetPublisher(nullptr);
    _parameters.RemoveValue(iParameter);
    return S_OK;
}

HRESULT Publisher::GetParameters(CATListValCATBaseUnknown_var& oParameters) {
    oParameters = _parameters;
    return S_OK;
}

} // namespace host
