#pragma once

#include "CATNotification.h"

#include <functional>
#include <ostream>
#include <string>
#include <vector>

// The 25 notification classes as one table, for what holds for all of them.

// What may be copied, and from what.
enum class CopyRule {
    Refused,       // neither copied nor assigned
    FromConstant,  // from a const reference
    FromModifiable // from a non-const reference alone
};

struct FamilyMember {
    std::string name;
    CopyRule declaredCopy;                  // as the class promises it
    CopyRule observedCopy;                  // as the compiler sees it
    bool isMarker;                          // carries nothing
    std::size_t size;                       // of an object
    bool overridesNothingElse;              // than the destructor and the three operations of the meta class
    std::vector<int> virtualEntries;        // places of its virtual operations, and of one that follows them
    std::function<CATNotification*()> make; // null where memory is short
    CATMetaClass* (*metaObject)();
    CATMetaClass** metaSlot; // the static member
    const CLSID& (*classId)();
    const char* (*className)();
    CATBaseUnknown* (*createItself)();
};

const std::vector<FamilyMember>& NotificationFamily();

inline void PrintTo(const FamilyMember& iMember, std::ostream* ioStream) {
    *ioStream << iMember.name;
}
