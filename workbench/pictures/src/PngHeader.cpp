#include "PngHeader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace pictures {

namespace {

constexpr std::array<unsigned char, 8> signature = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
constexpr std::size_t blockFrame = 12; // length, kind and check sum around the data of a block
constexpr std::size_t headerData = 13; // bytes in the data of the header

std::uint32_t NumberAt(Bytes bytes, std::size_t place) {
    std::uint32_t number = 0;
    for (const unsigned char byte : bytes.subspan(place, 4)) {
        number = (number << 8) | byte;
    }
    return number;
}

bool IsKind(Bytes block, std::string_view kind) {
    return std::equal(kind.begin(), kind.end(), block.begin() + 4, [](char letter, unsigned char byte) {
        return static_cast<unsigned char>(letter) == byte;
    });
}

} // namespace

bool HasPngSignature(Bytes file) {
    return file.size() >= signature.size() && std::equal(signature.begin(), signature.end(), file.begin());
}

std::optional<PngSize> SizeInPngHeader(Bytes file) {
    if (file.size() < signature.size() + blockFrame + headerData) {
        return std::nullopt;
    }
    const Bytes header = file.subspan(signature.size());
    if (!IsKind(header, "IHDR") || NumberAt(header, 0) != headerData) {
        return std::nullopt;
    }
    return PngSize{NumberAt(header, 8), NumberAt(header, 12)};
}

bool IsWholePng(Bytes file) {
    Bytes rest = file.subspan(std::min(signature.size(), file.size()));
    while (rest.size() >= blockFrame) {
        const std::size_t block = blockFrame + NumberAt(rest, 0);
        if (block > rest.size()) {
            return false;
        }
        if (IsKind(rest, "IEND")) {
            return true;
        }
        rest = rest.subspan(block);
    }
    return false;
}

} // namespace pictures
