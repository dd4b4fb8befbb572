#include "Parameter.h"

#include "CATCallbackManager.h"
#include "FailedWithoutReason.h"
#include "ParameterFrame.h"
#include "ParameterNotifications.h"
#include "Publisher.h"

#include <algorithm>
#include <limits>

namespace host {

CATImplementClass(Parameter, Implementation, CATBaseUnknown, CATNull);

Parameter::Parameter(Magnitude& iMagnitude, const CATUnicodeString& iName)
    : _name(iName), _magnitude(iMagnitude) {
    if (iMagnitude.HasText())
        _text = std::make_unique<CATUnicodeString>();
}

CATICkeParm_var Parameter::New(Magnitude& iMagnitude, const CATUnicodeString& iName) {
    return Adopted(Make(iMagnitude, iName));
}

CATICkeParm_var Parameter::New(Magnitude& iMagnitude, const CATUnicodeString& iName, double iStored) {
    Parameter* const made = iMagnitude.Takes(iStored) ? Make(iMagnitude, iName) : nullptr;
    if (made != nullptr)
        made->_stored = WithoutMinusZero(iStored);
    return Adopted(made);
}

CATICkeParm_var Parameter::NewText(const CATUnicodeString& iName, const CATUnicodeString& iText) {
    Parameter* const made = Make(Magnitude::String(), iName);
    if (made != nullptr)
        *made->_text = iText;
    return Adopted(made);
}

Parameter* Parameter::Make(Magnitude& iMagnitude, const CATUnicodeString& iName) {
    return FaultPoints::Fails("parameter allocation") ? nullptr : new Parameter(iMagnitude, iName);
}

CATICkeParm_var Parameter::Adopted(Parameter* iMade) {
    return iMade == nullptr ? CATICkeParm_var() : Adopt<CATICkeParm>(iMade);
}

Parameter* Parameter::Behind(const CATBaseUnknown* iObject) {
    return iObject == nullptr ? nullptr : dynamic_cast<Parameter*>(iObject->GetImpl());
}

void* Parameter::Find(const IID& iInterface) {
    if (iInterface == IID_CATICkeParm)
        return static_cast<CATICkeParm*>(this);
    if (iInterface == IID_CATIParmEvents)
        return static_cast<CATIParmEvents*>(&_events);
    if (iInterface == IID_CATIParmTolerance)
        return _magnitude.HasTolerance() ? static_cast<CATIParmTolerance*>(&_tolerance) : nullptr;
    if (iInterface == IID_CATIParmAsStored)
        return _magnitude.HasText() ? nullptr : static_cast<CATIParmAsStored*>(&_asStored);
    if (iInterface == IID_CATICkeInst)
        return static_cast<CATICkeInst*>(this);
    if (iInterface == IID_CATICkeParamFrame)
        return static_cast<CATICkeParamFrame*>(&Edition().frameBuilder);
    if (iInterface == IID_CATICkeParmManipulator)
        return HasSteps() ? static_cast<CATICkeParmManipulator*>(&Edition().manipulator) : nullptr;
    return nullptr;
}

CATICkeType_var Parameter::Type() {
    return CATICkeType_var(&_magnitude);
}

double Parameter::AsReal() {
    return _magnitude.ToMks(_stored);
}

int Parameter::AsInteger() {
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(std::clamp(AsReal(), lowest, highest));
}

HRESULT Parameter::Valuate(double iValue) {
    const HRESULT result = Store(_magnitude.FromMks(iValue));
    if (SUCCEEDED(result))
        _events.RaiseChange(1);
    return result;
}

HRESULT Parameter::Valuate(int iValue) {
    return Valuate(static_cast<double>(iValue));
}

HRESULT Parameter::Valuate(const CATUnicodeString& iText) {
    if (_text == nullptr || FaultPoints::Fails("parameter write"))
        return FailedWithoutReason();
    const bool isNew = *_text != iText;
    *_text = iText;
    TellFrames(isNew);
    _events.RaiseChange(1);
    return S_OK;
}

CATUnicodeString Parameter::RelativeName(const CATIParmPublisher_var& iPublisher) {
    if (_publisher == nullptr || !iPublisher || _publisher->IsEqual(iPublisher) != 0)
        return _name;
    return _publisher->Name() + "\\" + _name;
}

CATUnicodeString Parameter::Show() {
    return _text == nullptr ? _magnitude.Show(_stored) : *_text;
}

CATICkeInst_var Parameter::Value() {
    return CATICkeInst_var(static_cast<CATICkeInst*>(this));
}

void Parameter::SetUserAccessMode(int iMode) {
    if ((iMode != 1 && iMode != 3) || iMode == _accessMode)
        return;
    _accessMode = iMode;
    TellFrames(true);
}

HRESULT Parameter::Store(double iStored) {
    if (!_magnitude.Takes(iStored) || FaultPoints::Fails("parameter write"))
        return FailedWithoutReason();
    const bool isNew = _stored != iStored;
    _stored = WithoutMinusZero(iStored);
    TellFrames(isNew);
    return S_OK;
}

ParameterEdition& Parameter::Edition() {
    if (_edition == nullptr)
        _edition = std::make_unique<ParameterEdition>(*this);
    return *_edition;
}

// A value that is stored again takes the place of a text that a frame has not taken.
void Parameter::TellFrames(bool iIsNew) {
    if (_edition == nullptr)
        return;
    for (ParameterFrame* const frame : _edition->frames)
        if (iIsNew || frame->IsRefused())
            frame->Follow();
}

void Parameter::Raise(CATNotification& ioNotification) {
    const CATBaseUnknown_var kept(this);
    DispatchCallbacks(&ioNotification, this);
}

} // namespace host
