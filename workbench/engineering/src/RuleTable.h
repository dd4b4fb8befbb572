#pragma once

// Reads rules.csv: the rules of the types.

#include "TypeTable.h"
#include "engineering/Problem.h"

#include <cstddef>
#include <filesystem>
#include <vector>

namespace engineering {

/// Gives each type its rules. Without the file no type has any. Returns how many of the problems concern
/// conditions only: a rule whose condition cannot be used is kept with its problem.
std::size_t ReadRules(const std::filesystem::path& folder, TypeTable& types, std::vector<Problem>& problems);

} // namespace engineering
