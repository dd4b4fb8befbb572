#include "pictures/PictureFile.h"

#include "PngHeader.h"

#include <cstdint>
#include <fstream>
#include <iterator>
#include <optional>
#include <png.h>
#include <system_error>
#include <utility>
#include <vector>

namespace pictures {

namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t largestFile = std::uintmax_t{192} * 1024 * 1024; // bytes

PictureResult Failed(const fs::path& file, const std::string& what) {
    return {nullptr, "The picture '" + file.string() + "' " + what + "."};
}

/// Why the file cannot be opened as a regular file; empty when it can.
std::string WhyNoFile(const fs::path& file) {
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (status.type() == fs::file_type::not_found) {
        return "does not exist";
    }
    if (error) {
        return "cannot be read: " + error.message();
    }
    if (fs::is_directory(status)) {
        return "is a folder";
    }
    if (!fs::is_regular_file(status)) {
        return "is not a regular file";
    }
    const std::uintmax_t size = fs::file_size(file, error);
    return !error && size > largestFile ? "is larger than 192 MiB" : std::string();
}

std::optional<std::vector<unsigned char>> ReadBytes(const fs::path& file) {
    std::ifstream stream(file, std::ios::binary);
    std::vector<unsigned char> bytes{std::istreambuf_iterator<char>(stream),
                                     std::istreambuf_iterator<char>()};
    if (!stream.is_open() || stream.bad()) {
        return std::nullopt;
    }
    return bytes;
}

/// What is wrong with the outline of the file; empty when nothing is.
std::string WhyNoPicture(Bytes bytes) {
    if (bytes.empty()) {
        return "is empty";
    }
    if (!HasPngSignature(bytes)) {
        return "is not a PNG file";
    }
    const std::optional<PngSize> size = SizeInPngHeader(bytes);
    if (!size.has_value()) {
        return "is damaged: it has no header";
    }
    const std::string extent =
        std::to_string(size->width) + " by " + std::to_string(size->height) + " pixels";
    if (size->width == 0 || size->height == 0) {
        return "has nothing to show: it is " + extent;
    }
    if (size->width > largestSide || size->height > largestSide) {
        return "is too large: it is " + extent + ", at most " + std::to_string(largestSide) + " by " +
               std::to_string(largestSide) + " can be shown";
    }
    return IsWholePng(bytes) ? std::string() : "is cut off";
}

PictureResult Decode(const fs::path& file, Bytes bytes) {
    png_image source{};
    source.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_memory(&source, bytes.data(), bytes.size()) == 0) {
        return Failed(file, std::string("is damaged: ") + source.message);
    }
    const bool hasOpacity = (source.format & PNG_FORMAT_FLAG_ALPHA) != 0;
    source.format = hasOpacity ? PNG_FORMAT_RGBA : PNG_FORMAT_RGB;
    source.flags |= PNG_IMAGE_FLAG_16BIT_sRGB; // deep colours are read like others, not as light intensities
    auto picture =
        std::make_unique<CATPixelImage>(static_cast<int>(source.width), static_cast<int>(source.height),
                                        hasOpacity ? CATPixelImage::RGBA : CATPixelImage::RGB);
    if (picture->GetPixels() == nullptr) {
        png_image_free(&source);
        return Failed(file, "cannot be shown: there is not enough memory");
    }
    if (png_image_finish_read(&source, nullptr, picture->GetPixels(), 0, nullptr) == 0) {
        return Failed(file, std::string("is damaged: ") + source.message);
    }
    return {std::move(picture), {}};
}

} // namespace

PictureResult ReadPicture(const fs::path& file) {
    if (const std::string why = WhyNoFile(file); !why.empty()) {
        return Failed(file, why);
    }
    const std::optional<std::vector<unsigned char>> bytes = ReadBytes(file);
    if (!bytes.has_value()) {
        return Failed(file, "cannot be read");
    }
    if (const std::string why = WhyNoPicture(*bytes); !why.empty()) {
        return Failed(file, why);
    }
    return Decode(file, *bytes);
}

} // namespace pictures
