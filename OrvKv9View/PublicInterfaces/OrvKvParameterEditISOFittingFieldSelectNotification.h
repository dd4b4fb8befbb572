#ifndef OrvKvParameterEditISOFittingFieldSelectNotification_H
#define OrvKvParameterEditISOFittingFieldSelectNotification_H

#include "CATNotification.h"
#include "CATUnicodeString.h"

// The user has chosen another ISO 286 tolerance field, "H7" for instance, for the edited parameter.
//
// Sent by OrvKvToleranceSub with what its two combos show: the group (the fundamental deviation, "H" for
// instance) and the field (the tolerance class).
class OrvKvParameterEditISOFittingFieldSelectNotification : public CATNotification {
    CATDeclareClass;

  public:
    // iParmValue is the current value of the parameter as stored: mm, or degrees for an angle.
    OrvKvParameterEditISOFittingFieldSelectNotification(CATUnicodeString& iTolGroup,
                                                        CATUnicodeString& iTolField, double iParmValue);
    ~OrvKvParameterEditISOFittingFieldSelectNotification() override;

    // Writes group, field and value. Fails, and writes nothing, when a pointer is null.
    HRESULT GetSelectedFittingValues(CATUnicodeString* pTolGroup, CATUnicodeString* pTolField,
                                     double* pParmValue);

  private:
    OrvKvParameterEditISOFittingFieldSelectNotification(
        OrvKvParameterEditISOFittingFieldSelectNotification& iOther) = delete;
    OrvKvParameterEditISOFittingFieldSelectNotification&
    operator=(OrvKvParameterEditISOFittingFieldSelectNotification& iOther) = delete;

    CATUnicodeString _tolGroup;
    CATUnicodeString _tolField;
    double _parmValue; // as stored
};

#endif
