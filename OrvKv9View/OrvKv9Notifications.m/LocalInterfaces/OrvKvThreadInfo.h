#ifndef OrvKvThreadInfo_H
#define OrvKvThreadInfo_H

#include "CATUnicodeString.h"
#include "OrvKvSource.h"

// Type, dimension and pitch of a thread, as the thread notifications give them to the command.
struct OrvKvThreadInfo {
    const CATUnicodeString& type;
    const CATUnicodeString& dimension; // diameter designation
    double pitch;                      // mm

    // Writes all three. Fails on the first null pointer, and then writes nothing.
    long GiveTo(CATUnicodeString* pType, CATUnicodeString* pDim, double* pPitch,
                const OrvKvSource& iWhere) const;
};

#endif
