#include "host/DialogPath.h"

#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "DialogTest.h"

namespace {

using host::DialogPath;

class DialogPathTest : public DialogTest {
  protected:
    // The full path of what is found, or the reason.
    static std::string Find(const std::string& iPath) {
        const host::Found found = DialogPath::Find(iPath);
        EXPECT_EQ(found.widget == nullptr, !found.reason.empty());
        return found.widget == nullptr ? found.reason : DialogPath::Of(*found.widget);
    }

    CATDlgFrame& group = Make<CATDlgFrame>("GroupFrm");
    CATDlgFrame& bottom = Make<CATDlgFrame>("BottomFrm");
    CATDlgPushButton& more = MakeIn<CATDlgPushButton>(bottom, "MorePbt");
};

TEST_F(DialogPathTest, NamesAWidgetFromItsWindowDown) {
    EXPECT_EQ(DialogPath::Of(more), "Dlg/BottomFrm/MorePbt");
    EXPECT_EQ(DialogPath::Of(*dialog), "Dlg");
    EXPECT_EQ(DialogPath::Find("Dlg/BottomFrm/MorePbt").widget, &more);
    EXPECT_EQ(DialogPath::Find("Dlg").widget, dialog);
}

TEST_F(DialogPathTest, FindsAWidgetByAUniqueTail) {
    EXPECT_EQ(DialogPath::Find("MorePbt").widget, &more);
    EXPECT_EQ(DialogPath::Find("BottomFrm/MorePbt").widget, &more);
    EXPECT_EQ(Find("GroupFrm/MorePbt"), "there is no widget 'GroupFrm/MorePbt'");
}

TEST_F(DialogPathTest, NumbersSiblingsOfOneName) {
    CATDlgLabel& first = MakeIn<CATDlgLabel>(group, "IntDiamSpn");
    CATDlgLabel& second = MakeIn<CATDlgLabel>(group, "IntDiamSpn");
    EXPECT_EQ(DialogPath::Of(first), "Dlg/GroupFrm/IntDiamSpn[1]");
    EXPECT_EQ(DialogPath::Of(second), "Dlg/GroupFrm/IntDiamSpn[2]");
    EXPECT_EQ(DialogPath::Find("IntDiamSpn[2]").widget, &second);
    EXPECT_EQ(DialogPath::Find("Dlg/GroupFrm/IntDiamSpn[1]").widget, &first);
    EXPECT_EQ(Find("IntDiamSpn[3]"), "there is no widget 'IntDiamSpn[3]'");
    EXPECT_EQ(Find("IntDiamSpn"), "the path 'IntDiamSpn' names 2 widgets: Dlg/GroupFrm/IntDiamSpn[1], "
                                  "Dlg/GroupFrm/IntDiamSpn[2]");
    EXPECT_EQ(DialogPath::Find("MorePbt[1]").widget, &more) << "the first of one";
}

TEST_F(DialogPathTest, NumbersParentsToo) {
    CATDlgFrame& twin = Make<CATDlgFrame>("GroupFrm");
    MakeIn<CATDlgLabel>(group, "Lab");
    CATDlgLabel& label = MakeIn<CATDlgLabel>(twin, "Lab");
    EXPECT_EQ(DialogPath::Of(label), "Dlg/GroupFrm[2]/Lab");
    EXPECT_EQ(DialogPath::Find("GroupFrm[2]/Lab").widget, &label);
}

TEST_F(DialogPathTest, TellsTheFirstFourOfManyWidgets) {
    for (int number = 0; number < 6; ++number)
        MakeIn<CATDlgLabel>(group, "L");
    EXPECT_EQ(Find("L"),
              "the path 'L' names 6 widgets: Dlg/GroupFrm/L[1], Dlg/GroupFrm/L[2], Dlg/GroupFrm/L[3], "
              "Dlg/GroupFrm/L[4], ...");
}

TEST_F(DialogPathTest, PrefersTheWidgetWhoseWholePathItIs) {
    CATDlgFrame& inner = MakeIn<CATDlgFrame>(group, "Dlg");
    MakeIn<CATDlgFrame>(inner, "BottomFrm");
    EXPECT_EQ(DialogPath::Find("Dlg/BottomFrm").widget, &bottom);
    EXPECT_EQ(DialogPath::Find("Dlg").widget, dialog);
    EXPECT_EQ(DialogPath::Find("GroupFrm/Dlg").widget, &inner);
}

TEST_F(DialogPathTest, DoesNotChooseBetweenWindowsOfOneName) {
    auto* const inFirst = new CATDlgDialog(dialog, "Confirm");
    ListeningDialog& other = MakeDialog("Other");
    auto* const inOther = new CATDlgDialog(&other, "Confirm");
    EXPECT_EQ(Find("Confirm"), "the path 'Confirm' names 2 widgets: Confirm, Confirm");
    EXPECT_EQ(DialogPath::Find("Dlg/Confirm").widget, inFirst);
    EXPECT_EQ(DialogPath::Find("Other/Confirm").widget, inOther);
}

TEST_F(DialogPathTest, EscapesWhatHasAMeaningOfItsOwn) {
    for (const char* name : {"a/b", "a[2]", "a\\b", "Applicative Rules   ", "\xC3\x84nderung", "]", "\\"}) {
        const CATDlgLabel& label = MakeIn<CATDlgLabel>(group, name);
        EXPECT_EQ(DialogPath::Find(DialogPath::Of(label)).widget, &label) << DialogPath::Of(label);
    }
    EXPECT_EQ(Find("a\\/b"), "Dlg/GroupFrm/a\\/b");
    EXPECT_EQ(Find("a\\[2]"), "Dlg/GroupFrm/a\\[2]");
}

TEST_F(DialogPathTest, FindsWidgetsThatHangInTheMainWindowItself) {
    CATDlgLabel& label = MakeIn<CATDlgLabel>(MainWindow(), "Lab");
    EXPECT_EQ(DialogPath::Of(label), "MainWindow/Lab");
    EXPECT_EQ(DialogPath::Find("MainWindow/Lab").widget, &label);
    EXPECT_EQ(DialogPath::Find("Lab").widget, &label);
}

TEST_F(DialogPathTest, TellsAPathThatIsNone) {
    for (const char* path :
         {"", "/", "Dlg/", "/Dlg", "Dlg//MorePbt", "[1]", "Dlg/[1]", "Dlg[", "Dlg[]", "Dlg[0]", "Dlg[-1]",
          "Dlg[1", "Dlg[1]x", "Dlg[x]", "Dlg[99999999999]", "Dlg[1][1]"})
        EXPECT_EQ(Find(path), "'" + std::string(path) + "' is not a path");
    EXPECT_EQ(Find("NoSuchWidget"), "there is no widget 'NoSuchWidget'");
}

TEST_F(DialogPathTest, StaysRightWhileWidgetsComeAndGo) {
    ASSERT_EQ(DialogPath::Find("MorePbt").widget, &more);
    CATDlgLabel& second = MakeIn<CATDlgLabel>(group, "MorePbt");
    EXPECT_EQ(DialogPath::Named("MorePbt"), (std::vector<CATDialog*>{&more, &second}));
    delete &more;
    EXPECT_EQ(DialogPath::Find("MorePbt").widget, &second);
    delete &group;
    EXPECT_EQ(Find("MorePbt"), "there is no widget 'MorePbt'");
    CATDlgLabel& third = MakeIn<CATDlgLabel>(bottom, "MorePbt");
    EXPECT_EQ(DialogPath::Find("MorePbt").widget, &third);
    EXPECT_EQ(DialogPath::Named("NoSuchWidget"), std::vector<CATDialog*>());
}

TEST_F(DialogPathTest, NumbersTheSiblingsThatAreLeft) {
    CATDlgLabel& first = MakeIn<CATDlgLabel>(group, "L");
    CATDlgLabel& second = MakeIn<CATDlgLabel>(group, "L");
    CATDlgLabel& third = MakeIn<CATDlgLabel>(group, "L");
    EXPECT_EQ(DialogPath::Of(third), "Dlg/GroupFrm/L[3]");
    delete &first;
    EXPECT_EQ(DialogPath::Find("L[2]").widget, &third);
    second.RequestDelayedDestruction();
    EXPECT_EQ(DialogPath::Of(third), "Dlg/GroupFrm/L");
    EXPECT_EQ(DialogPath::Of(second), "Dlg/GroupFrm/L") << "not among its siblings any more";
}

TEST_F(DialogPathTest, NamesAWidgetWithoutAWindowFromItsTop) {
    CATDlgFrame alone(nullptr, "Alone");
    TakeMisuses();
    CATDlgLabel& label = MakeIn<CATDlgLabel>(alone, "Lab");
    EXPECT_EQ(DialogPath::Of(label), "Alone/Lab");
    EXPECT_EQ(Find("Alone/Lab"), "there is no widget 'Alone/Lab'") << "nothing that a person could reach";
}

TEST_F(DialogPathTest, ForgetsAllWidgetsWithTheirApplication) {
    ASSERT_EQ(DialogPath::Find("MorePbt").widget, &more);
    application.reset();
    EXPECT_EQ(Find("MorePbt"), "there is no widget 'MorePbt'");
    application = std::make_unique<host::Application>();
    EXPECT_EQ(Find("MorePbt"), "there is no widget 'MorePbt'");
}

} // namespace
