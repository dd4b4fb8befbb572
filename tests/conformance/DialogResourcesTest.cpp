// Texts of widgets in the resource file of their panel.

#include "CATDlgFrame.h"
#include "CATDlgPushButton.h"

#include "MessageFolder.h"
#include "Panels.h"

namespace {

// A panel with a resource file of its own, over a base panel with another one.
class ResourcePanel : public CATDlgFrame {
  public:
    ResourcePanel(CATDialog* iParent, const char* iFile, const char* iBaseFile = nullptr)
        : CATDlgFrame(iParent, "ResourcePanel"), _file(iFile),
          _baseFile(iBaseFile == nullptr ? "" : iBaseFile) {}

    char* GetResourceFilename(int iLevel) const override {
        if (iLevel <= 0)
            return const_cast<char*>(_file.c_str());
        if (iLevel == 1 && !_baseFile.empty())
            return const_cast<char*>(_baseFile.c_str());
        return CATDlgFrame::GetResourceFilename(iLevel - 1);
    }

  private:
    std::string _file;
    std::string _baseFile;
};

class DialogResources : public DialogTest {
  protected:
    ResourcePanel& Make(const char* iFile, const std::string& iContent) {
        MessageFolder::Write(std::string(iFile) + ".CATNls", iContent);
        return *new ResourcePanel(panel, iFile);
    }
    static std::string Value(const CATDialog& iWidget, const char* iKey) {
        CATUnicodeString value("untouched");
        const int found = iWidget.GetResourceValueFromKey(iKey, value);
        return std::string(found != 0 ? "found " : "missing ") + value.ConvertToChar();
    }
};

} // namespace

CERTAIN(DialogResources, ATitleComesFromTheKeyOfTheWidget) {
    ResourcePanel& sub = Make("ResTitle", "InvertPbt.Title = \"Invert\";\n");
    EXPECT_STREQ("Invert", (new CATDlgPushButton(&sub, "InvertPbt"))->GetTitle().ConvertToChar());
    EXPECT_STREQ("OtherPbt", (new CATDlgPushButton(&sub, "OtherPbt"))->GetTitle().ConvertToChar());
}

CERTAIN(DialogResources, HelpTextsComeFromTheirKeys) {
    ResourcePanel& sub = Make("ResHelp", "Pbt.Help = \"status\";\nPbt.ShortHelp = \"balloon\";\n"
                                         "Pbt.LongHelp = \"explanation\";\n");
    const CATDlgPushButton& button = *new CATDlgPushButton(&sub, "Pbt");
    EXPECT_STREQ("status", button.GetHelp().ConvertToChar());
    EXPECT_STREQ("balloon", button.GetShortHelp().ConvertToChar());
    EXPECT_STREQ("explanation", button.GetLongHelp().ConvertToChar());
}

CERTAIN(DialogResources, ThePanelsOwnKeysHaveNoPrefix) {
    const ResourcePanel& sub = Make("ResOwn", "Title = \"Hole\";\nLongHelp = \"explanation\";\n");
    EXPECT_STREQ("Hole", sub.GetTitle().ConvertToChar());
    EXPECT_STREQ("explanation", sub.GetLongHelp().ConvertToChar());
}

ASSUMED(DialogResources, AKeyIsThePathBelowThePanel,
        "recalled: names from the panel down, joined with dots") {
    ResourcePanel& sub = Make("ResPath", "Frm.Pbt.Title = \"by path\";\nPbt.Title = \"by name\";\n");
    auto* const frame = new CATDlgFrame(&sub, "Frm");
    EXPECT_STREQ("by path", (new CATDlgPushButton(frame, "Pbt"))->GetTitle().ConvertToChar());
}

ASSUMED(DialogResources, TheNameAloneServesWhenThePathIsMissing, "open: short files are found as well") {
    ResourcePanel& sub = Make("ResName", "Pbt.Title = \"by name\";\n");
    auto* const frame = new CATDlgFrame(&sub, "Frm");
    EXPECT_STREQ("by name", (new CATDlgPushButton(frame, "Pbt"))->GetTitle().ConvertToChar());
}

ASSUMED(DialogResources, TheNearestPanelWithAFileAnswers, "recalled: an inner panel brings its own texts") {
    ResourcePanel& outer = Make("ResOuter", "Pbt.Title = \"outer\";\n");
    MessageFolder::Write("ResInner.CATNls", "Pbt.Title = \"inner\";\n");
    auto* const inner = new ResourcePanel(&outer, "ResInner");
    EXPECT_STREQ("inner", (new CATDlgPushButton(inner, "Pbt"))->GetTitle().ConvertToChar());
    EXPECT_STREQ("outer", (new CATDlgPushButton(&outer, "Pbt"))->GetTitle().ConvertToChar());
}

CERTAIN(DialogResources, ATitleThatIsSetReplacesTheResource) {
    ResourcePanel& sub = Make("ResSet", "Pbt.Title = \"resource\";\n");
    auto* const button = new CATDlgPushButton(&sub, "Pbt");
    button->SetTitle("set");
    EXPECT_STREQ("set", button->GetTitle().ConvertToChar());
}

CERTAIN(DialogResources, AResourceTextTellsWhetherItWasFound) {
    const ResourcePanel& sub = Make("ResValue", "MoreTitle = \"More >>\";\n");
    EXPECT_EQ("found More >>", Value(sub, "MoreTitle"));
    EXPECT_EQ(0U, Value(sub, "LessTitle").find("missing"));
}

ASSUMED(DialogResources, AMissingResourceTextLeavesTheOutputAlone,
        "open: 0 for missing, the text untouched") {
    const ResourcePanel& sub = Make("ResUntouched", "MoreTitle = \"More >>\";\n");
    EXPECT_EQ("missing untouched", Value(sub, "LessTitle"));
    EXPECT_EQ("missing untouched", Value(*panel, "MoreTitle"));
}

ASSUMED(DialogResources, WhatAFileLacksComesFromTheBasesFile,
        "open: levels are given, the search from level 0 upwards is the choice") {
    MessageFolder::Write("ResDerived.CATNls", "Own = \"derived\";\nBoth = \"derived\";\n");
    MessageFolder::Write("ResBase.CATNls",
                         "Base = \"base\";\nBoth = \"base\";\nPbt.Title = \"base title\";\n");
    ResourcePanel& sub = *new ResourcePanel(panel, "ResDerived", "ResBase");
    EXPECT_EQ("found derived", Value(sub, "Own"));
    EXPECT_EQ("found derived", Value(sub, "Both"));
    EXPECT_EQ("found base", Value(sub, "Base"));
    EXPECT_STREQ("base title", (new CATDlgPushButton(&sub, "Pbt"))->GetTitle().ConvertToChar());
}

ASSUMED(DialogResources, TheBaseOfAllWidgetsNamesNoFile, "open: null or empty, which ends the search") {
    const char* const file = (new CATDlgPushButton(panel, "Pbt"))->GetResourceFilename(0);
    EXPECT_TRUE(file == nullptr || *file == '\0');
}
