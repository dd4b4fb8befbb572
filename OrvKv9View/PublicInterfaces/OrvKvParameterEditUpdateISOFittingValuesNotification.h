#ifndef OrvKvParameterEditUpdateISOFittingValuesNotification_H
#define OrvKvParameterEditUpdateISOFittingValuesNotification_H

#include "CATNotification.h"
#include "CATUnicodeString.h"

// The edited parameter has a new value while it has an ISO 286 fit, whose deviations depend on the value.
//
// Sent by OrvKvToleranceSub with what its combos show; the command answers with the deviations.
class OrvKvParameterEditUpdateISOFittingValuesNotification : public CATNotification {
    CATDeclareClass;

  public:
    // iParmValue is the new value of the parameter as stored: mm, or degrees for an angle.
    OrvKvParameterEditUpdateISOFittingValuesNotification(CATUnicodeString& iFittingGroup,
                                                         CATUnicodeString& iFittingField, double iParmValue);
    ~OrvKvParameterEditUpdateISOFittingValuesNotification() override;

    // Writes group, field and value. Fails, and writes nothing, when a pointer is null.
    HRESULT GetFittingInfo(CATUnicodeString* pFittingGroup, CATUnicodeString* pFittingField,
                           double* pParmValue);

  private:
    OrvKvParameterEditUpdateISOFittingValuesNotification(
        OrvKvParameterEditUpdateISOFittingValuesNotification& iOther) = delete;
    OrvKvParameterEditUpdateISOFittingValuesNotification&
    operator=(OrvKvParameterEditUpdateISOFittingValuesNotification& iOther) = delete;

    CATUnicodeString _fittingGroup;
    CATUnicodeString _fittingField;
    double _parmValue; // as stored
};

#endif
