#ifndef ParameterEvents_H
#define ParameterEvents_H

#include "CATIParmEvents.h"
#include "CATMacForIUnknown.h"
#include "Facet.h"

namespace host {

class Parameter;

class ParameterEvents : public Facet<CATIParmEvents, Parameter> {
    CATDeclareClass;

  public:
    using Facet::Facet;
    const char* GetValueChangedEvent() override;
    const char* GetToleranceChangedEvent() override;
    CATBaseUnknown* GetPublisher() override;
    void RaiseChange(int iFlag) override;
    void RaiseToleranceChange() override;
};

} // namespace host

#endif
