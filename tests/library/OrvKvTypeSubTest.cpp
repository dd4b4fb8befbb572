#include "OrvKvTypeSub.h"

#include "PanelTest.h"
#include "support/ResourceFolder.h"

#include "CATDlgDocument.h"
#include "OrvKvTypeSelectedNotification.h"
#include "host/CommandInspection.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/MessageCatalogs.h"

#include <limits>
#include <string>
#include <vector>

namespace {

using namespace support;

const char source[] = "OrvKv9SubFrames.m/src/OrvKvTypeSub";

// A success; the results of the operations that it calls are counted too.
Report SuccessAfter(int iCalledOperations) {
    Report report = SuccessIn(source);
    report.returns += iCalledOperations;
    return report;
}

// What a notification says of the chosen type.
struct ChosenType {
    int group = -1;
    int type = -1;
    std::string identifier;
    std::string name;

    bool operator==(const ChosenType&) const = default;
};

void PrintTo(const ChosenType& iType, std::ostream* ioStream) {
    *ioStream << "group " << iType.group << ", type " << iType.type << ", " << iType.identifier << ", \""
              << iType.name << '"';
}

class OrvKvTypeSubTest : public PanelTest {
  protected:
    OrvKvTypeSubTest() {
        _resources.Write("OrvKvCustomisation.CATNls", "Hole = \"Plain hole\";\n"
                                                      "Slot = \"Slot\";\n"
                                                      "Named = \"Feature of /p1 kind\";\n"
                                                      "Lost = \"resource error\";\n");
        _panel = new OrvKvTypeSub(MainWindow());
    }

    OrvKvTypeSub& Panel() { return *_panel; }
    OrvKvTypeSub& BuiltPanel() {
        _panel->Build();
        return *_panel;
    }
    static CATDlgCombo& Combo() { return PanelTest::Combo("TypeSelectCombo"); }

    ChosenType LastChosen() {
        auto* const heard = Command().Last<OrvKvTypeSelectedNotification>();
        ChosenType chosen;
        CATString identifier;
        CATUnicodeString name;
        if (heard == nullptr ||
            FAILED(heard->GetFeatureInformation(&chosen.group, &chosen.type, &identifier, &name)))
            return ChosenType();
        chosen.identifier = identifier.ConvertToChar();
        chosen.name = name.ConvertToChar();
        return chosen;
    }

    // Asks for the types and tells what the operation told.
    Report SetTypes(int iGroup, int iType, const CATListValCATString& iKeys) {
        return Observe([&] { return _panel->SetTypes(iGroup, iType, &iKeys); });
    }

    ResourceFolder _resources;
    OrvKvTypeSub* _panel; // owned by the main window
};

TEST_F(OrvKvTypeSubTest, IsAPlainFrameNamedAfterItsClassAndEmptyBeforeItIsBuilt) {
    EXPECT_STREQ(Panel().GetName().ConvertToChar(), "OrvKvTypeSub");
    EXPECT_EQ(host::Inspector::Style(Panel()), 0x80000UL);
    EXPECT_EQ(host::Inspector::Parent(Panel()), MainWindow());
    EXPECT_TRUE(host::Inspector::Children(Panel()).empty());
}

TEST_F(OrvKvTypeSubTest, NamesItsResourceFileAfterItsClassAndLeavesHigherLevelsToTheBase) {
    EXPECT_STREQ(Panel().GetResourceFilename(0), "OrvKvTypeSub");
    EXPECT_STREQ(Panel().GetResourceFilename(-1), "OrvKvTypeSub");
    EXPECT_EQ(Panel().GetResourceFilename(1), nullptr);
}

TEST_F(OrvKvTypeSubTest, BuildMakesOneComboWhoseListIsAlwaysShownWithSevenLines) {
    BuiltPanel();
    ASSERT_EQ(host::Inspector::Children(Panel()).size(), 1U);
    EXPECT_EQ(host::Inspector::Style(Combo()), 0UL);
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Combo()), 7);
    EXPECT_EQ(Combo().GetLineCount(), 0);
    EXPECT_EQ(Combo().GetSelect(), -1);
}

