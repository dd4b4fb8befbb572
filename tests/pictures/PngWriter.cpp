#include "PngWriter.h"

namespace {

void Append(png_structp ioPng, png_bytep iBytes, std::size_t iCount) {
    auto* const file = static_cast<std::string*>(png_get_io_ptr(ioPng));
    for (std::size_t byte = 0; byte < iCount; ++byte)
        file->push_back(static_cast<char>(iBytes[byte]));
}

void KeepNothingBack(png_structp) {}

std::string BigEndian(std::uint32_t iNumber) {
    std::string bytes;
    for (const int shift : {24, 16, 8, 0})
        bytes.push_back(static_cast<char>((iNumber >> shift) & 0xFFU));
    return bytes;
}

std::uint32_t CheckSum(const std::string& iBytes) {
    std::uint32_t sum = 0xFFFFFFFFU;
    for (const char byte : iBytes) {
        sum ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            sum = (sum & 1U) != 0 ? (sum >> 1) ^ 0xEDB88320U : sum >> 1;
    }
    return ~sum;
}

} // namespace

std::string PngOf(const PngLook& iLook, const std::vector<Bytes>& iRows) {
    std::string file;
    png_structp png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, nullptr, nullptr);
    png_infop info = png_create_info_struct(png);
    png_set_write_fn(png, &file, &Append, &KeepNothingBack);
    png_set_IHDR(png, info, static_cast<png_uint_32>(iLook.width), static_cast<png_uint_32>(iLook.height),
                 iLook.depth, iLook.colorType, iLook.isInterlaced ? PNG_INTERLACE_ADAM7 : PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (!iLook.palette.empty())
        png_set_PLTE(png, info, iLook.palette.data(), static_cast<int>(iLook.palette.size()));
    if (!iLook.paletteOpacity.empty())
        png_set_tRNS(png, info, iLook.paletteOpacity.data(), static_cast<int>(iLook.paletteOpacity.size()),
                     nullptr);
    if (!iLook.seeThrough.empty())
        png_set_tRNS(png, info, nullptr, 1, iLook.seeThrough.data());
    std::vector<Bytes> rows = iRows;
    std::vector<png_bytep> starts;
    for (Bytes& row : rows)
        starts.push_back(row.data());
    png_set_rows(png, info, starts.data());
    png_write_png(png, info, PNG_TRANSFORM_IDENTITY, nullptr);
    png_destroy_write_struct(&png, &info);
    return file;
}

std::string PngSignature() {
    return "\x89PNG\r\n\x1A\n";
}

std::string PngBlock(const std::string& iKind, const std::string& iData) {
    return BigEndian(static_cast<std::uint32_t>(iData.size())) + iKind + iData +
           BigEndian(CheckSum(iKind + iData));
}

std::string PngHeader(std::uint32_t iWidth, std::uint32_t iHeight, unsigned char iColorType) {
    return PngBlock("IHDR", BigEndian(iWidth) + BigEndian(iHeight) + '\x08' + static_cast<char>(iColorType) +
                                std::string(3, '\0'));
}
