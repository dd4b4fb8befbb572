#ifndef CATPixelImage_H
#define CATPixelImage_H

#include <cstddef>
#include <memory>

// A raster image in memory: rows from top to bottom, pixels from left to right, 8 bits a channel, red, green
// and blue, with or without opacity.
class CATPixelImage {
  public:
    enum Format { RGB = 3, RGBA = 4 }; // bytes of a pixel
    enum { MaximumSide = 8192 };       // pixels

    // White, and opaque. A width or height that is not from 1 to MaximumSide makes an image without pixels,
    // and so does one for which there is no memory.
    CATPixelImage(int iWidth, int iHeight, Format iFormat = RGB);
    CATPixelImage(const CATPixelImage&) = delete;
    CATPixelImage& operator=(const CATPixelImage&) = delete;
    ~CATPixelImage();

    // 0 without pixels.
    int GetWidth() const { return _width; }
    int GetHeight() const { return _height; }
    Format GetFormat() const { return _format; }
    // GetWidth() * GetFormat() bytes a row, no gap between rows; null without pixels. Owned by the image.
    const unsigned char* GetPixels() const { return _pixels.get(); }
    unsigned char* GetPixels() { return _pixels.get(); }
    std::size_t GetSizeInBytes() const;

  private:
    int _width = 0;
    int _height = 0;
    Format _format;
    std::unique_ptr<unsigned char[]> _pixels;
};

#endif
