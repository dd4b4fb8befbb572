#pragma once

// The message files of a catalogue: texts that a person writes, and may mistype.

#include "engineering/Problem.h"

#include <filesystem>
#include <vector>

namespace app {

/// What does not follow the line form in the message files of a catalogue folder, English first and then
/// language by language. What could be read stays in use. Adds the folder to those in which texts are found.
std::vector<engineering::Problem> UseMessageFiles(const std::filesystem::path& catalogueFolder);

} // namespace app
