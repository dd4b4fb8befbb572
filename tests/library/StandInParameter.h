#pragma once

#include "CATICkeParamFrame.h"
#include "CATICkeParm.h"
#include "CATIParmEvents.h"
#include "CATIParmTolerance.h"
#include "host/Component.h"

#include <algorithm>
#include <functional>
#include <vector>

namespace support {

// A length that a test has a hand in: what happens while its value is read, of which type it says to be,
// which tolerance and events it has, what makes its edition frames, and which interfaces it lacks. Otherwise
// it is the length.
//
//     const auto depth = host::Adopt(new StandInParameter(Length("T", 20)));
//     depth->onShow = [] { CATThrow(new CATInternalError("Error_InShow", "Catalogue")); };
class StandInParameter : public host::Component<CATICkeParm> {
  public:
    explicit StandInParameter(const CATICkeParm_var& iLength) : _length(iLength) {}

    std::function<void()> onShow;            // runs before the value is given
    std::function<CATICkeType_var()> onType; // gives the type; that of the length when it is empty
    CATIParmTolerance_var tolerance;         // that of the length when it is null
    CATIParmEvents_var events;               // those of the length when it is null
    CATICkeParamFrame_var frames;            // those of the length when it is null
    std::vector<IID> missing;                // interfaces that it does not have

    using host::Component<CATICkeParm>::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oPointer) override {
        if (iInterface == IID_CATICkeParm)
            return host::Component<CATICkeParm>::QueryInterface(iInterface, oPointer);
        if (std::find(missing.begin(), missing.end(), iInterface) != missing.end())
            return CATICkeParm::QueryInterface(iInterface, oPointer);
        if (iInterface == IID_CATIParmTolerance && !!tolerance)
            return tolerance->QueryInterface(iInterface, oPointer);
        if (iInterface == IID_CATIParmEvents && !!events)
            return events->QueryInterface(iInterface, oPointer);
        if (iInterface == IID_CATICkeParamFrame && !!frames)
            return frames->QueryInterface(iInterface, oPointer);
        return _length->QueryInterface(iInterface, oPointer);
    }

    CATUnicodeString Show() override {
        const std::function<void()> act = onShow; // may replace itself
        if (act)
            act();
        return _length->Show();
    }

    CATICkeType_var Type() override { return onType ? onType() : _length->Type(); }
    double AsReal() override { return _length->AsReal(); }
    int AsInteger() override { return _length->AsInteger(); }
    CATUnicodeString AsString() override { return _length->AsString(); }
    HRESULT Valuate(double iValue) override { return _length->Valuate(iValue); }
    HRESULT Valuate(int iValue) override { return _length->Valuate(iValue); }
    HRESULT Valuate(const CATUnicodeString& iText) override { return _length->Valuate(iText); }
    CATUnicodeString Name() override { return _length->Name(); }
    CATUnicodeString RelativeName(const CATIParmPublisher_var& iPublisher) override {
        return _length->RelativeName(iPublisher);
    }
    CATICkeInst_var Value() override { return _length->Value(); }
    void SetUserAccessMode(int iMode) override { _length->SetUserAccessMode(iMode); }
    int GetUserAccessMode() override { return _length->GetUserAccessMode(); }

  private:
    CATICkeParm_var _length;
};

// A tolerance that says what it is told to.
class FixedTolerance : public host::Component<CATIParmTolerance> {
  public:
    FixedTolerance(int iType, double iMaximum, double iMinimum)
        : _type(iType), _maximum(iMaximum), _minimum(iMinimum) {}

    int GetTypeOfTolerance() override { return _type; }
    double GetMaxTolerance() override { return _maximum; }
    double GetMinTolerance() override { return _minimum; }
    HRESULT SetMaxTolerance(double) override { return E_FAIL; }
    HRESULT SetMinTolerance(double) override { return E_FAIL; }
    HRESULT Unset() override { return E_FAIL; }

  private:
    int _type;
    double _maximum;
    double _minimum;
};

} // namespace support
