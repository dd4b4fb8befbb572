#ifndef ParameterAsStored_H
#define ParameterAsStored_H

#include "CATIParmAsStored.h"
#include "CATMacForIUnknown.h"
#include "Facet.h"

namespace host {

class Parameter;

class ParameterAsStored : public Facet<CATIParmAsStored, Parameter> {
    CATDeclareClass;

  public:
    using Facet::Facet;
    double GetValue() override;
    HRESULT SetValue(double iValue) override;
};

} // namespace host

#endif
