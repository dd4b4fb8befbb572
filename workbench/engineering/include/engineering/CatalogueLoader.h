#pragma once

// Reads a catalogue folder and checks it whole: a catalogue is loaded without any problem but conditions of
// rules that cannot be used, or not at all.
//
//   LoadResult result = CatalogueLoader::Load("workbench/catalogue");
//   for (const Problem& problem : result.problems)
//       std::cerr << ToText(problem) << '\n';
//
// The folder holds groups.csv, types.csv, parameters.csv and the folder sets; inputs.csv where types have
// geometry inputs, rules.csv where they have rules, threads.csv and the folder threads where they have
// threads, the folder fits where lengths have classes of ISO 286. Its README.md describes them. Files are
// UTF-8, at most 64 MiB each, with or without byte order mark, lines ending in LF or CRLF.

#include "engineering/FeatureCatalogue.h"
#include "engineering/Problem.h"

#include <filesystem>
#include <optional>
#include <vector>

namespace engineering {

struct LoadResult {
    /// Present exactly when every problem concerns the condition of a rule. Such a rule tells its problem and
    /// is not checked; all else of the catalogue is sound.
    std::optional<FeatureCatalogue> catalogue;
    std::vector<Problem> problems; ///< everything found, in the order of reading
};

class CatalogueLoader {
  public:
    /// Reads the folder. Bad data never throws: all problems come back, not only the first. What follows only
    /// from another problem is not reported again, such as the sets of a type whose key cannot be read.
    [[nodiscard]] static LoadResult Load(const std::filesystem::path& folder);
};

} // namespace engineering
