#ifndef OrvKvParameterEditISOFittingGroupSelectNotification_H
#define OrvKvParameterEditISOFittingGroupSelectNotification_H

#include "CATNotification.h"
#include "CATUnicodeString.h"

// The user has chosen another ISO 286 tolerance group, "H" for instance, for the edited parameter.
//
// Sent by OrvKvToleranceSub; the command answers with the fields of the group.
class OrvKvParameterEditISOFittingGroupSelectNotification : public CATNotification {
    CATDeclareClass;

  public:
    // iParmValue is the current value of the parameter as stored: mm, or degrees for an angle.
    OrvKvParameterEditISOFittingGroupSelectNotification(CATUnicodeString& iTolGroup, double iParmValue);
    ~OrvKvParameterEditISOFittingGroupSelectNotification() override;

    // Writes group and value. When a pointer is null it gives E_FAIL without trace and error object, and
    // writes nothing.
    HRESULT GetSelectedToleranceGroup(CATUnicodeString* pTolGroup, double* pParmValue);

  private:
    OrvKvParameterEditISOFittingGroupSelectNotification(
        OrvKvParameterEditISOFittingGroupSelectNotification& iOther) = delete;
    OrvKvParameterEditISOFittingGroupSelectNotification&
    operator=(OrvKvParameterEditISOFittingGroupSelectNotification& iOther) = delete;

    CATUnicodeString _tolGroup;
    double _parmValue; // as stored
};

#endif
