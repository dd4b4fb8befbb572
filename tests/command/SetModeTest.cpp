// The tables of parameter sets.

#include "CATDlgCombo.h"
#include "CATDlgMultiList.h"
#include "CommandTest.h"
#include "SampleTypes.h"
#include "host/DialogUser.h"

namespace command {

namespace {

using engineering::FeatureCatalogue;

HeardNotification Modified() {
    return {"OrvKvModifiedParameterInMultiListNotification", {{"parameterName", ""}}};
}

HeardNotification SetSelected(const char* iName) {
    return {"OrvKvParameterSetSelectedNotification", {{"parameterSetName", iName}}};
}

using AllHeard = std::vector<HeardNotification>;

} // namespace

class SetModeTest : public CommandTest {
  protected:
    void StartWithPlate() {
        ASSERT_TRUE(Start(FeatureCommand::Mode::Sets, _plates));
        TakeHeard();
    }

  private:
    FeatureCatalogue _plates{{"Mine"}, {Plate()}};
};

TEST_F(SetModeTest, ShowsEverySetOfTheTypeInColumns) {
    StartWithPlate();
    EXPECT_EQ(Columns("ParameterSetMul"), "Parameter Set Name|D|D_Tol|T|T_Tol|A|A_Tol|F|N|C|MARK");
    EXPECT_EQ(Columns("CurrentParameterMul"), Columns("ParameterSetMul"));
    EXPECT_EQ(Rows("ParameterSetMul"),
              Texts({"Small|6.35mm|0.254/-0.508|—|(—)|22.5deg|0/-1|0.1|-3|true|(ß /p1)",
                     "Large|25.4mm|H7|12mm|(H7)|0deg||1e-07|0|false|()"}));
}

TEST_F(SetModeTest, StartsWithTheFirstSetInTheLowerTable) {
    StartWithPlate();
    EXPECT_EQ(Rows("CurrentParameterMul"), Texts({Row("ParameterSetMul", 0)}));
    EXPECT_EQ(Command().SetName(), "Small");
    int selected = -1;
    List("ParameterSetMul").GetSelect(&selected, 1);
    EXPECT_EQ(selected, 0);
}

TEST_F(SetModeTest, ASelectedSetFillsTheLowerTable) {
    StartWithPlate();
    ASSERT_TRUE(SelectSet(1));
    EXPECT_EQ(Rows("CurrentParameterMul"), Texts({Row("ParameterSetMul", 1)}));
    EXPECT_EQ(Command().SetName(), "Large");
    EXPECT_EQ(TakeHeard(), AllHeard({SetSelected("Large"), Modified()}));
}

TEST_F(SetModeTest, ATypedValueChangesTheLowerTableAlone) {
    StartWithPlate();
    const Texts sets = Rows("ParameterSetMul");
    EXPECT_TRUE(Command().SetValue("D", "1 in"));
    EXPECT_EQ(Rows("CurrentParameterMul"),
              Texts({"Small|25.4mm|0.254/-0.508|—|(—)|22.5deg|0/-1|0.1|-3|true|(ß /p1)"}));
    EXPECT_EQ(Rows("ParameterSetMul"), sets);
    EXPECT_FALSE(Command().SetValue("D", "1 rad"));
    EXPECT_EQ(Row("CurrentParameterMul", 0).substr(0, 12), "Small|25.4mm");
}

TEST_F(SetModeTest, HidesTheComboOfSetsSinceTheTableStandsForIt) {
    StartWithPlate();
    EXPECT_FALSE(host::DialogUser::CanSee(Combo("ParameterSetCmb")));
    EXPECT_TRUE(host::DialogUser::CanSee(List("ParameterSetMul")));
    EXPECT_THROW(List("ParameterMul"), std::runtime_error);
}

TEST_F(SetModeTest, AnotherTypeBringsItsOwnColumns) {
    ASSERT_TRUE(Start(FeatureCommand::Mode::Sets));
    EXPECT_EQ(Columns("ParameterSetMul"), "Parameter Set Name|THREAD|DH_SERIES|DH|DH_Tol");
    ASSERT_TRUE(ChooseType(3));
    EXPECT_EQ(Columns("ParameterSetMul"),
              "Parameter Set Name|THREAD|DH|DH_Tol|DC|DC_Tol|T|T_Tol|ALPHA|ALPHA_Tol");
    EXPECT_EQ(Row("ParameterSetMul", 0).substr(0, 13), "ISO 15065 M2|");
}

TEST_F(SetModeTest, AGroupWithoutTypesLeavesEmptyTables) {
    const FeatureCatalogue catalogue({"Mine", "Empty"}, {Plate()});
    ASSERT_TRUE(Start(FeatureCommand::Mode::Sets, catalogue));
    EXPECT_EQ(Rows("ParameterSetMul").size(), 2U);
    ASSERT_TRUE(ChooseGroup(1));
    EXPECT_EQ(Rows("ParameterSetMul"), Texts());
    EXPECT_EQ(Rows("CurrentParameterMul"), Texts());
    EXPECT_EQ(Columns("ParameterSetMul"), "Parameter Set Name");
}

} // namespace command
