#ifndef OrvKvModifiedParameterInMultiListNotification_H
#define OrvKvModifiedParameterInMultiListNotification_H

#include "CATNotification.h"
#include "CATString.h"

// A parameter that a list shows has changed.
//
// Sent by OrvKvParameterListSub with the name of the changed parameter, and by OrvKvParameterSetListSub with
// an empty name after every selection of a set. A copy carries the same name.
class OrvKvModifiedParameterInMultiListNotification : public CATNotification {
    CATDeclareClass;

  public:
    // iParameterName may be empty.
    explicit OrvKvModifiedParameterInMultiListNotification(const CATString& iParameterName);
    ~OrvKvModifiedParameterInMultiListNotification() override;

    // Copies the name of the parameter. Never fails.
    HRESULT GetParameterName(CATString& oParameterName);

  private:
    CATString _parameterName;
};

#endif
