#ifndef CATIParmTolerance_H
#define CATIParmTolerance_H

#include "CATMacForInterfaces.h"

// The tolerance of a length (deviations in millimetres) or of an angle (in degrees). Other parameters have no
// such interface. Nothing here raises an event; see CATIParmEvents::RaiseToleranceChange.
class CATIParmTolerance : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    // 1 when a tolerance is set, 0 otherwise.
    virtual int GetTypeOfTolerance() = 0;
    // Deviations from the value, with their sign; 0 when none is set.
    virtual double GetMaxTolerance() = 0;
    virtual double GetMinTolerance() = 0;
    // Each sets its deviation and makes the tolerance set; the other deviation stays. The maximum may lie
    // below the minimum; minus zero counts as zero. E_FAIL, and nothing changed, for a number that is not
    // finite.
    virtual HRESULT SetMaxTolerance(double iDeviation) = 0;
    virtual HRESULT SetMinTolerance(double iDeviation) = 0;
    // No tolerance any more.
    virtual HRESULT Unset() = 0;
};

CATDeclareHandler(CATIParmTolerance, CATBaseUnknown);

#endif
