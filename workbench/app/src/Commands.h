#pragma once

// What the program does with the dialog. Each gives the exit status.

#include "Options.h"
#include "engineering/FeatureCatalogue.h"

namespace app {

int Open(const Options& options, const engineering::FeatureCatalogue& catalogue);
int Replay(const Options& options, const engineering::FeatureCatalogue& catalogue);
int Dump(const Options& options, const engineering::FeatureCatalogue& catalogue);

} // namespace app
