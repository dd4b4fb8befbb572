#ifndef ParameterFrameBuilder_H
#define ParameterFrameBuilder_H

#include "CATICkeParamFrame.h"
#include "CATMacForIUnknown.h"
#include "Facet.h"

namespace host {

class Parameter;

class ParameterFrameBuilder : public Facet<CATICkeParamFrame, Parameter> {
    CATDeclareClass;

  public:
    using Facet::Facet;
    CATDlgFrame* BuildFrame(const CATIParmPublisher_var& iPublisher, CATDialog* iParent, int iOptions,
                            const CATUnicodeString& iName) override;
};

} // namespace host

#endif
