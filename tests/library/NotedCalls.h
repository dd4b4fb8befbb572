#pragma once

#include "CATDialog.h"
#include "CATICkeParamFrame.h"
#include "CATICkeParm.h"
#include "CATIParmAsStored.h"
#include "CATIParmTolerance.h"
#include "host/Component.h"

#include <functional>
#include <sstream>
#include <string>
#include <vector>

namespace support {

using Calls = std::vector<std::string>;

// The stored value of a parameter, which notes "NAME = VALUE" when it is set.
class NotedValue : public host::Component<CATIParmAsStored> {
  public:
    NotedValue(const CATICkeParm_var& iParameter, Calls& ioCalls) : _parameter(iParameter), _calls(ioCalls) {}

    double GetValue() override { return CATIParmAsStored_var(_parameter)->GetValue(); }
    HRESULT SetValue(double iValue) override {
        std::ostringstream call;
        call << _parameter->Name().ConvertToChar() << " = " << iValue;
        _calls.push_back(call.str());
        return CATIParmAsStored_var(_parameter)->SetValue(iValue);
    }

  private:
    CATICkeParm_var _parameter;
    Calls& _calls;
};

// The tolerance of a parameter, which notes "max = DEVIATION" and "min = DEVIATION" when one is set.
class NotedTolerance : public host::Component<CATIParmTolerance> {
  public:
    NotedTolerance(const CATICkeParm_var& iParameter, Calls& ioCalls)
        : _tolerance(iParameter), _calls(ioCalls) {}

    std::function<void()> onSet; // runs before a deviation is set

    int GetTypeOfTolerance() override { return _tolerance->GetTypeOfTolerance(); }
    double GetMaxTolerance() override { return _tolerance->GetMaxTolerance(); }
    double GetMinTolerance() override { return _tolerance->GetMinTolerance(); }
    HRESULT SetMaxTolerance(double iDeviation) override {
        Note("max = ", iDeviation);
        return _tolerance->SetMaxTolerance(iDeviation);
    }
    HRESULT SetMinTolerance(double iDeviation) override {
        Note("min = ", iDeviation);
        return _tolerance->SetMinTolerance(iDeviation);
    }
    HRESULT Unset() override { return _tolerance->Unset(); }

  private:
    void Note(const char* iWhat, double iDeviation) {
        std::ostringstream call;
        call << iWhat << iDeviation;
        _calls.push_back(call.str());
        if (onSet)
            onSet();
    }

    CATIParmTolerance_var _tolerance;
    Calls& _calls;
};

// The edition frames of a parameter, which note "NAME in PARENT, options OPTIONS, named 'NAME'" and a
// publisher when one is made. What holds them reaches the noted value through them.
class NotedFrames : public host::Component<CATICkeParamFrame> {
  public:
    NotedFrames(const CATICkeParm_var& iParameter, Calls& ioCalls)
        : _parameter(iParameter), _value(host::Adopt<CATIParmAsStored>(new NotedValue(iParameter, ioCalls))),
          _calls(ioCalls) {}

    using host::Component<CATICkeParamFrame>::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oPointer) override {
        if (iInterface == IID_CATIParmAsStored)
            return _value->QueryInterface(iInterface, oPointer);
        return host::Component<CATICkeParamFrame>::QueryInterface(iInterface, oPointer);
    }

    CATDlgFrame* BuildFrame(const CATIParmPublisher_var& iPublisher, CATDialog* iParent, int iOptions,
                            const CATUnicodeString& iName) override {
        std::ostringstream call;
        call << _parameter->Name().ConvertToChar() << " in " << iParent->GetName().ConvertToChar()
             << ", options " << iOptions << ", named '" << iName.ConvertToChar() << "'"
             << (!iPublisher ? "" : ", with a publisher");
        _calls.push_back(call.str());
        return CATICkeParamFrame_var(_parameter)->BuildFrame(iPublisher, iParent, iOptions, iName);
    }

  private:
    CATICkeParm_var _parameter;
    CATIParmAsStored_var _value;
    Calls& _calls;
};

} // namespace support
