#pragma once

// What the command says in the user's language; the texts stand in the message file FeatureCommand.

#include "CATUnicodeString.h"

#include <initializer_list>

namespace workbench {

/// The text of a key with /p1, /p2 ... replaced by the parameters.
CATUnicodeString CommandText(const char* key, std::initializer_list<CATUnicodeString> parameters = {});

} // namespace workbench
