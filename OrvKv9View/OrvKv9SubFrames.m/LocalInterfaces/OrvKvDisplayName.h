#ifndef OrvKvDisplayName_H
#define OrvKvDisplayName_H

#include "CATString.h"
#include "CATUnicodeString.h"

// The name under which the user sees a feature group or feature type: the text that the message catalogue
// "OrvKvCustomisation" has for its key, or the key itself where it has none.
CATUnicodeString OrvKvDisplayName(const CATString& iKey);

#endif
