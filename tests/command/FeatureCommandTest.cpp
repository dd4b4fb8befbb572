#include "workbench/FeatureCommand.h"

#include "CATDlgCombo.h"
#include "CATDlgDialog.h"
#include "CommandTest.h"
#include "SampleTypes.h"
#include "host/DialogDump.h"
#include "host/DialogPath.h"
#include "host/DialogUser.h"
#include "host/EventScope.h"
#include "host/Inspector.h"
#include "host/Messages.h"
#include "support/GoldenFolder.h"

namespace command {

namespace {

using engineering::FeatureCatalogue;
using engineering::FeatureType;
using session::Json;

HeardNotification Heard(const char* iClass, Json iValues = Json::object()) {
    return {iClass, std::move(iValues)};
}

HeardNotification TypeSelected(int iGroup, int iType, const char* iKey, const char* iName) {
    return Heard("OrvKvTypeSelectedNotification",
                 {{"group", iGroup}, {"type", iType}, {"typeIdentifier", iKey}, {"typeName", iName}});
}

HeardNotification SetSelected(const char* iName) {
    return Heard("OrvKvParameterSetSelectedNotification", {{"parameterSetName", iName}});
}

using AllHeard = std::vector<HeardNotification>;

const HeardNotification threadPageMade =
    Heard("OrvKvThreadInitNotification",
          {{"initMode", true}, {"type", ""}, {"dimension", ""}, {"pitch", 0.0}, {"activateMode", false}});
const HeardNotification isValid = Heard("OrvKvTriggerStateChangeToValidNotification");

} // namespace

class FeatureCommandTest : public CommandTest {};

TEST_F(FeatureCommandTest, OpensWithTheFirstGroupTypeAndSet) {
    ASSERT_TRUE(Start());
    EXPECT_EQ(TakeHeard(), AllHeard({threadPageMade, Heard("OrvKvGroupChangedNotification", {{"group", 1}}),
                                     TypeSelected(1, 1, "ClearanceHole", "Clearance hole (ISO 273)"),
                                     SetSelected("ISO 273 M1.6 fine"), isValid}));
    EXPECT_EQ(LinesOf("GroupCmb"), Texts({"Screw holes and countersinks", "Threads and undercuts",
                                          "Centre holes and keyways", "Seal and ring grooves"}));
    EXPECT_EQ(Combo("GroupCmb").GetSelect(), 0);
    EXPECT_EQ(Command().CurrentState(), FeatureCommand::State::Running);
    EXPECT_EQ(Command().TypeKey(), "ClearanceHole");
    EXPECT_EQ(Command().SetName(), "ISO 273 M1.6 fine");
}

TEST_F(FeatureCommandTest, ShowsTheWholeDialogInBothModes) {
    ASSERT_TRUE(Start(FeatureCommand::Mode::Parameters));
    ASSERT_TRUE(ChooseType(1));
    ASSERT_TRUE(ChooseSet(1));
    EXPECT_TRUE(support::MatchesGolden("Command-parameters", host::DialogDump::OfAll()));
    ASSERT_TRUE(Start(FeatureCommand::Mode::Sets));
    ASSERT_TRUE(ChooseType(3));
    EXPECT_TRUE(support::MatchesGolden("Command-sets", host::DialogDump::OfAll()));
}

TEST_F(FeatureCommandTest, AnswersATypeWithItsSets) {
    ASSERT_TRUE(Start());
    TakeHeard();
    EXPECT_TRUE(ChooseType(2));
    EXPECT_EQ(LinesOf("ParameterSetCmb").size(), 31U);
    EXPECT_TRUE(ChooseSet(1));
    EXPECT_EQ(TakeHeard(), AllHeard({TypeSelected(1, 3, "CountersinkDin74", "Countersink (DIN 74)"),
                                     SetSelected(LinesOf("ParameterSetCmb")[0].c_str()), isValid,
                                     SetSelected(LinesOf("ParameterSetCmb")[1].c_str())}));
    EXPECT_EQ(Command().SetName(), LinesOf("ParameterSetCmb")[1]);
}

TEST_F(FeatureCommandTest, AnswersAGroupWithItsTypes) {
    ASSERT_TRUE(Start());
    TakeHeard();
    EXPECT_TRUE(ChooseGroup(3));
    EXPECT_EQ(
        LinesOf("TypeSelectCombo"),
        Texts({"Retaining ring groove on a shaft (DIN 471)", "Retaining ring groove in a bore (DIN 472)",
               "O-ring groove, radial sealing", "O-ring groove, axial sealing"}));
    EXPECT_EQ(TakeHeard()[0], Heard("OrvKvGroupChangedNotification", {{"group", 4}}));
    EXPECT_EQ(Command().TypeKey(), "RetainingRingGrooveShaft");
}

TEST_F(FeatureCommandTest, IsShownOnlyOnceItIsFilled) {
    ASSERT_TRUE(Start());
    EXPECT_TRUE(host::DialogUser::CanSee(Combo("GroupCmb")));
    EXPECT_EQ(host::Inspector::Windows().size(), 1U);
}

struct Ending {
    const char* name;
    host::Outcome (*end)(CATDlgDialog&);
    FeatureCommand::State state;
};

void PrintTo(const Ending& iEnding, std::ostream* ioStream) {
    *ioStream << iEnding.name;
}

class EndingTest : public CommandTest, public testing::WithParamInterface<Ending> {};

TEST_P(EndingTest, EndsTheCommandAndTakesTheDialogAway) {
    ASSERT_TRUE(Start());
    int ended = 0;
    Command().WhenEnded([&ended] { ++ended; });
    auto& dialog = dynamic_cast<CATDlgDialog&>(*host::DialogPath::Find("MainPanel").widget);
    EXPECT_TRUE(GetParam().end(dialog));
    EXPECT_EQ(ended, 1);
    EXPECT_EQ(Command().CurrentState(), GetParam().state);
    EXPECT_EQ(host::Inspector::Windows().size(), 0U);
    EXPECT_EQ(host::DialogPath::Find("MainPanel").widget, nullptr);
}

const Ending endings[] = {
    {"OK",
     [](CATDlgDialog& ioDialog) { return host::DialogUser::PressStandardButton(ioDialog, CATDlgWndOK); },
     FeatureCommand::State::Accepted},
    {"Cancel",
     [](CATDlgDialog& ioDialog) { return host::DialogUser::PressStandardButton(ioDialog, CATDlgWndCANCEL); },
     FeatureCommand::State::Cancelled},
    {"close box", [](CATDlgDialog& ioDialog) { return host::DialogUser::Close(ioDialog); },
     FeatureCommand::State::Cancelled},
    {"Escape", [](CATDlgDialog& ioDialog) { return host::DialogUser::PressEscape(ioDialog); },
     FeatureCommand::State::Cancelled},
};

INSTANTIATE_TEST_SUITE_P(Ways, EndingTest, testing::ValuesIn(endings));

TEST_F(FeatureCommandTest, EnterDoesNotEndIt) {
    ASSERT_TRUE(Start());
    auto& dialog = dynamic_cast<CATDlgDialog&>(*host::DialogPath::Find("MainPanel").widget);
    EXPECT_FALSE(host::DialogUser::PressEnter(dialog));
    EXPECT_EQ(Command().CurrentState(), FeatureCommand::State::Running);
}

// The place is remembered from one dialog to the next.
TEST_F(FeatureCommandTest, OpensWhereItWasMovedTo) {
    ASSERT_TRUE(Start());
    const auto place = [] {
        int x = 0;
        int y = 0;
        int height = 0;
        int width = 0;
        host::DialogPath::Find("MainPanel").widget->GetRectDimensions(&x, &y, &height, &width);
        return std::vector<int>{x, y, height, width};
    };
    EXPECT_EQ(place(), std::vector<int>({0, 0, 640, 670}));
    auto& dialog = dynamic_cast<CATDlgDialog&>(*host::DialogPath::Find("MainPanel").widget);
    EXPECT_TRUE(host::DialogUser::Move(dialog, 30, 40));
    ASSERT_TRUE(Start());
    EXPECT_EQ(place(), std::vector<int>({30, 40, 640, 670}));
}

TEST_F(FeatureCommandTest, LetsNotificationsThatAreNotItsOwnClimbOn) {
    ASSERT_TRUE(Start());
    TakeHeard();
    auto& dialog = dynamic_cast<CATDlgDialog&>(*host::DialogPath::Find("MainPanel").widget);
    EXPECT_TRUE(host::DialogUser::Resize(dialog, 700, 800));
    EXPECT_EQ(TakeHeard(), AllHeard({Heard("CATDlgWindSizeNotification")}));
    EXPECT_EQ(Command().CurrentState(), FeatureCommand::State::Running);
}

TEST_F(FeatureCommandTest, RefusesWhatIsNotThereAndStaysAsItIs) {
    ASSERT_TRUE(Start());
    TakeHeard();
    EXPECT_EQ(ChooseGroup(4).reason,
              "MainPanel/GroupFrm/OrvKvGroupAndGeometrySub/GroupCmb has no line 4, it has 4");
    EXPECT_EQ(ChooseSet(-1).reason,
              "MainPanel/GroupFrm/OrvKvTypeAndParameterSetSub/ParameterSetCmb has no line -1, it has 60");
    EXPECT_EQ(PressButton(CATDlgWndCLOSE).reason, "MainPanel has no button Close");
    EXPECT_EQ(TakeHeard(), AllHeard());
    EXPECT_EQ(Command().SetName(), "ISO 273 M1.6 fine");
    EXPECT_TRUE(ChooseSet(1));
    EXPECT_EQ(TakeHeard(), AllHeard({SetSelected("ISO 273 M1.6 medium")}));
}

TEST_F(FeatureCommandTest, AGroupWithoutTypesAndATypeWithoutSetsLeaveNothingOfTheOneBefore) {
    const FeatureType bare({"Bare", "Mine", "", ""}, {}, {}, {});
    const FeatureCatalogue catalogue({"Mine", "Empty"}, {Plate(), bare});
    ASSERT_TRUE(Start(FeatureCommand::Mode::Parameters, catalogue));
    EXPECT_EQ(LinesOf("TypeSelectCombo"), Texts({"Plate", "Bare"}));
    EXPECT_EQ(LinesOf("ParameterSetCmb"), Texts({"Small", "Large"}));
    EXPECT_EQ(Rows("ParameterMul").size(), 6U);
    EXPECT_TRUE(ChooseType(1));
    EXPECT_EQ(LinesOf("ParameterSetCmb"), Texts());
    EXPECT_EQ(Rows("ParameterMul"), Texts());
    EXPECT_EQ(Command().TypeKey(), "Bare");
    EXPECT_EQ(Command().SetName(), "");
    EXPECT_TRUE(ChooseType(0));
    EXPECT_EQ(Rows("ParameterMul").size(), 6U);
    EXPECT_TRUE(ChooseGroup(1));
    EXPECT_EQ(LinesOf("TypeSelectCombo"), Texts());
    EXPECT_EQ(Rows("ParameterMul"), Texts());
    EXPECT_EQ(Command().TypeKey(), "");
}

TEST_F(FeatureCommandTest, ACatalogueWithoutGroupsOpensAnEmptyDialog) {
    const FeatureCatalogue catalogue({}, {});
    for (const FeatureCommand::Mode mode : {FeatureCommand::Mode::Parameters, FeatureCommand::Mode::Sets}) {
        ASSERT_TRUE(Start(mode, catalogue));
        EXPECT_EQ(LinesOf("GroupCmb"), Texts());
        EXPECT_EQ(TakeHeard(), AllHeard({threadPageMade}));
        EXPECT_TRUE(PressButton(CATDlgWndCANCEL));
    }
}

} // namespace command
