#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgNotify.h"
#include "CATDlgPushButton.h"
#include "DialogTest.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/MessageCatalogs.h"

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace {

using host::Inspector;
using host::MessageCatalogs;

// A panel with texts of its own, as a library writes one.
class BasePanel : public CATDlgFrame {
  public:
    using CATDlgFrame::CATDlgFrame;
    char* GetResourceFilename(int iLevel) const override {
        static char name[] = "BasePanel";
        return iLevel <= 0 ? name : CATDlgFrame::GetResourceFilename(iLevel - 1);
    }
};

class DerivedPanel : public BasePanel {
  public:
    using BasePanel::BasePanel;
    char* GetResourceFilename(int iLevel) const override {
        static char name[] = "DerivedPanel";
        return iLevel <= 0 ? name : BasePanel::GetResourceFilename(iLevel - 1);
    }
};

// A panel that gives its own name at every level, and one without a name.
class EndlessPanel : public CATDlgFrame {
  public:
    using CATDlgFrame::CATDlgFrame;
    char* GetResourceFilename(int) const override {
        static char name[] = "EndlessPanel";
        return name;
    }
};

class NamelessPanel : public CATDlgFrame {
  public:
    using CATDlgFrame::CATDlgFrame;
    char* GetResourceFilename(int) const override {
        static char name[] = "";
        return name;
    }
};

std::string TitleOf(const CATDialog& iWidget) {
    return iWidget.GetTitle().ConvertToChar();
}

// Message folders below a folder of the test's own.
class ResourceTest : public DialogTest {
  protected:
    ResourceTest() {
        std::string name = (std::filesystem::temp_directory_path() / "host-dialog-XXXXXX").string();
        root = mkdtemp(name.data());
        std::filesystem::create_directories(root / "msgcatalog" / "German");
        MessageCatalogs::AddFolder((root / "msgcatalog").string());
    }
    ~ResourceTest() override { std::filesystem::remove_all(root); }

    void Write(const std::string& iFile, const std::string& iText) const {
        std::ofstream(root / "msgcatalog" / iFile) << iText;
    }

    std::filesystem::path root;
};

TEST_F(ResourceTest, ATitleIsTheWidgetsNameWithoutAnyResource) {
    EXPECT_EQ(TitleOf(Make<CATDlgFrame>("Applicative Rules   ")), "Applicative Rules   ");
    EXPECT_EQ(MessageCatalogs::Missing(), Texts()) << "no file was promised";
}

TEST_F(ResourceTest, ATitleComesFromTheFullPathBelowThePanelThenFromTheName) {
    Write("BasePanel.CATNls", "Title = \"The panel\";\n"
                              "ButtonFrm.NewPbt.Title = \"New...\";\n"
                              "NewPbt.Title = \"by short key\";\n"
                              "OldPbt.Title = \"Old\";\n");
    BasePanel& panel = Make<BasePanel>("Panel");
    CATDlgFrame& frame = MakeIn<CATDlgFrame>(panel, "ButtonFrm");
    EXPECT_EQ(TitleOf(panel), "The panel");
    EXPECT_EQ(TitleOf(MakeIn<CATDlgPushButton>(frame, "NewPbt")), "New...");
    EXPECT_EQ(TitleOf(MakeIn<CATDlgPushButton>(frame, "OldPbt")), "Old");
    EXPECT_EQ(TitleOf(MakeIn<CATDlgPushButton>(panel, "NewPbt")), "by short key");
    EXPECT_EQ(MessageCatalogs::Missing(), Texts());
}

TEST_F(ResourceTest, ATitleThatIsSetWinsAndMayBeEmpty) {
    Write("BasePanel.CATNls", "NewPbt.Title = \"New\";\n");
    CATDlgPushButton& button = MakeIn<CATDlgPushButton>(Make<BasePanel>("Panel"), "NewPbt");
    button.SetTitle("Set");
    EXPECT_EQ(TitleOf(button), "Set");
    button.SetTitle("");
    EXPECT_EQ(TitleOf(button), "");
    EXPECT_EQ(MessageCatalogs::Missing(), Texts());
}

TEST_F(ResourceTest, TheNearestPanelWithAResourceFileAnswers) {
    Write("BasePanel.CATNls", "Lab.Title = \"inner\";\nInner.Lab.Title = \"from outside\";\n");
    Write("DerivedPanel.CATNls", "Lab.Title = \"outer\";\n");
    DerivedPanel& outer = Make<DerivedPanel>("Outer");
    BasePanel& inner = MakeIn<BasePanel>(outer, "Inner");
    EXPECT_EQ(TitleOf(MakeIn<CATDlgLabel>(inner, "Lab")), "inner");
    EXPECT_EQ(TitleOf(MakeIn<CATDlgLabel>(outer, "Lab")), "outer");
}

TEST_F(ResourceTest, ADerivedPanelTakesFromItsBaseWhatItLacks) {
    Write("BasePanel.CATNls", "Title = \"Base\";\nA.Title = \"base A\";\nB.Title = \"base B\";\n");
    Write("DerivedPanel.CATNls", "B.Title = \"derived B\";\n");
    DerivedPanel& panel = Make<DerivedPanel>("Panel");
    EXPECT_EQ(TitleOf(panel), "Base");
    EXPECT_EQ(TitleOf(MakeIn<CATDlgLabel>(panel, "A")), "base A");
    EXPECT_EQ(TitleOf(MakeIn<CATDlgLabel>(panel, "B")), "derived B");
    EXPECT_EQ(MessageCatalogs::Missing(), Texts());
}

TEST_F(ResourceTest, ATitleFollowsTheLanguageAndFallsBackToEnglish) {
    Write("BasePanel.CATNls", "A.Title = \"hole\";\nB.Title = \"thread\";\n");
    Write("German/BasePanel.CATNls", "A.Title = \"Bohrung\";\n");
    BasePanel& panel = Make<BasePanel>("Panel");
    CATDlgLabel& hole = MakeIn<CATDlgLabel>(panel, "A");
    CATDlgLabel& thread = MakeIn<CATDlgLabel>(panel, "B");
    MessageCatalogs::SetLanguage("German");
    EXPECT_EQ(TitleOf(hole), "Bohrung");
    EXPECT_EQ(TitleOf(thread), "thread");
    MessageCatalogs::SetLanguage("");
    EXPECT_EQ(TitleOf(hole), "hole");
}

TEST_F(ResourceTest, AMissingTitleShowsTheNameAndIsListedOnce) {
    Write("BasePanel.CATNls", "Title = \"Panel\";\n");
    BasePanel& panel = Make<BasePanel>("Panel");
    CATDlgFrame& frame = MakeIn<CATDlgFrame>(panel, "ButtonFrm", CATDlgFraNoFrame);
    CATDlgPushButton& button = MakeIn<CATDlgPushButton>(frame, "NewPbt");
    EXPECT_EQ(TitleOf(button), "NewPbt");
    EXPECT_EQ(TitleOf(button), "NewPbt");
    EXPECT_EQ(MessageCatalogs::Missing(), Texts{"BasePanel: ButtonFrm.NewPbt.Title"});
}

TEST_F(ResourceTest, OnlyWhatDrawsItsTitleMissesOne) {
    BasePanel& panel = Make<BasePanel>("Panel", CATDlgFraNoTitle);
    CATDlgLabel& icon = MakeIn<CATDlgLabel>(panel, "TrafficLight");
    icon.SetIconName("I_Green");
    const std::vector<const CATDialog*> silent = {&panel,
                                                  &MakeIn<CATDlgFrame>(panel, "Frm", CATDlgFraNoFrame), &icon,
                                                  &MakeIn<CATDlgCombo>(panel, "Cmb")};
    for (const CATDialog* widget : silent)
        EXPECT_EQ(TitleOf(*widget), widget->GetName().ConvertToChar());
    EXPECT_EQ(MessageCatalogs::Missing(), Texts());
    EXPECT_EQ(TitleOf(MakeIn<CATDlgFrame>(panel, "Titled")), "Titled");
    EXPECT_EQ(TitleOf(MakeIn<CATDlgCheckButton>(panel, "Ckb")), "Ckb");
    EXPECT_EQ(MessageCatalogs::Missing(), (Texts{"BasePanel: Titled.Title", "BasePanel: Ckb.Title"}));
}

TEST_F(ResourceTest, AMissingHelpIsEmptyAndNotListed) {
    BasePanel& panel = Make<BasePanel>("Panel");
    EXPECT_STREQ(panel.GetShortHelp().ConvertToChar(), "");
    EXPECT_STREQ(panel.GetLongHelp().ConvertToChar(), "");
    EXPECT_STREQ(panel.GetHelp().ConvertToChar(), "");
    EXPECT_EQ(MessageCatalogs::Missing(), Texts());
}

TEST_F(ResourceTest, HelpComesFromTheFileUntilItIsSet) {
    Write("BasePanel.CATNls",
          "Pbt.ShortHelp = \"short\";\nPbt.LongHelp = \"long\";\nPbt.Help = \"status\";\n");
    CATDlgPushButton& button = MakeIn<CATDlgPushButton>(Make<BasePanel>("Panel"), "Pbt");
    EXPECT_STREQ(button.GetShortHelp().ConvertToChar(), "short");
    EXPECT_STREQ(button.GetLongHelp().ConvertToChar(), "long");
    EXPECT_STREQ(button.GetHelp().ConvertToChar(), "status");
    button.SetShortHelp("set short");
    button.SetLongHelp("set long");
    button.SetHelp("");
    EXPECT_STREQ(button.GetShortHelp().ConvertToChar(), "set short");
    EXPECT_STREQ(button.GetLongHelp().ConvertToChar(), "set long");
    EXPECT_STREQ(button.GetHelp().ConvertToChar(), "");
}

TEST_F(ResourceTest, IconsComeFromTheResourceFileUntilTheyAreSet) {
    Write("BasePanel.CATRsc", "Lab.Icon.Normal = \"I_Red\";\nLab.Icon.Selected = \"I_Sel\";\n"
                              "Lab.Icon.Focused = \"I_Foc\";\nLab.Icon.Disabled = \"I_Dis\";\n");
    CATDlgLabel& label = MakeIn<CATDlgLabel>(Make<BasePanel>("Panel"), "Lab");
    EXPECT_EQ(Inspector::Icons(label).normal, "I_Red");
    EXPECT_EQ(Inspector::Icons(label).selected, "I_Sel");
    EXPECT_EQ(Inspector::Icons(label).focus, "I_Foc");
    EXPECT_EQ(Inspector::Icons(label).disabled, "I_Dis");
    EXPECT_FALSE(Inspector::ShowsTitle(label));
    label.SetIconName("I_Green");
    EXPECT_EQ(Inspector::Icons(label).normal, "I_Green");
    EXPECT_EQ(Inspector::Icons(label).selected, "I_Sel");
}

TEST_F(ResourceTest, AnIconFileLiesBesideTheMessageFolders) {
    const std::filesystem::path icons = root / "graphic" / "icons" / "normal";
    std::filesystem::create_directories(icons);
    std::ofstream(icons / "I_Red.png") << "x";
    std::ofstream(icons / "I_Green.svg") << "x";
    EXPECT_TRUE(std::filesystem::equivalent(Inspector::IconFile("I_Red"), icons / "I_Red.png"));
    EXPECT_TRUE(std::filesystem::equivalent(Inspector::IconFile("I_Green"), icons / "I_Green.svg"));
    EXPECT_EQ(Inspector::IconFile("I_Blue"), "");
    EXPECT_EQ(Inspector::IconFile(""), "");
    EXPECT_EQ(Inspector::IconFile("../normal/I_Red"), "");
}

TEST_F(ResourceTest, APlainKeyIsFoundInThePanelsOwnFilesOrNothingIsTouched) {
    Write("BasePanel.CATNls", "MoreTitle = \"More\";\nFrm.Key = \"by path\";\n");
    Write("DerivedPanel.CATNls", "LessTitle = \"Less\";\n");
    DerivedPanel& panel = Make<DerivedPanel>("Panel");
    CATDlgFrame& frame = MakeIn<CATDlgFrame>(panel, "Frm");
    CATUnicodeString text("untouched");
    EXPECT_EQ(panel.GetResourceValueFromKey("LessTitle", text), 1);
    EXPECT_STREQ(text.ConvertToChar(), "Less");
    EXPECT_EQ(panel.GetResourceValueFromKey("MoreTitle", text), 1) << "from the class above";
    EXPECT_STREQ(text.ConvertToChar(), "More");
    EXPECT_EQ(frame.GetResourceValueFromKey("LessTitle", text), 1) << "from the parent";
    text = "untouched";
    EXPECT_EQ(panel.GetResourceValueFromKey("NoSuchKey", text), 0);
    EXPECT_EQ(panel.GetResourceValueFromKey("", text), 0);
    EXPECT_EQ(frame.GetResourceValueFromKey("Key", text), 0) << "a plain key has no path";
    EXPECT_EQ(dialog->GetResourceValueFromKey("LessTitle", text), 0) << "nothing above names a file";
    EXPECT_STREQ(text.ConvertToChar(), "untouched");
    EXPECT_EQ(MessageCatalogs::Missing(), Texts());
}

TEST_F(ResourceTest, AFileThatIsNotThereOrALookUpThatFailsIsAMiss) {
    Write("BasePanel.CATNls", "Lab.Title = \"text\";\n");
    CATDlgLabel& label = MakeIn<CATDlgLabel>(Make<BasePanel>("Panel"), "Lab");
    CATDlgLabel& lost = MakeIn<CATDlgLabel>(Make<EndlessPanel>("Endless"), "Lab");
    EXPECT_EQ(TitleOf(lost), "Lab");
    EXPECT_EQ(MessageCatalogs::Missing(), Texts{"EndlessPanel: Lab.Title"});
    host::FaultPoints::FailCall(1, "message look-up");
    EXPECT_EQ(TitleOf(label), "Lab");
    EXPECT_EQ(TitleOf(label), "text") << "the next call works";
    host::FaultPoints::Stop();
}

TEST_F(ResourceTest, APanelThatNamesOneFileAtEveryLevelIsSearchedOnce) {
    Write("EndlessPanel.CATNls", "Title = \"Endless\";\n");
    EndlessPanel& panel = Make<EndlessPanel>("Panel");
    CATUnicodeString text("untouched");
    EXPECT_EQ(panel.GetResourceValueFromKey("NoSuchKey", text), 0);
    EXPECT_EQ(panel.GetResourceValueFromKey("Title", text), 1);
    EXPECT_STREQ(text.ConvertToChar(), "Endless");
}

TEST_F(ResourceTest, APanelWithAnEmptyFileNameIsPassedOver) {
    Write("BasePanel.CATNls", "Lab.Title = \"outer\";\n");
    NamelessPanel& nameless = MakeIn<NamelessPanel>(Make<BasePanel>("Panel"), "Nameless");
    EXPECT_EQ(TitleOf(MakeIn<CATDlgLabel>(nameless, "Lab")), "outer");
}

TEST_F(ResourceTest, AMessageWindowIsTitledWithItsNameWithoutAResource) {
    EXPECT_EQ(TitleOf(MakeIn<CATDlgNotify>(MainWindow(), "Warning", CATDlgNfyWarning)), "Warning");
}

} // namespace
