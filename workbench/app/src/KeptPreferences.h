#pragma once

// The add-in's preferences for as long as the object lives.

#include <filesystem>

namespace app {

class KeptPreferences {
  public:
    /// Kept in that file; in memory for an empty path.
    explicit KeptPreferences(const std::filesystem::path& file);
    /// Says on standard error when the file could not be used.
    ~KeptPreferences();
    KeptPreferences(const KeptPreferences&) = delete;
    KeptPreferences& operator=(const KeptPreferences&) = delete;
};

} // namespace app
