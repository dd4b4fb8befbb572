#pragma once

// Where the program keeps what belongs to its user, in the XDG base directories.

#include <filesystem>

namespace app {

/// The user's preferences: kelvane/preferences in the folder that XDG_CONFIG_HOME names, which is an absolute
/// path, else in ~/.config. Empty where neither is known.
std::filesystem::path PreferencesFile();

} // namespace app
