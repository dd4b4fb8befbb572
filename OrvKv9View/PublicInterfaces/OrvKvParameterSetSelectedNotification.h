#ifndef OrvKvParameterSetSelectedNotification_H
#define OrvKvParameterSetSelectedNotification_H

#include "CATNotification.h"
#include "CATUnicodeString.h"

// The user has chosen another parameter set.
//
// Sent by OrvKvTypeAndParameterSetSub and OrvKvParameterSetListSub.
class OrvKvParameterSetSelectedNotification : public CATNotification {
    CATDeclareClass;

  public:
    explicit OrvKvParameterSetSelectedNotification(const CATUnicodeString& iParameterSetName);
    ~OrvKvParameterSetSelectedNotification() override;

    // Copies the name of the set. Always succeeds; oParameterSetName must not be null.
    HRESULT GetParameterSetName(CATUnicodeString* oParameterSetName);

  private:
    OrvKvParameterSetSelectedNotification(OrvKvParameterSetSelectedNotification& iOther) = delete;
    OrvKvParameterSetSelectedNotification& operator=(OrvKvParameterSetSelectedNotification& iOther) = delete;

    CATUnicodeString _parameterSetName;
};

#endif
