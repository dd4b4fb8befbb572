#ifndef OrvIKvPreferencesSettings_H
#define OrvIKvPreferencesSettings_H

#include "CATMacForInterfaces.h"

// What the add-in remembers of its user from one session to the next.
class OrvIKvPreferencesSettings : public CATBaseUnknown {
    CATDeclareInterface;

  public:
    // The place of the main panel: left and top in pixels, then its extent in two numbers that are given back
    // as they were stored. E_FAIL, and nothing written, while nothing is stored.
    virtual HRESULT GetPanelRectangle(int& oLeft, int& oTop, int& oThird, int& oFourth) = 0;
    // E_FAIL when the values cannot be kept; those stored before then stay.
    virtual HRESULT SetPanelRectangle(int iLeft, int iTop, int iThird, int iFourth) = 0;
};

CATDeclareHandler(OrvIKvPreferencesSettings, CATBaseUnknown);

// The preferences service under the asked-for interface, with a reference that the caller releases. S_OK with
// a pointer; a failing result and a null pointer where the service is not there or lacks the interface.
HRESULT OrvKvGetOrvKvPreferencesSettings(const IID& iInterface, void** oPointer);

#endif
