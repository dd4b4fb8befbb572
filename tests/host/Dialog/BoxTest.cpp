#include "CATDlgContainer.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgProgress.h"
#include "DialogTest.h"
#include "host/Inspector.h"

namespace {

using host::Inspector;

class BoxTest : public DialogTest {};

TEST_F(BoxTest, AFrameDrawsItsTitleUnlessItsStyleSaysOtherwise) {
    EXPECT_TRUE(Inspector::ShowsTitle(Make<CATDlgFrame>("Plain")));
    EXPECT_TRUE(Inspector::ShowsTitle(Make<CATDlgFrame>("Grid", CATDlgGridLayout)));
    EXPECT_FALSE(Inspector::ShowsTitle(Make<CATDlgFrame>("NoTitle", CATDlgFraNoTitle)));
    EXPECT_FALSE(Inspector::ShowsTitle(Make<CATDlgFrame>("NoFrame", CATDlgFraNoFrame)));
    EXPECT_FALSE(Inspector::ShowsTitle(Make<CATDlgFrame>("Neither", 0xC0000)));
}

TEST_F(BoxTest, ALabelDrawsItsTitleUnlessItHasAnIcon) {
    CATDlgLabel& label = Make<CATDlgLabel>("Label003");
    EXPECT_TRUE(Inspector::ShowsTitle(label));
    EXPECT_STREQ(label.GetTitle().ConvertToChar(), "Label003");
    label.SetIconName("I_Green");
    EXPECT_FALSE(Inspector::ShowsTitle(label));
    label.SetIconName("");
    EXPECT_TRUE(Inspector::ShowsTitle(label));
}

TEST_F(BoxTest, AContainerKeepsTheExtentThatIsItsNaturalSize) {
    CATDlgContainer& spacer = Make<CATDlgContainer>("SeparateCon");
    spacer.SetRectDimensions(1, 1, 10, 20);
    int height = 0;
    int width = 0;
    spacer.GetRectDimensions(nullptr, nullptr, &height, &width);
    EXPECT_EQ(height, 10);
    EXPECT_EQ(width, 20);
    EXPECT_FALSE(Inspector::ShowsTitle(spacer));
}

TEST_F(BoxTest, AProgressBarDrawsNoTitle) {
    EXPECT_FALSE(Inspector::ShowsTitle(Make<CATDlgProgress>("Bar")));
}

} // namespace
