#pragma once

// Reads a part from a table of its elements and checks it whole: it is loaded without any problem, or not at
// all.
//
//   PartResult result = LoadPart("workbench/parts/bracket.csv");
//   for (const Problem& problem : result.problems)
//       std::cerr << ToText(problem) << '\n';
//
// The file is CSV in UTF-8, at most 64 MiB, with or without byte order mark, lines ending in LF or CRLF; the
// README.md of the folder parts describes it.

#include "engineering/Part.h"
#include "engineering/Problem.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace engineering {

struct PartResult {
    std::optional<Part> part;      ///< present exactly when there are no problems
    std::vector<Problem> problems; ///< everything found, in the order of reading
};

/// The part is named after the file, without ".csv". Bad data never throws: all problems come back, not only
/// the first.
[[nodiscard]] PartResult LoadPart(const std::filesystem::path& file);

} // namespace engineering
