#include "pictures/PictureFile.h"

#include "PngWriter.h"
#include "support/OrdinaryUser.h"
#include "support/TemporaryFolder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>

namespace {

using namespace pictures;
using testing::HasSubstr;
using testing::StartsWith;

constexpr CATPixelImage::Format rgb = CATPixelImage::RGB;
constexpr CATPixelImage::Format rgba = CATPixelImage::RGBA;

class PictureFileTest : public testing::Test {
  protected:
    std::string File() const { return (_folder.Path() / "drawing.png").string(); }
    PictureResult Read(const std::string& iContent) const {
        _folder.Write("drawing.png", iContent);
        return ReadPicture(File());
    }
    // The pixels of a file; empty, and the test fails, when it cannot be read in that format.
    Bytes PixelsOf(const PngLook& iLook, const std::vector<Bytes>& iRows,
                   CATPixelImage::Format iFormat) const {
        const PictureResult result = Read(PngOf(iLook, iRows));
        EXPECT_EQ(result.error, "");
        if (result.picture == nullptr || result.picture->GetFormat() != iFormat ||
            result.picture->GetWidth() != iLook.width || result.picture->GetHeight() != iLook.height) {
            ADD_FAILURE() << "no picture of that format and size";
            return Bytes();
        }
        const unsigned char* const pixels = result.picture->GetPixels();
        return Bytes(pixels, pixels + result.picture->GetSizeInBytes());
    }
    // The reading fails with "The picture '...' REASON."
    void ExpectRefused(const std::string& iContent, const std::string& iReason) const {
        const PictureResult result = Read(iContent);
        EXPECT_EQ(result.picture, nullptr);
        EXPECT_EQ(result.error, "The picture '" + File() + "' " + iReason + ".");
    }

