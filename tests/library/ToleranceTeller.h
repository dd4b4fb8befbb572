#pragma once

#include "ToleranceSequence.h"

#include <random>

namespace tolerance {

// A story of that many steps. The same random numbers tell the same story on every machine.
Story RandomStory(std::mt19937& ioRandom, int iSteps);

} // namespace tolerance
