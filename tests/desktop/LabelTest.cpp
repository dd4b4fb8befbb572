#include "CATDlgCombo.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "DesktopFixture.h"
#include "WarningRecorder.h"
#include "host/MessageCatalogs.h"
#include "support/TemporaryFolder.h"

#include <QtGui/QImage>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <algorithm>
#include <filesystem>

namespace desktop_test {

namespace {

class LabelTest : public DesktopTest {
  protected:
    LabelTest() : _label(new CATDlgLabel(&Dialog(), "StateLab")) { _label->SetTitle("Rules & state"); }

    // Puts an icon where the host looks for it.
    void MakeIcon(const std::string& iName, const QSize& iSize = QSize(16, 16)) {
        const std::filesystem::path icons = _folder.Path() / "graphic" / "icons" / "normal";
        std::filesystem::create_directories(icons);
        std::filesystem::create_directories(_folder.Path() / "msgcatalog");
        QImage image(iSize, QImage::Format_ARGB32);
        image.fill(Qt::green);
        ASSERT_TRUE(image.save(QString::fromStdString((icons / (iName + ".png")).string())));
        host::MessageCatalogs::AddFolder((_folder.Path() / "msgcatalog").string());
    }
    QLabel& Label() { return ShownAs<QLabel>(*_label); }

    CATDlgLabel* _label;

  private:
    support::TemporaryFolder _folder;
};

TEST_F(LabelTest, ShowsItsTitleAsItIs) {
    Open();
    EXPECT_EQ(Utf8(Label().text()), "Rules & state");
    _label->SetTitle("<b>");
    Settle();
    EXPECT_EQ(Utf8(Label().text()), "<b>");
    EXPECT_EQ(Label().textFormat(), Qt::PlainText);
}

TEST_F(LabelTest, ShowsItsIconAloneAndKeepsItsTitleForThoseWhoCannotSee) {
    MakeIcon("I_Green");
    Open();
    _label->SetIconName("I_Green");
    Settle();
    EXPECT_FALSE(Label().pixmap(Qt::ReturnByValue).isNull());
    EXPECT_EQ(Utf8(Label().text()), "");
    EXPECT_EQ(Utf8(Label().accessibleName()), "Rules & state");
    _label->SetIconName("");
    Settle();
    EXPECT_EQ(Utf8(Label().text()), "Rules & state");
}

TEST_F(LabelTest, ItsIconIsNotScaledAndIsExplainedInABalloon) {
    MakeIcon("I_Green", QSize(48, 20));
    MakeIcon("I_Red");
    _label->SetIconName("I_Green");
    Open();
    EXPECT_EQ(Label().pixmap(Qt::ReturnByValue).deviceIndependentSize(), QSizeF(48, 20));
    EXPECT_GE(Label().width(), 48);
    EXPECT_EQ(Utf8(Label().toolTip()), "Rules & state");
    EXPECT_EQ(Utf8(Label().accessibleDescription()), "I_Green");
    _label->SetIconName("I_Red");
    Settle();
    EXPECT_EQ(Utf8(Label().accessibleDescription()), "I_Red") << "which tells what the colour tells";
    _label->SetShortHelp("State of the rules");
    Settle();
    EXPECT_EQ(Utf8(Label().toolTip()), "State of the rules");
    _label->SetIconName("");
    _label->SetShortHelp("");
    Settle();
    EXPECT_EQ(Utf8(Label().toolTip()), "") << "the title is seen";
    EXPECT_EQ(Utf8(Label().accessibleDescription()), "");
}

TEST_F(LabelTest, AnIconWithoutTitleIsNamedAfterTheBoxAroundIt) {
    MakeIcon("I_Green");
    auto* const frame = new CATDlgFrame(&Dialog(), "RulesFrm");
    frame->SetTitle("Rules");
    auto* const light = new CATDlgLabel(frame, "Label003");
    light->SetIconName("I_Green");
    Open();
    EXPECT_EQ(Utf8(Shown(*light).accessibleName()), "Rules");
    EXPECT_EQ(Utf8(Shown(*light).toolTip()), "I_Green");
}

TEST_F(LabelTest, ShowsItsTitleAndWarnsOnceWhenTheIconIsMissing) {
    const WarningRecorder log;
    Open();
    for (const char* icon : {"I_Nowhere", "", "I_Nowhere"}) {
        _label->SetIconName(icon);
        Settle();
    }
    EXPECT_EQ(Utf8(Label().text()), "Rules & state");
    EXPECT_EQ(std::count(log.Warnings().begin(), log.Warnings().end(),
                         "The icon \"I_Nowhere\" was not found; the title is shown in its place."),
              1);
}

TEST_F(LabelTest, AButtonShowsItsIconAloneWithItsTitleAsTooltip) {
    MakeIcon("I_New");
    auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
    button->SetTitle("New");
    button->SetIconName("I_New");
    Open();
    auto& shown = ShownAs<QPushButton>(*button);
    EXPECT_FALSE(shown.icon().isNull());
    EXPECT_EQ(Utf8(shown.text()), "");
    EXPECT_EQ(Utf8(shown.toolTip()), "New");
    EXPECT_EQ(Utf8(shown.accessibleName()), "New");
}

} // namespace

} // namespace desktop_test
