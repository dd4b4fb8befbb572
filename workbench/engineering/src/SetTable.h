#pragma once

// Reads the file of sets of one type.

#include "TypeTable.h"
#include "engineering/LimitsAndFits.h"
#include "engineering/ParameterSet.h"
#include "engineering/Problem.h"
#include "engineering/ThreadTables.h"

#include <filesystem>
#include <vector>

namespace engineering {

/// The sets of the type's file in the folder sets; to be used only when no problem was added. The thread of
/// each set must be among the threads, where there are any, and the fits must know each class of ISO 286 at
/// its size, unless they are empty.
std::vector<ParameterSet> ReadSets(const std::filesystem::path& folder, const TypeDraft& type,
                                   const ThreadTables& threads, const LimitsAndFits& fits,
                                   std::vector<Problem>& problems);

/// Reports files in the folder sets that belong to no type.
void ReportForeignSets(const std::filesystem::path& folder, const std::vector<TypeDraft>& types,
                       std::vector<Problem>& problems);

} // namespace engineering
