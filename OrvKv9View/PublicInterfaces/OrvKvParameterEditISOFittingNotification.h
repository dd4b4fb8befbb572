#ifndef OrvKvParameterEditISOFittingNotification_H
#define OrvKvParameterEditISOFittingNotification_H

#include "CATICkeParm.h"
#include "CATNotification.h"
#include "CATString.h"

// The edited parameter is to have an ISO 286 fit.
//
// Sent by OrvKvToleranceSub when it changes to fits, with the parameter and its stored group and field; the
// command answers with the groups to choose from.
class OrvKvParameterEditISOFittingNotification : public CATNotification {
    CATDeclareClass;

  public:
    // Group and field are empty where the parameter has none yet. The notification holds a reference of the
    // parameter.
    OrvKvParameterEditISOFittingNotification(const CATICkeParm_var& iParmToEdit, CATString iFittingGroup,
                                             CATString iFittingField);
    ~OrvKvParameterEditISOFittingNotification() override;

    // Writes parameter, group and field. Fails with one message, and writes nothing, whichever pointer is
    // null.
    HRESULT GetFittingInfo(CATICkeParm_var* pParmToEdit, CATString* pFittingGroup, CATString* pFittingField);

  private:
    OrvKvParameterEditISOFittingNotification(OrvKvParameterEditISOFittingNotification& iOther) = delete;
    OrvKvParameterEditISOFittingNotification&
    operator=(OrvKvParameterEditISOFittingNotification& iOther) = delete;

    CATICkeParm_var _parmToEdit;
    CATString _fittingGroup;
    CATString _fittingField;
};

#endif
