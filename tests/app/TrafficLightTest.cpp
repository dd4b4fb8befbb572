// The icons of the rules: the lit lamp tells by its place, its colour and its sign.

#include <QtGui/QImage>

#include <algorithm>
#include <gtest/gtest.h>

namespace {

enum Lamp { Top = 9, Middle = 24, Bottom = 39 }; ///< height of a lamp's centre in pixels

class TrafficLightTest : public testing::Test {
  protected:
    void Show(const char* name) {
        _image = QImage(QString::fromUtf8(KELVANE_ICONS "/%1.svg").arg(QLatin1String(name)));
        ASSERT_EQ(_image.size(), QSize(24, 48)) << name;
    }

    /// The colour of a lamp beside its sign.
    QColor Light(Lamp lamp) const { return _image.pixelColor(16, lamp); }
    bool IsLit(Lamp lamp) const { return Light(lamp).saturation() > 150; }

    /// A lit lamp is bright, its sign is dark.
    int Signs(Lamp lamp) const {
        int dark = 0;
        for (int y = lamp - 4; y <= lamp + 4; ++y)
            for (int x = 8; x <= 16; ++x)
                dark += _image.pixelColor(x, y).lightness() < 60;
        return dark;
    }

  private:
    QImage _image;
};

TEST_F(TrafficLightTest, RulesThatHoldLightTheGreenLampAtTheBottom) {
    Show("KelvaneRulesOK");
    EXPECT_TRUE(IsLit(Bottom));
    EXPECT_FALSE(IsLit(Middle) || IsLit(Top));
    EXPECT_GT(Light(Bottom).green(), Light(Bottom).red() + 50);
    EXPECT_GT(Signs(Bottom), 5);
}

TEST_F(TrafficLightTest, AWarningLightsTheYellowLampInTheMiddle) {
    Show("KelvaneRulesYellow");
    EXPECT_TRUE(IsLit(Middle));
    EXPECT_FALSE(IsLit(Bottom) || IsLit(Top));
    EXPECT_GT(std::min(Light(Middle).red(), Light(Middle).green()), Light(Middle).blue() + 50);
    EXPECT_GT(Signs(Middle), 5);
}

TEST_F(TrafficLightTest, AViolatedRuleLightsTheRedLampAtTheTop) {
    Show("KelvaneRulesKO");
    EXPECT_TRUE(IsLit(Top));
    EXPECT_FALSE(IsLit(Bottom) || IsLit(Middle));
    EXPECT_GT(Light(Top).red(), Light(Top).green() + 50);
    EXPECT_GT(Signs(Top), 5);
}

TEST_F(TrafficLightTest, TheFirstLightIsGreenWithASmallerSign) {
    Show("KelvaneRulesOK");
    const QColor green = Light(Bottom);
    const int check = Signs(Bottom);
    Show("I_GreenLightXML");
    EXPECT_EQ(Light(Bottom), green);
    EXPECT_FALSE(IsLit(Middle) || IsLit(Top));
    EXPECT_GT(Signs(Bottom), 0);
    EXPECT_LT(Signs(Bottom), check);
}

} // namespace
