#ifndef OrvKvParameterEditISOFittingFieldSelectNotification_H
#define OrvKvParameterEditISOFittingFieldSelectNotification_H

#include "CATNotification.h"
#include "CATUnicodeString.h"

// The user has chosen another ISO 286 tolerance field, that is a grade, for the edited parameter.
//
// Sent by OrvKvToleranceSub with what its two combos show: the group (the position, "H" for instance) and the
// field (the class, "H7" for instance).
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