    support::TemporaryFolder _folder;
};

// A sound file with two colours, whose pixels take few bytes.
std::string SmallPng() {
    return PngOf({.width = 2, .height = 2}, {{255, 0, 0, 0, 0, 255}, {0, 0, 255, 255, 0, 0}});
}

TEST_F(PictureFileTest, ReadsColoursAsTheyAre) {
    const PngLook look = {.width = 2, .height = 2};
    EXPECT_EQ(PixelsOf(look, {{1, 2, 3, 250, 251, 252}, {0, 128, 255, 77, 88, 99}}, rgb),
              (Bytes{1, 2, 3, 250, 251, 252, 0, 128, 255, 77, 88, 99}));
}

TEST_F(PictureFileTest, ReadsOpacity) {
    const PngLook look = {.width = 3, .height = 1, .colorType = PNG_COLOR_TYPE_RGB_ALPHA};
    EXPECT_EQ(PixelsOf(look, {{1, 2, 3, 255, 200, 100, 50, 128, 9, 8, 7, 0}}, rgba),
              (Bytes{1, 2, 3, 255, 200, 100, 50, 128, 9, 8, 7, 0}));
}

TEST_F(PictureFileTest, ReadsGreyOfEveryDepth) {
    const auto grey = [](int iDepth, int iWidth) {
        return PngLook{.width = iWidth, .height = 1, .colorType = PNG_COLOR_TYPE_GRAY, .depth = iDepth};
    };
    EXPECT_EQ(PixelsOf(grey(1, 3), {{0b10100000}}, rgb), (Bytes{255, 255, 255, 0, 0, 0, 255, 255, 255}));
    EXPECT_EQ(PixelsOf(grey(2, 2), {{0b01100000}}, rgb), (Bytes{85, 85, 85, 170, 170, 170}));
    EXPECT_EQ(PixelsOf(grey(4, 2), {{0x1E}}, rgb), (Bytes{17, 17, 17, 238, 238, 238}));
    EXPECT_EQ(PixelsOf(grey(8, 2), {{7, 200}}, rgb), (Bytes{7, 7, 7, 200, 200, 200}));
    EXPECT_EQ(PixelsOf(grey(16, 2), {{0x80, 0x80, 0x12, 0x12}}, rgb), (Bytes{128, 128, 128, 18, 18, 18}));
    const PngLook withOpacity = {.width = 2, .height = 1, .colorType = PNG_COLOR_TYPE_GRAY_ALPHA};
    EXPECT_EQ(PixelsOf(withOpacity, {{7, 255, 200, 0}}, rgba), (Bytes{7, 7, 7, 255, 200, 200, 200, 0}));
}

TEST_F(PictureFileTest, ReadsSixteenBitsAsTheUpperEight) {
    const PngLook look = {.width = 1, .height = 1, .depth = 16};
    EXPECT_EQ(PixelsOf(look, {{0x00, 0x00, 0x80, 0x80, 0xFF, 0xFF}}, rgb), (Bytes{0, 128, 255}));
    const PngLook withOpacity = {.width = 1, .height = 1, .colorType = PNG_COLOR_TYPE_RGB_ALPHA, .depth = 16};
    EXPECT_EQ(PixelsOf(withOpacity, {{0x40, 0x40, 0x80, 0x80, 0xFF, 0xFF, 0xFF, 0xFF}}, rgba),
              (Bytes{64, 128, 255, 255}));
}

TEST_F(PictureFileTest, ReadsPalettesWithAndWithoutOpacity) {
    PngLook look = {.width = 3,
                    .height = 1,
                    .colorType = PNG_COLOR_TYPE_PALETTE,
                    .depth = 2,
                    .palette = {{10, 20, 30}, {40, 50, 60}, {70, 80, 90}}};
    EXPECT_EQ(PixelsOf(look, {{0b10000100}}, rgb), (Bytes{70, 80, 90, 10, 20, 30, 40, 50, 60}));
    look.paletteOpacity = {0, 128};
    EXPECT_EQ(PixelsOf(look, {{0b10000100}}, rgba), (Bytes{70, 80, 90, 255, 10, 20, 30, 0, 40, 50, 60, 128}));
}

TEST_F(PictureFileTest, ReadsAColourThatIsSeenThrough) {
    const PngLook look = {.width = 2, .height = 1, .seeThrough = {{0, 1, 2, 3, 0}}};
    const Bytes pixels = PixelsOf(look, {{1, 2, 3, 1, 2, 4}}, rgba);
    ASSERT_EQ(pixels.size(), 8U);
    EXPECT_EQ(pixels[3], 0);
    EXPECT_EQ(Bytes(pixels.begin() + 4, pixels.end()), (Bytes{1, 2, 4, 255}));
}

TEST_F(PictureFileTest, ReadsInterlacedFilesLikeOthers) {
    PngLook look = {.width = 13, .height = 11};
    std::vector<Bytes> rows;
    for (unsigned char row = 0; row < 11; ++row) {
        rows.emplace_back();
        for (unsigned char column = 0; column < 39; ++column)
            rows.back().push_back(static_cast<unsigned char>(20 * row + column));
    }
    const Bytes plain = PixelsOf(look, rows, rgb);
    look.isInterlaced = true;
    EXPECT_EQ(PixelsOf(look, rows, rgb), plain);
    EXPECT_EQ(plain[5], 5);
    EXPECT_EQ(plain[39 * 10], 200);
}

TEST_F(PictureFileTest, TakesPicturesUpToTheLargestSide) {
    const auto read = [this](int iWidth, int iHeight) {
        const PngLook look = {
            .width = iWidth, .height = iHeight, .colorType = PNG_COLOR_TYPE_GRAY, .depth = 1};
        const Bytes row(static_cast<std::size_t>(iWidth + 7) / 8);
        return Read(PngOf(look, std::vector<Bytes>(static_cast<std::size_t>(iHeight), row)));
    };
    EXPECT_NE(read(4096, 1).picture, nullptr);
    EXPECT_NE(read(1, 4096).picture, nullptr);
    EXPECT_EQ(read(4097, 1).error, "The picture '" + File() +
                                       "' is too large: it is 4097 by 1 pixels, at most 4096 by 4096 can be "
                                       "shown.");
    EXPECT_EQ(read(1, 4097).picture, nullptr);
}

// The header alone says so; no pixels have to follow.
TEST_F(PictureFileTest, RefusesHugePicturesBeforeTheirPixels) {
    const std::string limit = " pixels, at most 4096 by 4096 can be shown";
    ExpectRefused(PngSignature() + PngHeader(20000, 20000, 2), "is too large: it is 20000 by 20000" + limit);
    ExpectRefused(PngSignature() + PngHeader(0xFFFFFFFFU, 1, 2),
                  "is too large: it is 4294967295 by 1" + limit);
}

TEST_F(PictureFileTest, RefusesPicturesWithoutPixels) {
    for (const char* const size : {"0 by 0", "0 by 7", "7 by 0"}) {
        const std::uint32_t width = size[0] == '7' ? 7 : 0;
        const std::uint32_t height = size[5] == '7' ? 7 : 0;
        ExpectRefused(PngSignature() + PngHeader(width, height, 2) + PngBlock("IEND", ""),
                      std::string("has nothing to show: it is ") + size + " pixels");
    }
}

TEST_F(PictureFileTest, RefusesAFileThatIsCutOffAnywhere) {
    const std::string whole = SmallPng();
    ASSERT_NE(Read(whole).picture, nullptr);
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string reason = length == 0   ? "is empty"
                                   : length < 8  ? "is not a PNG file"
                                   : length < 33 ? "is damaged: it has no header"
                                                 : "is cut off";
        ExpectRefused(whole.substr(0, length), reason);
    }
}

