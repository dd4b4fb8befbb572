#include "CATDlgControl.h"
#include "CATDlgEditor.h"
#include "DesktopFixture.h"
#include "WarningRecorder.h"

#include <QtWidgets/QLabel>

#include <algorithm>

namespace desktop_test {

// A kind of widget that no desktop knows.
class UnknownGauge : public CATDlgControl {
    CATDeclareClass;

  public:
    using CATDlgControl::CATDlgControl;
};

CATImplementClass(UnknownGauge, Implementation, CATDlgControl, CATNull);

namespace {

class PlaceholderTest : public DesktopTest {};

TEST_F(PlaceholderTest, StandsForAnUnknownKindAndNamesItOnceInTheLog) {
    const WarningRecorder log;
    auto* const first = new UnknownGauge(&Dialog(), "FirstGauge");
    auto* const second = new UnknownGauge(&Dialog(), "SecondGauge");
    auto* const editor = new CATDlgEditor(&Dialog(), "NameEdt");
    Open();
    for (const CATDialog* gauge : {first, second}) {
        const std::string text = Utf8(ShownAs<QLabel>(*gauge).text());
        EXPECT_NE(text.find("UnknownGauge"), std::string::npos) << text;
        EXPECT_NE(text.find(gauge->GetName().ConvertToChar()), std::string::npos) << text;
        EXPECT_TRUE(Shown(*gauge).isVisible());
    }
    EXPECT_EQ(
        std::count(log.Warnings().begin(), log.Warnings().end(),
                   "The desktop has no window part for UnknownGauge; a placeholder stands in its place."),
        1);
    EXPECT_TRUE(Shown(*editor).isVisible()) << "the rest of the dialog is in use";
}

} // namespace

} // namespace desktop_test
