#pragma once

// Tables in a folder of the catalogue that no other table names.

#include "engineering/Problem.h"

#include <filesystem>
#include <set>
#include <string>
#include <vector>

namespace engineering {

/// Reports each .csv file of the folder whose name is not among the known ones, in alphabetical order.
void ReportForeignTables(const std::filesystem::path& folder, const std::set<std::string>& known,
                         const char* message, std::vector<Problem>& problems);

} // namespace engineering