TEST_F(OrvKvTypeSubTest, TheComboStartsOnTheFirstRowAndStretchesAcrossThePanel) {
    BuiltPanel();
    const host::Inspector::TabSpan columns = host::Inspector::ColumnsOf(Combo());
    EXPECT_TRUE(columns.hasLeading && columns.hasTrailing && columns.stretches);
    EXPECT_EQ(columns.leading, 0);
    EXPECT_EQ(columns.trailing, 1);
    const host::Inspector::TabSpan rows = host::Inspector::RowsOf(Combo());
    EXPECT_TRUE(rows.hasLeading && !rows.hasTrailing);
    EXPECT_EQ(rows.leading, 0);
}

TEST_F(OrvKvTypeSubTest, ASecondBuildMakesNothing) {
    BuiltPanel();
    const CATDlgCombo* const combo = &Combo();
    Panel().Build();
    ASSERT_EQ(host::Inspector::Children(Panel()).size(), 1U);
    EXPECT_EQ(&Combo(), combo);
    SetTypes(1, 0, KeysOf({"Hole"}));
    ASSERT_TRUE(host::DialogUser::Choose(Combo(), 0));
    EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvTypeSelectedNotification"}));
}

TEST_F(OrvKvTypeSubTest, ListsTheTypesUnderTheirNamesInTheCatalogue) {
    BuiltPanel();
    EXPECT_EQ(SetTypes(1, 1, KeysOf({"Slot", "Hole"})), SuccessAfter(1));
    EXPECT_EQ(LinesOf(Combo()), Lines({"Slot", "Plain hole"}));
}

TEST_F(OrvKvTypeSubTest, ShowsTheKeyOfATypeThatTheCatalogueDoesNotHave) {
    BuiltPanel();
    EXPECT_EQ(SetTypes(1, 1, KeysOf({"Unheard_Of", "Hole", "Lost"})), SuccessAfter(1));
    EXPECT_EQ(LinesOf(Combo()), Lines({"Unheard_Of", "Plain hole", "Lost"}));
}

TEST_F(OrvKvTypeSubTest, FillsThePlaceInADisplayNameWithTheWordName) {
    BuiltPanel();
    SetTypes(1, 1, KeysOf({"Named"}));
    EXPECT_EQ(LinesOf(Combo()), Lines({"Feature of Name kind"}));
}

TEST_F(OrvKvTypeSubTest, ANewListReplacesTheOldOne) {
    BuiltPanel();
    SetTypes(1, 1, KeysOf({"Slot", "Hole", "Named"}));
    SetTypes(2, 1, KeysOf({"Hole"}));
    EXPECT_EQ(LinesOf(Combo()), Lines({"Plain hole"}));
    SetTypes(2, 1, KeysOf({}));
    EXPECT_EQ(LinesOf(Combo()), Lines());
    EXPECT_EQ(Combo().GetSelect(), -1);
}

TEST_F(OrvKvTypeSubTest, SelectsTheTypeThatIsAskedForAndReportsItAsIfTheUserHadChosenIt) {
    BuiltPanel();
    SetTypes(3, 2, KeysOf({"Slot", "Hole"}));
    EXPECT_EQ(Combo().GetSelect(), 1);
    EXPECT_EQ(Command().Classes(), Classes({"OrvKvTypeSelectedNotification"}));
    EXPECT_EQ(LastChosen(), (ChosenType{3, 2, "Hole", "Plain hole"}));
}

TEST_F(OrvKvTypeSubTest, ATypeNumberOutsideTheListSelectsAndReportsNothing) {
    BuiltPanel();
    for (const int type : {0, -1, std::numeric_limits<int>::min(), 3, std::numeric_limits<int>::max()}) {
        EXPECT_EQ(SetTypes(1, type, KeysOf({"Slot", "Hole"})), SuccessIn(source)) << type;
        EXPECT_EQ(Combo().GetSelect(), -1) << type;
    }
    EXPECT_EQ(Command().TakeClasses(), Classes());
    SetTypes(1, 1, KeysOf({"Slot", "Hole"}));
    EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvTypeSelectedNotification"}));
}

