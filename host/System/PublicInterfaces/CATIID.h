#ifndef CATIID_H
#define CATIID_H

// Identifiers of interfaces (IID) and classes (CLSID).
//
// An identifier is derived from the name of the class it stands for, so that two names never need a registry:
//     const IID IID_CATICkeParm = CATIidFromName("CATICkeParm");

struct CATGuid {
    unsigned long long high; // first half of the hashed name
    unsigned long long low;  // second half of the hashed name
};

typedef CATGuid IID;
typedef CATGuid CLSID;

inline bool operator==(const CATGuid& iLeft, const CATGuid& iRight) {
    return iLeft.high == iRight.high && iLeft.low == iRight.low;
}

inline bool operator!=(const CATGuid& iLeft, const CATGuid& iRight) {
    return !(iLeft == iRight);
}

// The identifier of the class or interface called iName; a null name counts as the empty one.
CATGuid CATIidFromName(const char* iName);

#endif
