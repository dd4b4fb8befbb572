#pragma once

// Reads threads.csv and the tables of threads in the folder threads.

#include "TypeTable.h"
#include "engineering/Problem.h"
#include "engineering/ThreadTables.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace engineering {

/// The threads of the catalogue, without any standard where threads.csv is missing; none after a problem.
std::optional<ThreadTables> ReadThreads(const std::filesystem::path& folder, std::vector<Problem>& problems);

/// Reports types whose thread is not a text parameter of theirs, or that have one in a catalogue without
/// threads.
void CheckThreadParameters(const std::filesystem::path& folder, const TypeTable& types,
                           const std::optional<ThreadTables>& threads, std::vector<Problem>& problems);

} // namespace engineering