TEST_F(OrvKvTypeSubTest, ANullListIsRefusedWithoutATraceAndLeavesEverythingAsItWas) {
    BuiltPanel();
    SetTypes(3, 2, KeysOf({"Slot", "Hole"}));
    Command().Forget();
    EXPECT_EQ(Observe([&] { return Panel().SetTypes(7, 1, nullptr); }), PlainFailure());
    EXPECT_EQ(LinesOf(Combo()), Lines({"Slot", "Plain hole"}));
    EXPECT_EQ(Combo().GetSelect(), 1);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    ASSERT_TRUE(host::DialogUser::Choose(Combo(), 0));
    EXPECT_EQ(LastChosen(), (ChosenType{3, 1, "Slot", "Slot"}));
}

TEST_F(OrvKvTypeSubTest, ListingTypesBeforeThePanelIsBuiltFails) {
    EXPECT_EQ(SetTypes(1, 1, KeysOf({"Hole"})), PlainFailure());
    BuiltPanel();
    EXPECT_EQ(SetTypes(1, 1, KeysOf({"Hole"})), SuccessAfter(1));
}

TEST_F(OrvKvTypeSubTest, AChoiceReportsGroupNumberKeyAndNameOfTheType) {
    BuiltPanel();
    SetTypes(4, 0, KeysOf({"Slot", "Unheard_Of", "Hole"}));
    ASSERT_TRUE(host::DialogUser::Choose(Combo(), 2));
    EXPECT_EQ(LastChosen(), (ChosenType{4, 3, "Hole", "Plain hole"}));
    ASSERT_TRUE(host::DialogUser::Choose(Combo(), 1));
    EXPECT_EQ(LastChosen(), (ChosenType{4, 2, "Unheard_Of", "Unheard_Of"}));
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"OrvKvTypeSelectedNotification", "OrvKvTypeSelectedNotification"}));
}

TEST_F(OrvKvTypeSubTest, ChoosingTheSameTypeAgainIsReportedAgain) {
    BuiltPanel();
    SetTypes(1, 0, KeysOf({"Slot", "Hole"}));
    ASSERT_TRUE(host::DialogUser::Choose(Combo(), 1));
    ASSERT_TRUE(host::DialogUser::Choose(Combo(), 1));
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"OrvKvTypeSelectedNotification", "OrvKvTypeSelectedNotification"}));
}

TEST_F(OrvKvTypeSubTest, TheNotificationIsSentByThePanelAndReachesTheCommandOnce) {
    BuiltPanel();
    SetTypes(1, 2, KeysOf({"Slot", "Hole"}));
    ASSERT_EQ(Command().Heard().size(), 1U);
    EXPECT_EQ(Command().Heard().front().sender, &Panel());
}

TEST_F(OrvKvTypeSubTest, TheNotificationGoesToTheFatherAndNotThroughThePanelItself) {
    delete _panel;
    auto* const panel = new ListeningPanel<OrvKvTypeSub>(MainWindow());
    _panel = panel;
    BuiltPanel();
    SetTypes(1, 2, KeysOf({"Slot", "Hole"}));
    EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvTypeSelectedNotification"}));
    EXPECT_EQ(panel->Count(), 0);
    Combo().SendNotification(panel, new OrvKvTypeSelectedNotification());
    EXPECT_EQ(panel->Count(), 1) << "one that is sent to the panel is counted";
}

TEST_F(OrvKvTypeSubTest, KeepsACopyOfTheKeys) {
    BuiltPanel();
    CATListValCATString keys = KeysOf({"Slot", "Hole"});
    SetTypes(1, 0, keys);
    keys[2] = "Changed";
    keys.RemovePosition(1);
    ASSERT_TRUE(host::DialogUser::Choose(Combo(), 1));
    EXPECT_EQ(LastChosen(), (ChosenType{1, 2, "Hole", "Plain hole"}));
}

TEST_F(OrvKvTypeSubTest, GroupNumbersArePassedOnAsTheyAre) {
    BuiltPanel();
    SetTypes(0, 1, KeysOf({"Hole"}));
    EXPECT_EQ(LastChosen(), (ChosenType{0, 1, "Hole", "Plain hole"}));
    SetTypes(2147483647, 1, KeysOf({"Hole"}));
    EXPECT_EQ(LastChosen(), (ChosenType{2147483647, 1, "Hole", "Plain hole"}));
}

