#include "host/DialogDump.h"

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgContainer.h"
#include "CATDlgEditor.h"
#include "CATDlgFrame.h"
#include "CATDlgLabel.h"
#include "CATDlgMultiList.h"
#include "CATDlgNotify.h"
#include "CATDlgProgress.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"
#include "CATDlgSpinner.h"
#include "CATDlgTabContainer.h"
#include "CATDlgTabPage.h"
#include "DialogTest.h"

#include <algorithm>
#include <locale>

namespace {

using host::DialogDump;

// Writes numbers with a comma and groups of three, as some languages do.
class CommaPunctuation : public std::numpunct<char> {
  protected:
    char do_decimal_point() const override { return ','; }
    char do_thousands_sep() const override { return '.'; }
    std::string do_grouping() const override { return "\3"; }
};

class DialogDumpTest : public DialogTest {};

TEST_F(DialogDumpTest, WritesEachKindOfWidget) {
    dialog->SetTitle("Feature");
    CATDlgFrame& frame = Make<CATDlgFrame>("GroupFrm");
    MakeIn<CATDlgFrame>(frame, "BareFrm", CATDlgFraNoFrame);
    MakeIn<CATDlgLabel>(frame, "Lab").SetTitle("Type:");
    MakeIn<CATDlgPushButton>(frame, "Pbt");
    CATDlgCombo& combo = MakeIn<CATDlgCombo>(frame, "Cmb");
    combo.SetLine("Hole");
    combo.SetLine("Slot");
    combo.SetSelect(1);
    MakeIn<CATDlgCombo>(frame, "EmptyCmb");
    MakeIn<CATDlgEditor>(frame, "Edt").SetText("one\ntwo");
    MakeIn<CATDlgEditor>(frame, "FixedEdt", CATDlgEdtReadOnly);
    MakeIn<CATDlgRadioButton>(frame, "Rdb").SetState(CATDlgCheck);
    MakeIn<CATDlgCheckButton>(frame, "Ckb");
    MakeIn<CATDlgSpinner>(frame, "Spn").SetValue(2.5);
    MakeIn<CATDlgProgress>(frame, "Bar").StepIt();
    MakeIn<CATDlgContainer>(frame, "Con");
    CATDlgTabContainer& pages = Make<CATDlgTabContainer>("Tab");
    MakeIn<CATDlgTabPage>(pages, "Pge");
    CATDlgMultiList& list = Make<CATDlgMultiList>("Mul");
    const CATUnicodeString titles[] = {"Name", "Value"};
    list.SetColumnTitles(2, titles);
    list.SetColumnItem(0, "Depth");
    list.SetColumnItem(0, "Diameter");
    list.SetColumnItem(1, "10mm");
    int line = 1;
    list.SetSelect(&line, 1);
    EXPECT_EQ(DialogDump::Of(*dialog), R"(CATDlgDialog Dlg title="Feature" buttons=OK*,Apply,Cancel
  CATDlgFrame GroupFrm title="GroupFrm"
    CATDlgFrame BareFrm
    CATDlgLabel Lab title="Type:"
    CATDlgPushButton Pbt title="Pbt"
    CATDlgCombo Cmb lines=["Hole", "Slot"] selected=1
    CATDlgCombo EmptyCmb lines=[] selected=-1
    CATDlgEditor Edt text="one\ntwo"
    CATDlgEditor FixedEdt read-only text=""
    CATDlgRadioButton Rdb title="Rdb" checked
    CATDlgCheckButton Ckb title="Ckb"
    CATDlgSpinner Spn value=2.5
    CATDlgProgress Bar position=1
    CATDlgContainer Con
  CATDlgTabContainer Tab page=0
    CATDlgTabPage Pge title="Pge"
  CATDlgMultiList Mul columns=["Name", "Value"] lines=2 selected=1
    | "Depth" | "" |
    | "Diameter" | "10mm" |
)");
}

TEST_F(DialogDumpTest, WritesStatesHelpAndIcon) {
    CATDlgLabel& label = Make<CATDlgLabel>("Label003");
    label.SetVisibility(CATDlgHide);
    label.SetSensitivity(CATDlgDisable);
    label.SetShortHelp("State of the rules");
    label.SetIconName("I_Green");
    EXPECT_EQ(DialogDump::Of(label),
              "CATDlgLabel Label003 hidden disabled help=\"State of the rules\" icon=I_Green\n");
}

TEST_F(DialogDumpTest, QuotesNamesAndTextsWhereTheyNeedIt) {
    CATDlgFrame& frame = Make<CATDlgFrame>("Applicative Rules   ");
    frame.SetTitle("say \"a\\b\"\n\xC3\xA4");
    EXPECT_EQ(DialogDump::Of(frame),
              "CATDlgFrame \"Applicative Rules   \" title=\"say \\\"a\\\\b\\\"\\n\xC3\xA4\"\n");
    const CATDlgContainer& nameless = *new CATDlgContainer(dialog, "");
    EXPECT_EQ(DialogDump::Of(nameless), "CATDlgContainer \"\"\n");
    TakeMisuses();
}

TEST_F(DialogDumpTest, WritesTheButtonsOfADialogAndItsDefaultOne) {
    EXPECT_EQ(DialogDump::Of(MakeIn<CATDlgDialog>(MainWindow(), "Plain")),
              "CATDlgDialog Plain hidden title=\"Plain\" buttons=OK*,Cancel,Help\n");
    EXPECT_EQ(DialogDump::Of(MakeIn<CATDlgDialog>(MainWindow(), "None", CATDlgWndNoButton)),
              "CATDlgDialog None hidden title=\"None\"\n");
    CATDlgDialog& modal =
        MakeIn<CATDlgDialog>(MainWindow(), "Modal", CATDlgWndModal | CATDlgWndOK | CATDlgWndCLOSE);
    modal.SetDefaultButton(0);
    EXPECT_EQ(DialogDump::Of(modal), "CATDlgDialog Modal hidden title=\"Modal\" modal buttons=OK,Close\n");
}

TEST_F(DialogDumpTest, WritesTheLayoutWhenAsked) {
    CATDlgCombo& combo = Make<CATDlgCombo>("Cmb", CATDlgCmbDropDown);
    dialog->SetVerticalAttachment(0, CATDlgTopOrLeft, &combo, nullptr);
    dialog->SetVerticalAttachment(1, CATDlgRightOrBottomRelative, &combo, nullptr);
    dialog->SetHorizontalAttachment(3, CATDlgRightOrBottom, &combo, nullptr);
    combo.SetVisibleTextHeight(7);
    combo.SetVisibleTextWidth(20);
    combo.SetGridConstraints(1, 2, 3, 4, 30);
    EXPECT_EQ(DialogDump::Of(combo), "CATDlgCombo Cmb lines=[] selected=-1\n");
    EXPECT_EQ(DialogDump::Of(combo, DialogDump::WithLayout),
              "CATDlgCombo Cmb lines=[] selected=-1 style=0x40000 columns=0(1)-1(4) rows=-3(3) grid=1,2 3x4 "
              "sides=30 "
              "visible-lines=7 visible-width=20\n");
    CATDlgEditor& plain = Make<CATDlgEditor>("Edt");
    EXPECT_EQ(DialogDump::Of(plain, DialogDump::WithLayout), DialogDump::Of(plain));
    dialog->SetVerticalAttachment(2, CATDlgCenter, &plain, nullptr);
    EXPECT_EQ(DialogDump::Of(plain, DialogDump::WithLayout), "CATDlgEditor Edt text=\"\" columns=2(2)\n");
}

TEST_F(DialogDumpTest, WritesFiftyRowsOfAListAndTheNumberOfTheOthers) {
    CATDlgMultiList& list = Make<CATDlgMultiList>("Mul");
    for (int row = 0; row < 50; ++row)
        list.SetColumnItem(0, std::to_string(row).c_str());
    const std::string fifty = DialogDump::Of(list);
    EXPECT_EQ(std::count(fifty.begin(), fifty.end(), '\n'), 51);
    EXPECT_EQ(fifty.find("more"), std::string::npos);
    for (int row = 50; row < 53; ++row)
        list.SetColumnItem(0, std::to_string(row).c_str());
    const std::string text = DialogDump::Of(list);
    EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 52);
    EXPECT_NE(text.find("  | \"49\" |\n  | ... 3 more\n"), std::string::npos) << text;
}

