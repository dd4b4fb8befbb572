// The parameter list of the feature that is edited.

#include "CATDlgCombo.h"
#include "CATDlgMultiList.h"
#include "CommandTest.h"
#include "SampleTypes.h"
#include "host/DialogUser.h"

namespace command {

namespace {

using engineering::FeatureCatalogue;
using session::Json;

HeardNotification Modified(const char* iName) {
    return {"OrvKvModifiedParameterInMultiListNotification", {{"parameterName", iName}}};
}

HeardNotification SetSelected(const char* iName) {
    return {"OrvKvParameterSetSelectedNotification", {{"parameterSetName", iName}}};
}

using AllHeard = std::vector<HeardNotification>;

} // namespace

class ParameterModeTest : public CommandTest {
  protected:
    // A counterbore, whose parameters a designer may change for the most part.
    void StartWithCounterbore() {
        ASSERT_TRUE(Start());
        ASSERT_TRUE(ChooseType(1));
        TakeHeard();
    }
    void StartWithPlate() {
        ASSERT_TRUE(Start(FeatureCommand::Mode::Parameters, _plates));
        TakeHeard();
    }

  private:
    FeatureCatalogue _plates{{"Mine"}, {Plate()}};
};

TEST_F(ParameterModeTest, ListsNamesValuesTolerancesAndDescriptions) {
    StartWithCounterbore();
    EXPECT_EQ(Rows("ParameterMul"),
              Texts({"|THREAD|(M3)||Thread designation",
                     "|SERIES|(1)||Series of the counterbore: 1 without, 5 with washer",
                     "|WASHER|(none)||Washer under the screw head",
                     "|DH_SERIES|(fine)||Series of the clearance hole: fine, medium or coarse",
                     "|DH|3.2mm|H12|Clearance hole diameter", "|D|6.5mm|H13|Counterbore diameter",
                     "|K|(3mm)||Greatest height of the screw head",
                     "|Z|(0.4mm)||Depth allowance over the screw head",
                     "|T|3.4mm||Depth of the recess or groove"}));
}

TEST_F(ParameterModeTest, HasNeitherTableNorButtonsOfSets) {
    ASSERT_TRUE(Start());
    EXPECT_TRUE(host::DialogUser::CanSee(Combo("ParameterSetCmb")));
    EXPECT_THROW(List("ParameterSetMul"), std::runtime_error);
}

TEST_F(ParameterModeTest, ASetChangesTheValuesAndMarksTheRowsThatDiffer) {
    StartWithCounterbore();
    ASSERT_TRUE(ChooseSet(1));
    EXPECT_EQ(Command().SetName(), "DIN 974-1 M3 series 1 medium");
    EXPECT_EQ(RowOf("DH_SERIES"),
              "*|DH_SERIES|(medium)||Series of the clearance hole: fine, medium or coarse");
    EXPECT_EQ(RowOf("DH"), "*|DH|3.4mm|H13|Clearance hole diameter");
    EXPECT_EQ(RowOf("D"), "|D|6.5mm|H13|Counterbore diameter");
    EXPECT_EQ(TakeHeard(), AllHeard({SetSelected("DIN 974-1 M3 series 1 medium")}));
}

TEST_F(ParameterModeTest, TheFirstSetAgainTakesTheMarksAway) {
    StartWithCounterbore();
    const Texts before = Rows("ParameterMul");
    ASSERT_TRUE(ChooseSet(1));
    EXPECT_NE(Rows("ParameterMul"), before);
    ASSERT_TRUE(ChooseSet(0));
    EXPECT_EQ(Rows("ParameterMul"), before);
}

TEST_F(ParameterModeTest, AnotherTypeStartsWithoutMarks) {
    StartWithCounterbore();
    ASSERT_TRUE(ChooseSet(1));
    ASSERT_TRUE(ChooseType(0));
    for (const std::string& row : Rows("ParameterMul"))
        EXPECT_EQ(row.front(), '|') << row;
    ASSERT_TRUE(ChooseType(1));
    for (const std::string& row : Rows("ParameterMul"))
        EXPECT_EQ(row.front(), '|') << row;
}

TEST_F(ParameterModeTest, ATypedValueIsShownMarkedAndReportedAndKeepsTheFit) {
    StartWithCounterbore();
    EXPECT_TRUE(Command().SetValue("DH", "3,5 mm"));
    EXPECT_EQ(RowOf("DH"), "*|DH|3.5mm|H12|Clearance hole diameter");
    EXPECT_EQ(TakeHeard(), AllHeard({Modified("DH")}));
    EXPECT_TRUE(Command().SetValue("DH", "3.2"));
    EXPECT_EQ(RowOf("DH"), "|DH|3.2mm|H12|Clearance hole diameter");
}

TEST_F(ParameterModeTest, ATypedValueThatIsNoneIsRefusedAndNothingChanges) {
    StartWithCounterbore();
    const Texts before = Rows("ParameterMul");
    EXPECT_FALSE(Command().SetValue("DH", "wide"));
    EXPECT_FALSE(Command().SetValue("DH", "3 deg"));
    EXPECT_EQ(Command().SetValue("NO", "3").reason, "The feature has no parameter 'NO'.");
    EXPECT_EQ(Rows("ParameterMul"), before);
    EXPECT_EQ(TakeHeard(), AllHeard());
}

TEST_F(ParameterModeTest, EveryMagnitudeIsShownInMillimetresAndDegrees) {
    StartWithPlate();
    EXPECT_EQ(Rows("ParameterMul"),
              Texts({"|D|6.35mm|+0.254/-0.508|Counterbore diameter",
                     "|A|22.5deg|0/-1|Length to add when the centre hole is cut off", "|F|0.1|| ",
                     "|N|-3||Least collar length beside the groove", "|C|true|| ", "|MARK|(ß /p1)|| "}));
}

// A parameter that the set leaves open has no row; the row comes with a set that has a value for it.
TEST_F(ParameterModeTest, AParameterThatIsNotTabulatedHasNoRow) {
    StartWithPlate();
    EXPECT_EQ(RowOf("T"), "");
    ASSERT_TRUE(ChooseSet(1));
    EXPECT_EQ(RowOf("T"), "*|T|12mm|(H7)|Depth of the recess or groove");
    ASSERT_TRUE(ChooseSet(0));
    EXPECT_EQ(RowOf("T"), "");
    EXPECT_EQ(Command().SetValue("T", "3").reason, "The feature has no parameter 'T'.");
}

TEST_F(ParameterModeTest, LimitsGiveWayToAFitAndComeBack) {
    StartWithPlate();
    ASSERT_TRUE(ChooseSet(1));
    EXPECT_EQ(RowOf("D"), "*|D|25.4mm|H7|Counterbore diameter");
    EXPECT_EQ(RowOf("A"), "*|A|0deg||Length to add when the centre hole is cut off");
    ASSERT_TRUE(ChooseSet(0));
    EXPECT_EQ(RowOf("D"), "|D|6.35mm|+0.254/-0.508|Counterbore diameter");
}

TEST_F(ParameterModeTest, ADoubleClickTellsWhatMayBeEdited) {
    StartWithPlate();
    EXPECT_TRUE(host::DialogUser::Activate(List("ParameterMul"), 1, 2));
    const AllHeard heard = TakeHeard();
    const AllHeard expected{{"CATDlgListSelectNotification", Json::object()},
                            {"OrvKvParameterListDoubleClickedNotification",
                             {{"parameterName", "A"},
                              {"rowIndex", 3},
                              {"editParameter", true},
                              {"editToleranceOrFitting", true}}}};
    ASSERT_GE(heard.size(), 2u);
    EXPECT_EQ(AllHeard(heard.begin(), heard.begin() + 2), expected);
}

} // namespace command