TEST_F(OrvKvTypeSubTest, ALineWithoutAKeyIsNotReported) {
    BuiltPanel();
    SetTypes(1, 0, KeysOf({"Hole"}));
    Combo().SetLine("Stray line");
    ASSERT_TRUE(host::DialogUser::Choose(Combo(), 1));
    EXPECT_EQ(Command().TakeClasses(), Classes());
    ASSERT_TRUE(host::DialogUser::Choose(Combo(), 0));
    EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvTypeSelectedNotification"}));
}

TEST_F(OrvKvTypeSubTest, ANotificationWithoutASelectedLineIsNotReported) {
    BuiltPanel();
    SetTypes(1, 0, KeysOf({"Hole"}));
    CATNotification* const event = Combo().GetComboSelectNotification();
    event->AddRef();
    Combo().SendNotification(&Panel(), event);
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(OrvKvTypeSubTest, DisabledTypesCannotBeChosenUntilTheyAreEnabledAgain) {
    BuiltPanel();
    SetTypes(1, 0, KeysOf({"Slot", "Hole"}));
    Panel().DisableTypes(CATDlgDisable);
    EXPECT_EQ(Combo().GetSensitivity(), CATDlgDisable);
    EXPECT_FALSE(host::DialogUser::Choose(Combo(), 0));
    EXPECT_EQ(Command().TakeClasses(), Classes());
    Panel().DisableTypes(CATDlgEnable);
    EXPECT_EQ(Combo().GetSensitivity(), CATDlgEnable);
    EXPECT_TRUE(host::DialogUser::Choose(Combo(), 0));
    EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvTypeSelectedNotification"}));
}

TEST_F(OrvKvTypeSubTest, DisablingTypesOfAPanelThatIsNotBuiltHasNoEffect) {
    Panel().DisableTypes(CATDlgDisable);
    EXPECT_EQ(Panel().GetSensitivity(), CATDlgEnable);
    BuiltPanel();
    EXPECT_EQ(Combo().GetSensitivity(), CATDlgEnable);
}

TEST_F(OrvKvTypeSubTest, WithoutMemoryForTheNotificationNothingIsSentAndThePanelGoesOn) {
    BuiltPanel();
    SetTypes(1, 0, KeysOf({"Slot", "Hole"}));
    host::FaultPoints::FailCall(1, "notification allocation");
    ASSERT_TRUE(host::DialogUser::Choose(Combo(), 0));
    host::FaultPoints::Stop();
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_EQ(Combo().GetSelect(), 0);
    ASSERT_TRUE(host::DialogUser::Choose(Combo(), 1));
    EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvTypeSelectedNotification"}));
}

TEST_F(OrvKvTypeSubTest, WithoutMemoryForTheComboThePanelFailsAsBeforeItsBuilding) {
    host::FaultPoints::FailCall(1, "widget allocation");
    BuiltPanel();
    host::FaultPoints::Stop();
    EXPECT_TRUE(host::Inspector::Children(Panel()).empty());
    EXPECT_EQ(SetTypes(1, 1, KeysOf({"Hole"})), PlainFailure());
    Panel().DisableTypes(CATDlgDisable);
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(OrvKvTypeSubTest, LongListsKeepTheirOrderAndAnyText) {
    BuiltPanel();
    _resources.Write("German/OrvKvCustomisation.CATNls", "Hole = \"Bohrung Ø 6 – größer\";\n");
    host::MessageCatalogs::SetLanguage("German");
    CATListValCATString keys = KeysOf({"Hole", ""});
    for (int number = 3; number <= 1000; ++number) {
        CATUnicodeString key;
        key.BuildFromNum(number, "Type_%d");
        keys.Append(key.ConvertToChar());
    }
    EXPECT_EQ(SetTypes(1, 1000, keys), SuccessAfter(1));
    EXPECT_EQ(Combo().GetLineCount(), 1000);
    EXPECT_EQ(LinesOf(Combo())[0], "Bohrung Ø 6 – größer");
    EXPECT_EQ(LinesOf(Combo())[1], "");
    EXPECT_EQ(LastChosen(), (ChosenType{1, 1000, "Type_1000", "Type_1000"}));
    host::MessageCatalogs::SetLanguage("");
}

// A command may answer a choice by listing other types, from inside the notification.
class RefillingCommand : public CATCommand {
  public:
    explicit RefillingCommand(OrvKvTypeSub& ioPanel)
        : CATCommand(nullptr, "RefillingCommand"), _panel(ioPanel) {}

    CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification*) override {
        const CATListValCATString keys = KeysOf({"Slot"});
        if (_answers++ == 0)
            _panel.SetTypes(9, 1, &keys);
        return CATNotifDontTransmitToFather;
    }
    int Answers() const { return _answers; }

  private:
    OrvKvTypeSub& _panel;
    int _answers = 0;
};

TEST_F(OrvKvTypeSubTest, ACommandMayListOtherTypesWhileItHearsOfAChoice) {
    BuiltPanel();
    SetTypes(1, 0, KeysOf({"Hole", "Named"}));
    RefillingCommand command(Panel());
    host::Application::SetActiveCommand(&command);
    EXPECT_TRUE(host::DialogUser::Choose(Combo(), 1));
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(command.Answers(), 2);
    EXPECT_EQ(LinesOf(Combo()), Lines({"Slot"}));
    EXPECT_EQ(Combo().GetSelect(), 0);
}

TEST_F(OrvKvTypeSubTest, AnErrorThatTheCommandRaisesBecomesTheFailingResult) {
    BuiltPanel();
    RaisingCommand command;
    host::Application::SetActiveCommand(&command);
    const Report report = SetTypes(2, 1, KeysOf({"Slot", "Hole"}));
    host::Application::SetActiveCommand(&Command());
    Report expected = CaughtOfCommandIn(source, "OrvKvTypeSub::SetTypes");
    ++expected.returns; // that of the notification
    EXPECT_EQ(report, expected);
    EXPECT_EQ(LinesOf(Combo()), Lines({"Slot", "Plain hole"}));
    ASSERT_TRUE(host::DialogUser::Choose(Combo(), 1));
    EXPECT_EQ(LastChosen(), (ChosenType{2, 2, "Hole", "Plain hole"}));
}

TEST_F(OrvKvTypeSubTest, ADestroyedPanelTakesItsWidgetsAndCallbacksAlong) {
    BuiltPanel();
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), 1);
    const int before = host::CommandInspection::AnalyseCallbacks();
    delete _panel;
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(), before - 1);
    EXPECT_FALSE(Exists("TypeSelectCombo"));
}

