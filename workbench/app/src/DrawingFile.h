#pragma once

// Where the picture of a feature type lies.

#include <filesystem>
#include <string>

namespace workbench {

/// The PNG file of a type: of the catalogue's own folder drawings, else of the pictures that come with the
/// program. Empty where neither has one.
std::filesystem::path DrawingFile(const std::filesystem::path& catalogueFolder, const std::string& typeKey);

} // namespace workbench
