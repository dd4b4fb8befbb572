#pragma once

// Reads a PNG file into an image of the platform.
//
//   PictureResult result = ReadPicture("drawings/Counterbore.png");
//   if (result.picture == nullptr)
//       std::cerr << result.error << '\n';
//
// Any colour type, depth and interlacing is read: to red, green and blue of 8 bits each, with opacity where
// the file has some.

#include "CATPixelImage.h"

#include <filesystem>
#include <memory>
#include <string>

namespace pictures {

inline constexpr int largestSide = 4096; ///< pixels; a larger picture is refused before its pixels are read

struct PictureResult {
    std::unique_ptr<CATPixelImage> picture; ///< never without pixels; null exactly when there is an error
    std::string error;                      ///< one sentence that names the file
};

/// Fails for what is missing, unreadable, no PNG file, damaged, cut off, without pixels or larger than
/// largestSide in a direction. Never throws for a bad file.
[[nodiscard]] PictureResult ReadPicture(const std::filesystem::path& file);

} // namespace pictures
