#pragma once

// What the outline of a PNG file tells before anything is decoded.

#include <cstdint>
#include <optional>
#include <span>

namespace pictures {

using Bytes = std::span<const unsigned char>;

/// The eight bytes that every PNG file begins with.
bool HasPngSignature(Bytes file);

struct PngSize {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
};

/// The size that the file says it has, or nothing when the first block is not the header.
std::optional<PngSize> SizeInPngHeader(Bytes file);

/// Whether the blocks reach to the one that ends a PNG file.
bool IsWholePng(Bytes file);

} // namespace pictures
