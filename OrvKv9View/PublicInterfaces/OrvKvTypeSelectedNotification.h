#ifndef OrvKvTypeSelectedNotification_H
#define OrvKvTypeSelectedNotification_H

#include "CATNotification.h"
#include "CATString.h"
#include "CATUnicodeString.h"

// The user has chosen another feature type.
//
// Sent by OrvKvTypeSub. It is made empty and filled once, before it is sent:
//
//     OrvKvTypeSelectedNotification* selected = new OrvKvTypeSelectedNotification();
//     selected->SetFeatureInformation(group, type, identifier, name);
//
// A copy carries the same values.
class OrvKvTypeSelectedNotification : public CATNotification {
    CATDeclareClass;

  public:
    OrvKvTypeSelectedNotification();
    OrvKvTypeSelectedNotification(const OrvKvTypeSelectedNotification& iOther);
    OrvKvTypeSelectedNotification& operator=(const OrvKvTypeSelectedNotification& iOther);
    ~OrvKvTypeSelectedNotification() override;

    // Keeps all four values; group and type count from 1. Fails, and keeps the values it had, when the group
    // or the type is negative.
    HRESULT SetFeatureInformation(int iGroup, int iType, CATString iTypeIdentifier,
                                  CATUnicodeString iTypeName);
    // Writes all four values. Fails with the same message as the setter, and writes nothing, when a pointer
    // is null.
    HRESULT GetFeatureInformation(int* oGroup, int* oType, CATString* oTypeIdentifier,
                                  CATUnicodeString* oTypeName);

  private:
    CATString _typeIdentifier;
    CATUnicodeString _typeName; // as the user sees it
    int _group;                 // from 1
    int _type;                  // from 1
};

#endif
