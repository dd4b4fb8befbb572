#pragma once

// Reads the tables of limits and fits in the folder fits.

#include "engineering/LimitsAndFits.h"
#include "engineering/Problem.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace engineering {

/// The limits and fits of a folder with all five tables; none after a problem.
std::optional<LimitsAndFits> ReadFits(const std::filesystem::path& folder, std::vector<Problem>& problems);

} // namespace engineering
