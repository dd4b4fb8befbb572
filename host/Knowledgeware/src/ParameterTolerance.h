#ifndef ParameterTolerance_H
#define ParameterTolerance_H

#include "CATIParmTolerance.h"
#include "CATMacForIUnknown.h"
#include "Facet.h"

namespace host {

class Parameter;

class ParameterTolerance : public Facet<CATIParmTolerance, Parameter> {
    CATDeclareClass;

  public:
    using Facet::Facet;
    int GetTypeOfTolerance() override { return _isSet ? 1 : 0; }
    double GetMaxTolerance() override { return _maximum; }
    double GetMinTolerance() override { return _minimum; }
    HRESULT SetMaxTolerance(double iDeviation) override { return Set(_maximum, iDeviation); }
    HRESULT SetMinTolerance(double iDeviation) override { return Set(_minimum, iDeviation); }
    HRESULT Unset() override;

  private:
    HRESULT Set(double& oDeviation, double iDeviation);

    double _maximum = 0.0; // deviations in storage units, 0 while none is set
    double _minimum = 0.0;
    bool _isSet = false;
};

} // namespace host

#endif