TEST_F(DialogDumpTest, WritesAllWindowsOneAfterTheOther) {
    auto* const child = new CATDlgNotify(dialog, "Warning", CATDlgNfyWarning);
    MakeDialog("Other", CATDlgWndNoButton);
    EXPECT_EQ(DialogDump::OfAll(), "CATDlgDialog Dlg title=\"Dlg\" buttons=OK*,Apply,Cancel\n"
                                   "CATDlgNotify Warning hidden title=\"Warning\"\n"
                                   "CATDlgDialog Other title=\"Other\"\n");
    EXPECT_EQ(DialogDump::Of(*dialog).find("Warning"), std::string::npos) << "a window stands on its own";
    child->RequestDelayedDestruction();
    EXPECT_EQ(DialogDump::OfAll().find("Warning"), std::string::npos);
}

TEST_F(DialogDumpTest, DoesNotDependOnTheLocale) {
    CATDlgSpinner& spinner = Make<CATDlgSpinner>("Spn");
    spinner.SetMinMaxStep(0.0, 9999.0, 0.5, 0);
    spinner.SetValue(1234.5);
    const std::locale before = std::locale::global(std::locale(std::locale::classic(), new CommaPunctuation));
    const std::string text = DialogDump::Of(spinner);
    std::locale::global(before);
    EXPECT_EQ(text, "CATDlgSpinner Spn value=1234.5\n");
}

} // namespace
