#pragma once

// What the program does with the dialog and the catalogue. Each gives the exit status.

#include "Catalogue.h"
#include "Options.h"

namespace app {

int Open(const Options& options, const WorkData& data);
int Replay(const Options& options, const WorkData& data);
int Dump(const Options& options, const WorkData& data);
int ShowThread(const Options& options, const WorkData& data);
int ShowFit(const Options& options, const WorkData& data);

} // namespace app
