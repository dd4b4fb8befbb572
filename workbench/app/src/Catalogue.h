#pragma once

// The catalogue that the program works with, and the texts that belong to it.

#include "DataFolders.h"
#include "Options.h"
#include "engineering/FeatureCatalogue.h"

namespace app {

/// Reads the catalogue and lets the texts of its language be found. None, and every problem on standard
/// error, when it cannot be used.
std::optional<engineering::FeatureCatalogue> PrepareCatalogue(const Options& options,
                                                              const DataFolders& data);

/// Prints each problem of a catalogue folder to standard output, or one line when there is none.
int CheckCatalogue(const std::string& folder);

} // namespace app
