#pragma once

// The catalogue and the part that the program works with, and the texts that belong to them.

#include "DataFolders.h"
#include "Options.h"
#include "engineering/FeatureCatalogue.h"
#include "engineering/Part.h"

namespace app {

struct WorkData {
    std::filesystem::path folder; ///< of the catalogue
    engineering::FeatureCatalogue catalogue;
    engineering::Part part;
};

/// Reads catalogue and part and lets the texts of the language be found. None, and every problem on standard
/// error, when one of them cannot be used.
std::optional<WorkData> PrepareData(const Options& options, const DataFolders& folders);

/// Prints each problem of a catalogue folder to standard output, or one line when there is none.
int CheckCatalogue(const std::string& folder);

} // namespace app
