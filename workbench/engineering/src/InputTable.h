#pragma once

// Reads inputs.csv: the geometry inputs of the types.

#include "TypeTable.h"
#include "engineering/Problem.h"

#include <filesystem>
#include <vector>

namespace engineering {

/// Gives each type its inputs, in the order of their numbers. Without the file no type has any.
void ReadInputs(const std::filesystem::path& folder, TypeTable& types, std::vector<Problem>& problems);

} // namespace engineering
