#pragma once

// Reads parameters.csv: the parameters of every type.

#include "TypeTable.h"
#include "engineering/Problem.h"

#include <filesystem>
#include <vector>

namespace engineering {

/// Gives each type its parameters. A parameter with a broken definition is kept, marked unsound, so that its
/// column in the file of sets is still known.
void ReadParameters(const std::filesystem::path& folder, TypeTable& types, std::vector<Problem>& problems);

} // namespace engineering