TEST_F(PictureFileTest, ReadsAFileWithSomethingBehindItsEnd) {
    EXPECT_NE(Read(SmallPng() + "behind").picture, nullptr);
}

TEST_F(PictureFileTest, RefusesWhatIsNoPng) {
    for (const char* const content : {"x", "just a text that goes on and on, longer than any header",
                                      "<svg xmlns='http://www.w3.org/2000/svg'/>", "\xFF\xD8\xFF\xE0JFIF"})
        ExpectRefused(content, "is not a PNG file");
}

TEST_F(PictureFileTest, RefusesDamagedContent) {
    const std::string header = PngHeader(2, 2, 2);
    const std::string end = PngBlock("IEND", "");
    for (const std::string& first :
         {PngBlock("gAMA", std::string(13, '\1')), PngBlock("IHDR", std::string(14, '\1'))})
        ExpectRefused(PngSignature() + first + end, "is damaged: it has no header");
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"no pixels", header + end},
        {"pixels that are no stream", header + PngBlock("IDAT", "rubbish!") + end},
        {"an unknown kind of colour", PngHeader(2, 2, 5) + PngBlock("IDAT", "x") + end},
        {"a block longer than the file", header + std::string("\x7F\xFF\xFF\xFFIDAT", 8) + end + end},
        {"a block with an impossible length", header + std::string("\xFF\xFF\xFF\xFFIDAT", 8) + end + end}};
    for (const auto& [what, blocks] : cases) {
        const PictureResult result = Read(PngSignature() + blocks);
        EXPECT_EQ(result.picture, nullptr) << what;
        EXPECT_THAT(result.error, StartsWith("The picture '" + File() + "' is ")) << what;
    }
}

TEST_F(PictureFileTest, RefusesFewerPixelsThanTheHeaderSays) {
    const std::string sound = SmallPng();
    const std::string rest = sound.substr(PngSignature().size() + PngHeader(2, 2, 2).size());
    ASSERT_NE(Read(PngSignature() + PngHeader(2, 2, 2) + rest).picture, nullptr);
    const PictureResult result = Read(PngSignature() + PngHeader(2, 9, 2) + rest);
    EXPECT_EQ(result.picture, nullptr);
    EXPECT_THAT(result.error, HasSubstr("' is damaged: "));
}

// A changed byte is noticed wherever it counts, and never does harm.
TEST_F(PictureFileTest, SurvivesEachChangedByte) {
    const std::string sound = SmallPng();
    int refused = 0;
    for (std::size_t place = 0; place < sound.size(); ++place)
        for (const char change : {'\x01', '\x80', '\xFF'}) {
            std::string changed = sound;
            changed[place] = static_cast<char>(changed[place] ^ change);
            const PictureResult result = Read(changed);
            EXPECT_NE(result.picture == nullptr, result.error.empty()) << place;
            refused += result.picture == nullptr ? 1 : 0;
        }
    EXPECT_GT(refused, static_cast<int>(2 * sound.size())) << "most of " << 3 * sound.size();
}

TEST_F(PictureFileTest, RefusesWhatIsNoFile) {
    const auto read = [this] { return ReadPicture(File()).error; };
    const std::string begin = "The picture '" + File() + "' ";
    EXPECT_EQ(read(), begin + "does not exist.");
    std::filesystem::create_directory(File());
    EXPECT_EQ(read(), begin + "is a folder.");
    std::filesystem::remove(File());
    ASSERT_EQ(mkfifo(File().c_str(), 0600), 0);
    EXPECT_EQ(read(), begin + "is not a regular file.");
    std::filesystem::remove(File());
    std::filesystem::create_symlink("drawing.png", File());
    EXPECT_EQ(read(), begin + "cannot be read: Too many levels of symbolic links.");
}

TEST_F(PictureFileTest, RefusesAFileThatMayNotBeRead) {
    _folder.Write("drawing.png", SmallPng());
    std::filesystem::permissions(File(), std::filesystem::perms::none);
    std::filesystem::permissions(_folder.Path(), std::filesystem::perms::all);
    const support::OrdinaryUser user;
    const PictureResult result = ReadPicture(File());
    EXPECT_EQ(result.picture, nullptr);
    EXPECT_EQ(result.error, "The picture '" + File() + "' cannot be read.");
}

TEST_F(PictureFileTest, RefusesAFileThatIsTooLargeToBeOne) {
    _folder.Write("drawing.png", SmallPng());
    std::filesystem::resize_file(File(), std::uintmax_t{192} * 1024 * 1024 + 1); // takes no room on the disk
    EXPECT_EQ(ReadPicture(File()).error, "The picture '" + File() + "' is larger than 192 MiB.");
}

} // namespace
