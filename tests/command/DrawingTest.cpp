// The drawing of the feature type.

#include "CAT2DViewer.h"
#include "CommandTest.h"
#include "SampleTypes.h"
#include "host/DialogPath.h"
#include "host/ViewerInspector.h"
#include "support/TemporaryFolder.h"

#include <png.h>

#include <fstream>

namespace command {

class DrawingTest : public CommandTest {
  protected:
    // A catalogue whose two types have the pictures of that folder.
    void StartWithPictures() {
        Prepare(FeatureCommand::Mode::Parameters, _plates);
        Command().UseDrawings([this](const std::string& iType) { return _folder.Path() / (iType + ".png"); });
        ASSERT_TRUE(StartPrepared());
    }
    // A white picture of that width and one line.
    void WritePicture(const std::string& iType, unsigned int iWidth) {
        png_image image{};
        image.version = PNG_IMAGE_VERSION;
        image.width = iWidth;
        image.height = 1;
        image.format = PNG_FORMAT_RGB;
        const std::vector<png_byte> pixels(std::size_t{iWidth} * 3, 255);
        ASSERT_NE(png_image_write_to_file(&image, (_folder.Path() / (iType + ".png")).c_str(), 0,
                                          pixels.data(), 0, nullptr),
                  0);
    }
    static int WidthShown() {
        const auto& viewer = dynamic_cast<CAT2DViewer&>(*host::DialogPath::Find("Viewer").widget);
        return host::ViewerInspector::PictureOf(viewer).width;
    }

    support::TemporaryFolder _folder;
    const engineering::FeatureCatalogue _plates{
        {"Mine"}, {Plate(), engineering::FeatureType({"Bare", "Mine", "", ""}, {}, {}, {})}};
};

TEST_F(DrawingTest, EachTypeShowsItsOwn) {
    WritePicture("Plate", 30);
    WritePicture("Bare", 20);
    StartWithPictures();
    EXPECT_EQ(WidthShown(), 30);
    ASSERT_TRUE(ChooseType(1));
    EXPECT_EQ(WidthShown(), 20);
    ASSERT_TRUE(ChooseType(0));
    EXPECT_EQ(WidthShown(), 30);
    EXPECT_EQ(RuleMessages(), Texts());
}

TEST_F(DrawingTest, ATypeWithoutPictureShowsABlankOneAndNotTheOneBefore) {
    Prepare(FeatureCommand::Mode::Parameters, _plates);
    WritePicture("Plate", 30);
    Command().UseDrawings([this](const std::string& iType) {
        return iType == "Plate" ? _folder.Path() / "Plate.png" : std::filesystem::path();
    });
    ASSERT_TRUE(StartPrepared());
    ASSERT_TRUE(ChooseType(1));
    EXPECT_EQ(WidthShown(), 1);
    EXPECT_EQ(RuleMessages(), Texts());
}

TEST_F(DrawingTest, APictureThatCannotBeReadIsBlankAndToldAsAProblem) {
    WritePicture("Plate", 30);
    std::ofstream(_folder.Path() / "Bare.png") << "no picture";
    StartWithPictures();
    ASSERT_TRUE(ChooseType(1));
    EXPECT_EQ(WidthShown(), 1);
    ASSERT_EQ(RuleMessages().size(), 1U);
    EXPECT_NE(RuleMessages()[0].find("Problem of the catalogue: "), std::string::npos);
    EXPECT_NE(RuleMessages()[0].find("Bare.png"), std::string::npos);
    EXPECT_EQ(Light(), "KelvaneRulesYellow");
    ASSERT_TRUE(ChooseType(0));
    EXPECT_EQ(WidthShown(), 30);
    EXPECT_EQ(RuleMessages(), Texts());
}

TEST_F(DrawingTest, WithoutDrawingsTheViewIsBlank) {
    ASSERT_TRUE(Start());
    EXPECT_EQ(WidthShown(), 1);
}

} // namespace command
