#ifndef OrvKvDescription_H
#define OrvKvDescription_H

#include "CATString.h"
#include "CATUnicodeString.h"

// What a catalogue that does not have a text gives instead.
static constexpr const char* OrvKvNoText = "*resource error";

// What the parameter of that name means, in the user's language: its text in the catalogue
// "OrvKvParametersDescription", or iOtherwise where that has none.
CATUnicodeString OrvKvDescriptionOf(const CATString& iName, const CATUnicodeString& iOtherwise);

#endif
