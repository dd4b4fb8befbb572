#ifndef CATIParmEvents_H
#define CATIParmEvents_H

#include "CATMacForInterfaces.h"

// The events of a parameter. Subscribe with AddCallback on GetPublisher() under one of the two names.
class CATIParmEvents : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    // Names of the events: the value has changed, the tolerance has changed. They live as long as the
    // process.
    virtual const char* GetValueChangedEvent() = 0;
    virtual const char* GetToleranceChangedEvent() = 0;
    // The parameter itself, without a reference.
    virtual CATBaseUnknown* GetPublisher() = 0;
    // Runs the callbacks of the event at once. The flag is stored nowhere. Neither raises the other event. A
    // subscriber may change the parameter, subscribe, unsubscribe and let go of the parameter meanwhile.
    virtual void RaiseChange(int iFlag) = 0;
    virtual void RaiseToleranceChange() = 0;
};

CATDeclareHandler(CATIParmEvents, CATBaseUnknown);

#endif
