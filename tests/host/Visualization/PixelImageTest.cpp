#include "CATPixelImage.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <limits>
#include <vector>

namespace {

struct Extent {
    int width;
    int height;
};

TEST(CATPixelImageTest, StartsWhiteAndOpaque) {
    for (const CATPixelImage::Format format : {CATPixelImage::RGB, CATPixelImage::RGBA}) {
        const CATPixelImage image(3, 2, format);
        EXPECT_EQ(image.GetWidth(), 3);
        EXPECT_EQ(image.GetHeight(), 2);
        EXPECT_EQ(image.GetFormat(), format);
        const std::size_t bytes = format == CATPixelImage::RGB ? 18 : 24;
        ASSERT_EQ(image.GetSizeInBytes(), bytes);
        ASSERT_NE(image.GetPixels(), nullptr);
        EXPECT_TRUE(std::all_of(image.GetPixels(), image.GetPixels() + bytes,
                                [](unsigned char iByte) { return iByte == 255; }));
    }
}

TEST(CATPixelImageTest, HasNoOpacityUnlessAskedFor) {
    EXPECT_EQ(CATPixelImage(1, 1).GetFormat(), CATPixelImage::RGB);
}

TEST(CATPixelImageTest, KeepsWhatIsWrittenToItsPixels) {
    CATPixelImage image(2, 2);
    for (unsigned char byte = 0; byte < 12; ++byte)
        image.GetPixels()[byte] = byte;
    const CATPixelImage& same = image;
    EXPECT_EQ(std::vector<unsigned char>(same.GetPixels(), same.GetPixels() + 12),
              (std::vector<unsigned char>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11}));
}

TEST(CATPixelImageTest, HasNoPixelsWithASizeThatNoImageHas) {
    const int most = std::numeric_limits<int>::max();
    const int least = std::numeric_limits<int>::min();
    for (const Extent& extent :
         {Extent{0, 0}, Extent{0, 5}, Extent{5, 0}, Extent{-1, 5}, Extent{5, -1}, Extent{-4, -4},
          Extent{least, least}, Extent{20000, 20000}, Extent{8193, 1}, Extent{1, 8193}, Extent{most, most}}) {
        CATPixelImage image(extent.width, extent.height, CATPixelImage::RGBA);
        EXPECT_EQ(image.GetPixels(), nullptr) << extent.width << ' ' << extent.height;
        EXPECT_EQ(image.GetWidth(), 0);
        EXPECT_EQ(image.GetHeight(), 0);
        EXPECT_EQ(image.GetSizeInBytes(), 0U);
    }
    for (const Extent& extent : {Extent{8192, 1}, Extent{1, 8192}, Extent{1, 1}})
        EXPECT_NE(CATPixelImage(extent.width, extent.height).GetPixels(), nullptr);
}

} // namespace
