#pragma once

// What a designer reads for the keys of the catalogue, in the language of the process.

#include "CATUnicodeString.h"

#include <string>

namespace workbench {

/// The display name of a group or type; the key when the catalogue has no name for it.
CATUnicodeString DisplayNameOf(const std::string& key);

/// What a parameter of a type means; the wording that holds in every type where the type has none of its own,
/// empty where there is neither.
CATUnicodeString MeaningOf(const std::string& typeKey, const std::string& parameter);

} // namespace workbench
