#include "CATPixelImage.h"

#include <algorithm>
#include <new>

namespace {

constexpr unsigned char white = 255;

bool IsSide(int iPixels) {
    return iPixels >= 1 && iPixels <= CATPixelImage::MaximumSide;
}

std::size_t SizeOf(int iWidth, int iHeight, CATPixelImage::Format iFormat) {
    return static_cast<std::size_t>(iWidth) * static_cast<std::size_t>(iHeight) *
           static_cast<std::size_t>(iFormat);
}

} // namespace

CATPixelImage::CATPixelImage(int iWidth, int iHeight, Format iFormat) : _format(iFormat) {
    if (!IsSide(iWidth) || !IsSide(iHeight))
        return;
    const std::size_t size = SizeOf(iWidth, iHeight, iFormat);
    _pixels.reset(new (std::nothrow) unsigned char[size]);
    if (_pixels == nullptr)
        return;
    std::fill_n(_pixels.get(), size, white);
    _width = iWidth;
    _height = iHeight;
}

CATPixelImage::~CATPixelImage() = default;

std::size_t CATPixelImage::GetSizeInBytes() const {
    return SizeOf(_width, _height, _format);
}
