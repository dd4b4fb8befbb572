#ifndef CATIParmPublisher_H
#define CATIParmPublisher_H

#include "CATListValCATBaseUnknown_var.h"
#include "CATMacForInterfaces.h"
#include "CATUnicodeString.h"

// An object that owns and publishes parameters, a feature for instance. Where an operation takes a publisher,
// a null handle is accepted.
class CATIParmPublisher : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    virtual CATUnicodeString Name() = 0;
    // Publishes a parameter, which leaves the publisher that it had. E_FAIL for what is no parameter and for
    // one that is published here already.
    virtual HRESULT Append(const CATBaseUnknown_var& iParameter) = 0;
    // E_FAIL for what is not published here.
    virtual HRESULT Remove(const CATBaseUnknown_var& iParameter) = 0;
    // The parameters in the order in which they were appended.
    virtual HRESULT GetParameters(CATListValCATBaseUnknown_var& oParameters) = 0;
};

CATDeclareHandler(CATIParmPublisher, CATBaseUnknown);

#endif
