#pragma once

// Makes PNG files for the tests.

#include <cstdint>
#include <png.h>
#include <string>
#include <vector>

using Bytes = std::vector<unsigned char>;

// How a file says its pixels.
struct PngLook {
    int width = 1;
    int height = 1;
    int colorType = PNG_COLOR_TYPE_RGB;
    int depth = 8; // bits a channel, or a palette number
    bool isInterlaced = false;
    std::vector<png_color> palette = {};
    Bytes paletteOpacity = {};                 // of the first colours of the palette
    std::vector<png_color_16> seeThrough = {}; // at most one colour that is not drawn
};

// The bytes of a file. iRows are the rows from top to bottom, packed as the look says.
std::string PngOf(const PngLook& iLook, const std::vector<Bytes>& iRows);

// Parts of a file put together by hand.
std::string PngSignature();
// A block with its length and a right check sum.
std::string PngBlock(const std::string& iKind, const std::string& iData);
// The header of a picture with 8 bits a channel.
std::string PngHeader(std::uint32_t iWidth, std::uint32_t iHeight, unsigned char iColorType);