TEST_F(OrvKvTypeSubTest, CopiesCarryTheMembersOfTheOriginal) {
    BuiltPanel();
    SetTypes(5, 0, KeysOf({"Slot", "Hole"}));
    OrvKvTypeSub copy(Panel());
    copy.DisableTypes(CATDlgDisable); // reaches the combo that both share
    EXPECT_EQ(Combo().GetSensitivity(), CATDlgDisable);
    EXPECT_TRUE(host::Inspector::Children(copy).empty());

    auto* const other = new OrvKvTypeSub(MainWindow());
    other->DisableTypes(CATDlgEnable);
    EXPECT_EQ(Combo().GetSensitivity(), CATDlgDisable);
    *other = copy;
    other->DisableTypes(CATDlgEnable);
    EXPECT_EQ(Combo().GetSensitivity(), CATDlgEnable);
    delete other;
}

TEST_F(OrvKvTypeSubTest, HelpForTheComboIsThereInEveryLanguage) {
    BuiltPanel();
    std::vector<std::string> shortHelps;
    for (const char* language : {"", "German", "French", "Japanese"}) {
        host::MessageCatalogs::SetLanguage(language);
        EXPECT_GT(Combo().GetShortHelp().GetLengthInChar(), 0) << language;
        EXPECT_GT(Combo().GetLongHelp().GetLengthInChar(), 0) << language;
        EXPECT_GT(Combo().GetHelp().GetLengthInChar(), 0) << language;
        shortHelps.emplace_back(Combo().GetShortHelp().ConvertToChar());
    }
    host::MessageCatalogs::SetLanguage("");
    EXPECT_EQ(shortHelps, (std::vector<std::string>{"Feature type", "Featuretyp", "Type de fonction",
                                                    "フィーチャーのタイプ"}));
}

} // namespace
