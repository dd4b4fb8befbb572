// A parameter of the feature in its own dialog: value and tolerance, and what OK, Apply and Cancel do.

#include "CATDlgDialog.h"
#include "CATDlgMultiList.h"
#include "EditingTest.h"
#include "SampleTypes.h"
#include "host/DialogPath.h"
#include "host/DialogUser.h"
#include "host/FaultPoints.h"
#include "host/MessageCatalogs.h"

namespace command {

namespace {

using engineering::FeatureCatalogue;
using engineering::ParameterValue;
using engineering::Value;
using Kind = engineering::Tolerance::Kind;

ParameterValue WithLimits(double iValue, double iUpper, double iLower) {
    return {iValue, {Kind::Limits, {}, iUpper, iLower}};
}

ParameterValue Plain(double iValue) {
    return {iValue, {}};
}

ParameterValue WithFit(double iValue, const char* iClass) {
    return {iValue, {Kind::FitClass, iClass, 0, 0}};
}

} // namespace

namespace {

void ExpectSame(const ParameterValue& iFound, const ParameterValue& iExpected) {
    EXPECT_EQ(iFound.value, iExpected.value);
    EXPECT_EQ(iFound.tolerance.kind, iExpected.tolerance.kind);
    EXPECT_EQ(iFound.tolerance.fitClass, iExpected.tolerance.fitClass);
    EXPECT_EQ(iFound.tolerance.upper, iExpected.tolerance.upper);
    EXPECT_EQ(iFound.tolerance.lower, iExpected.tolerance.lower);
}

} // namespace

class ParameterEditingTest : public EditingTest {
  protected:
    void ExpectHeld(const std::string& iParameter, const ParameterValue& iExpected) {
        SCOPED_TRACE(iParameter);
        ExpectSame(Command().ValueOf(iParameter), iExpected);
    }
    void StartWithPlate(FeatureCommand::Mode iMode = FeatureCommand::Mode::Parameters) {
        ASSERT_TRUE(Start(iMode, _plates));
        TakeHeard();
    }
    bool IsRunning() { return Command().CurrentState() == FeatureCommand::State::Running; }

  private:
    FeatureCatalogue _plates{{"Mine"}, {Plate()}, {}, Shipped().Fits()};
};

TEST_F(ParameterEditingTest, ADoubleClickOpensADialogNamedAfterTheParameter) {
    StartWithCounterbore();
    EXPECT_FALSE(IsOpen());
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(IsOpen());
    EXPECT_NE(std::string(Panel().GetTitle().ConvertToUTF8()).find('T'), std::string::npos);
    EXPECT_EQ(ShownIn("T"), "6.4mm");
    const Texts heard = TakeHeardClasses();
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "ParameterListDoubleClicked"), 1);
}

TEST_F(ParameterEditingTest, AParameterWithoutToleranceOpensWithoutToleranceArea) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    EXPECT_EQ(Tolerance(), "none");
}

TEST_F(ParameterEditingTest, EveryKindOfToleranceOpensAsItIs) {
    StartWithPlate();
    ASSERT_TRUE(Edit("D"));
    EXPECT_EQ(Tolerance(), "plus/minus|0.254mm|-0.508mm");
    ASSERT_TRUE(Press(CATDlgWndCANCEL));
    ASSERT_TRUE(Edit("A"));
    EXPECT_EQ(Tolerance(), "plus/minus|0deg|-1deg");
    ASSERT_TRUE(Press(CATDlgWndCANCEL));
    ASSERT_TRUE(ChooseSet(1));
    ASSERT_TRUE(Edit("D"));
    EXPECT_EQ(Tolerance(), "fit|0.021mm|0mm|H|H7");
}

TEST_F(ParameterEditingTest, ASymmetricToleranceOpensAsSymmetric) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(ChooseType(2)); // countersink DIN 74
    ASSERT_TRUE(Edit("ALPHA"));
    EXPECT_EQ(Tolerance(), "symmetric|1deg|-1deg");
}

// The panel itself goes to its symmetric mode at such sizes.
TEST_F(ParameterEditingTest, TwoDeviationsOfASizeWithoutFitsOpenAsTheyAre) {
    StartWithPlate();
    for (const char* size : {"0.8", "1", "600"}) {
        SCOPED_TRACE(size);
        ASSERT_TRUE(Command().SetValue("D", size));
        const std::string before = RowOf("D");
        ASSERT_TRUE(Edit("D"));
        EXPECT_EQ(Tolerance(), "plus/minus|0.254mm|-0.508mm");
        ASSERT_TRUE(Press(CATDlgWndOK));
        EXPECT_EQ(RowOf("D"), before);
        EXPECT_EQ(Command().ValueOf("D").tolerance.lower, -0.508);
    }
}

TEST_F(ParameterEditingTest, ANegativeValueWithAToleranceOpensAsItIs) {
    StartWithPlate();
    ASSERT_TRUE(Command().SetValue("A", "-5"));
    const std::string before = RowOf("A");
    ASSERT_TRUE(Edit("A"));
    EXPECT_EQ(ShownIn("A"), "-5deg");
    EXPECT_EQ(Tolerance(), "plus/minus|0deg|-1deg");
    ASSERT_TRUE(Press(CATDlgWndOK));
    ExpectHeld("A", WithLimits(-5, 0, -1));
    EXPECT_EQ(RowOf("A"), before);
}

TEST_F(ParameterEditingTest, TakesANewValueOver) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Type("T", "0,7 cm"));
    EXPECT_EQ(RowOf("T"), "*|T|7mm||Depth of the recess or groove") << "the list follows at once";
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_FALSE(IsOpen());
    ExpectHeld("T", Plain(7));
}

TEST_F(ParameterEditingTest, TakesTypedDeviationsOver) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    EXPECT_EQ(Tolerance(), "plus/minus|0.1mm|-0.1mm");
    ASSERT_TRUE(Type("Max", "0.25"));
    ASSERT_TRUE(Type("Min", "0"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(RowOf("T"), "*|T|6.4mm|+0.25/0|Depth of the recess or groove");
    ExpectHeld("T", WithLimits(6.4, 0.25, 0));
}

TEST_F(ParameterEditingTest, StepsDeviationsByAFiveHundredthsOfAMillimetre) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Spin("Max", 1));
    ASSERT_TRUE(Spin("Min", 2));
    EXPECT_EQ(Tolerance(), "plus/minus|0.15mm|0mm");
    ASSERT_TRUE(Press(CATDlgWndOK));
    ExpectHeld("T", WithLimits(6.4, 0.15, 0));
}

TEST_F(ParameterEditingTest, TakesASymmetricToleranceOver) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Check("PlusMinusSymmetricalRdb"));
    ASSERT_TRUE(Type("Max", "0.3"));
    EXPECT_EQ(Tolerance(), "symmetric|0.3mm|-0.3mm");
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(RowOf("T"), "*|T|6.4mm|+0.3/-0.3|Depth of the recess or groove");
    ExpectHeld("T", WithLimits(6.4, 0.3, -0.3));
}

TEST_F(ParameterEditingTest, CancelBringsValueAndToleranceBack) {
    StartWithPlate();
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(Type("D", "8"));
    ASSERT_TRUE(Type("Max", "1"));
    ASSERT_TRUE(Type("Min", "-1"));
    ASSERT_TRUE(Check("ISOFittingRdb"));
    ASSERT_TRUE(Press(CATDlgWndCANCEL));
    EXPECT_FALSE(IsOpen());
    ExpectHeld("D", WithLimits(6.35, 0.254, -0.508));
    EXPECT_EQ(RowOf("D"), "|D|6.35mm|+0.254/-0.508|Counterbore diameter");
}

TEST_F(ParameterEditingTest, CancelBringsAFitBack) {
    StartWithCounterbore();
    const std::string before = RowOf("D");
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(Check("PlusMinusRdb"));
    ASSERT_TRUE(Type("D", "600"));
    ASSERT_TRUE(Press(CATDlgWndCANCEL));
    ExpectHeld("D", WithFit(11, "H13"));
    EXPECT_EQ(RowOf("D"), before);
    ASSERT_TRUE(Edit("D"));
    EXPECT_EQ(Tolerance(), "fit|0.27mm|0mm|H|H13");
}

TEST_F(ParameterEditingTest, CancelBringsANegativeValueBack) {
    StartWithCounterbore();
    ASSERT_TRUE(Command().SetValue("T", "-2"));
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Type("T", "-3"));
    EXPECT_EQ(ShownIn("T"), "0mm") << "the panel takes no negative value";
    ASSERT_TRUE(Press(CATDlgWndCANCEL));
    ExpectHeld("T", Plain(-2));
    EXPECT_EQ(RowOf("T"), "*|T|-2mm||Depth of the recess or groove");
}

TEST_F(ParameterEditingTest, EscapeAndTheCloseBoxCancel) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Type("T", "7"));
    ASSERT_TRUE(host::DialogUser::PressEscape(Panel()));
    EXPECT_FALSE(IsOpen());
    ExpectHeld("T", Plain(6.4));
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Type("T", "7"));
    ASSERT_TRUE(host::DialogUser::Close(Panel()));
    EXPECT_FALSE(IsOpen());
    ExpectHeld("T", Plain(6.4));
}

TEST_F(ParameterEditingTest, EnterAccepts) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Type("T", "7"));
    ASSERT_TRUE(host::DialogUser::PressEnter(Panel()));
    EXPECT_FALSE(IsOpen());
    ExpectHeld("T", Plain(7));
}

TEST_F(ParameterEditingTest, ApplyTakesOverAndStaysAndIsWhatCancelBringsBack) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Type("T", "7"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Type("Max", "0.2"));
    ASSERT_TRUE(Press(CATDlgWndAPPLY));
    ASSERT_TRUE(IsOpen());
    EXPECT_EQ(RowOf("T"), "*|T|7mm|+0.2/-0.1|Depth of the recess or groove");
    ASSERT_TRUE(Type("T", "9"));
    ASSERT_TRUE(Uncheck("ToleranceCkb"));
    ASSERT_TRUE(Press(CATDlgWndCANCEL));
    ExpectHeld("T", WithLimits(7, 0.2, -0.1));
    EXPECT_EQ(RowOf("T"), "*|T|7mm|+0.2/-0.1|Depth of the recess or groove");
}

TEST_F(ParameterEditingTest, UncheckingTakesTheToleranceAwayAtOnce) {
    StartWithPlate();
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(Uncheck("ToleranceCkb"));
    EXPECT_EQ(Tolerance(), "none");
    ExpectHeld("D", Plain(6.35));
    EXPECT_EQ(RowOf("D"), "*|D|6.35mm||Counterbore diameter");
    ASSERT_TRUE(Press(CATDlgWndOK));
    ExpectHeld("D", Plain(6.35));
}

TEST_F(ParameterEditingTest, CheckingAgainBringsTypedDeviationsBack) {
    StartWithPlate();
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(Type("Max", "0.3"));
    ASSERT_TRUE(Uncheck("ToleranceCkb"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    EXPECT_EQ(Tolerance(), "plus/minus|0.3mm|-0.508mm");
    ExpectHeld("D", WithLimits(6.35, 0.3, -0.508));
    EXPECT_EQ(RowOf("D"), "*|D|6.35mm|+0.3/-0.508|Counterbore diameter");
    ASSERT_TRUE(Type("Min", "-0.5"));
    ExpectHeld("D", WithLimits(6.35, 0.3, -0.5));
}

TEST_F(ParameterEditingTest, CheckingAgainBringsASymmetricToleranceBackAsOne) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Check("PlusMinusSymmetricalRdb"));
    ASSERT_TRUE(Type("Max", "0.3"));
    ASSERT_TRUE(Uncheck("ToleranceCkb"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    EXPECT_EQ(Tolerance(), "symmetric|0.3mm|-0.3mm");
    ASSERT_TRUE(Type("Max", "0.4"));
    ExpectHeld("T", WithLimits(6.4, 0.4, -0.4));
}

// The area goes by the deviations alone when it is shown again.
TEST_F(ParameterEditingTest, CheckingAgainShowsOppositeDeviationsAsSymmetric) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Uncheck("ToleranceCkb"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    EXPECT_EQ(Tolerance(), "symmetric|0.1mm|-0.1mm");
    ExpectHeld("T", WithLimits(6.4, 0.1, -0.1));
}

TEST_F(ParameterEditingTest, CheckingAgainRestoresOneSidedDeviationsOfASizeWithoutFits) {
    StartWithCounterbore();
    ASSERT_TRUE(Command().SetValue("T", "0.8"));
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    EXPECT_EQ(Tolerance(), "symmetric|0.1mm|-0.1mm");
    ASSERT_TRUE(Check("PlusMinusRdb"));
    ASSERT_TRUE(Type("Min", "0"));
    ASSERT_TRUE(Uncheck("ToleranceCkb"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    EXPECT_EQ(Tolerance(), "plus/minus|0.1mm|0mm");
    EXPECT_EQ(RowOf("T"), "*|T|0.8mm|+0.1/0|Depth of the recess or groove");
    ASSERT_TRUE(Press(CATDlgWndOK));
    ExpectHeld("T", WithLimits(0.8, 0.1, 0));
}

TEST_F(ParameterEditingTest, AMaximumBelowTheMinimumIsNotTaken) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Type("Max", "-0.2"));
    for (const CATULong button : {CATDlgWndOK, CATDlgWndAPPLY}) {
        ASSERT_TRUE(Press(button));
        EXPECT_TRUE(IsOpen());
        EXPECT_EQ(TakeMessages(),
                  Texts({"The upper deviation is below the lower one. Correct the deviations first."}));
    }
    ASSERT_TRUE(PressButton(CATDlgWndOK));
    EXPECT_TRUE(IsRunning()) << "nor is the feature";
    EXPECT_EQ(TakeMessages().size(), 1u);
    ASSERT_TRUE(Type("Max", "0.2"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    ExpectHeld("T", WithLimits(6.4, 0.2, -0.1));
}

TEST_F(ParameterEditingTest, ATextThatIsNoNumberStaysAndIsNotTaken) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Type("Max", "wide"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(TakeMessages(), Texts({"Correct the entry first: 'wide' is not a number"}));
    EXPECT_EQ(ShownIn("Max"), "wide");
    ExpectHeld("T", WithLimits(6.4, 0.1, -0.1));
    ASSERT_TRUE(Type("Max", "0.5"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    ExpectHeld("T", WithLimits(6.4, 0.5, -0.1));
}

TEST_F(ParameterEditingTest, CancelNeedsNoSoundText) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Type("T", "wide"));
    ASSERT_TRUE(Press(CATDlgWndCANCEL));
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TakeMessages(), Texts());
}

TEST_F(ParameterEditingTest, AnotherParameterTakesTheFirstOneOver) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Type("Max", "0.2"));
    ASSERT_TRUE(Edit("D"));
    EXPECT_EQ(ShownIn("D"), "11mm");
    EXPECT_EQ(Tolerance(), "fit|0.27mm|0mm|H|H13");
    ASSERT_TRUE(Press(CATDlgWndCANCEL));
    EXPECT_FALSE(IsOpen());
    ExpectHeld("T", WithLimits(6.4, 0.2, -0.1));
    EXPECT_EQ(RowOf("T"), "*|T|6.4mm|+0.2/-0.1|Depth of the recess or groove");
}

TEST_F(ParameterEditingTest, AnotherParameterWaitsWhileTheFirstOneCannotBeTaken) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Type("T", "wide"));
    ASSERT_TRUE(Edit("D"));
    EXPECT_EQ(ShownIn("T"), "wide");
    EXPECT_EQ(TakeMessages().size(), 1u);
}

TEST_F(ParameterEditingTest, TheSameParameterAgainGoesOn) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Type("T", "wide"));
    ASSERT_TRUE(Edit("T"));
    EXPECT_EQ(ShownIn("T"), "wide");
    EXPECT_EQ(TakeMessages(), Texts());
}

TEST_F(ParameterEditingTest, AnotherSetClosesThePanelAndItsValueHolds) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(Type("D", "12"));
    ASSERT_TRUE(ChooseText("ParameterSetCmb", "DIN 974-1 M3 series 1 fine"));
    EXPECT_FALSE(IsOpen());
    ExpectHeld("D", WithFit(6.5, "H13"));
}

TEST_F(ParameterEditingTest, AnotherTypeClosesThePanel) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(ChooseType(0));
    EXPECT_FALSE(IsOpen());
    ASSERT_TRUE(Edit("DH"));
    EXPECT_TRUE(IsOpen());
}

TEST_F(ParameterEditingTest, TheFeatureTakesWhatIsEditedWhenItIsAccepted) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Type("Max", "0.2"));
    ASSERT_TRUE(PressButton(CATDlgWndOK));
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Command().CurrentState(), FeatureCommand::State::Accepted);
    ExpectHeld("T", WithLimits(6.4, 0.2, -0.1));
}

TEST_F(ParameterEditingTest, TheFeaturesCancelClosesThePanelToo) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(PressButton(CATDlgWndCANCEL));
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(Command().CurrentState(), FeatureCommand::State::Cancelled);
}

TEST_F(ParameterEditingTest, AppliedValuesOfTheFeatureCarryNoMark) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Type("T", "7"));
    ASSERT_TRUE(PressButton(CATDlgWndAPPLY));
    EXPECT_TRUE(IsOpen());
    EXPECT_EQ(RowOf("T"), "|T|7mm||Depth of the recess or groove");
}

TEST_F(ParameterEditingTest, WhatADesignerMayNotChangeIsLocked) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("K"));
    EXPECT_FALSE(Type("K", "5"));
    EXPECT_FALSE(Check("ToleranceCkb"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    ExpectHeld("K", Plain(6));
}

TEST_F(ParameterEditingTest, OtherMagnitudesHaveAValueAlone) {
    StartWithPlate();
    ASSERT_TRUE(Edit("F"));
    EXPECT_FALSE(Check("ToleranceCkb"));
    ASSERT_TRUE(Type("F", "0.25"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Command().ValueOf("F").value, Value(0.25));
    ASSERT_TRUE(Edit("MARK"));
    EXPECT_EQ(ShownIn("MARK"), "ß /p1");
    EXPECT_FALSE(Type("MARK", "other"));
}

TEST_F(ParameterEditingTest, TheTableOfSetsOpensTheCellThatWasClicked) {
    StartWithPlate(FeatureCommand::Mode::Sets);
    CATDlgMultiList& table = List("CurrentParameterMul");
    ASSERT_TRUE(host::DialogUser::Activate(table, 0, 1)); // the value of D
    EXPECT_TRUE(Type("D", "8"));
    EXPECT_EQ(Tolerance(), "plus/minus|0.254mm|-0.508mm");
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Row("CurrentParameterMul", 0).substr(0, 27), "Small|8mm|0.254/-0.508|—|");
    ASSERT_TRUE(host::DialogUser::Activate(List("CurrentParameterMul"), 0, 2)); // its tolerance
    EXPECT_FALSE(Type("D", "9"));
    ASSERT_TRUE(Check("ISOFittingRdb"));
    ASSERT_TRUE(ChooseFit("H", "H8"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Row("CurrentParameterMul", 0).substr(0, 17), "Small|8mm|H8|—|");
    ExpectHeld("D", WithFit(8, "H8"));
}

// The table itself lets any tolerance be edited.
TEST_F(ParameterEditingTest, ALockedToleranceStaysLockedInTheTableOfSets) {
    StartWithPlate(FeatureCommand::Mode::Sets);
    ASSERT_TRUE(SelectSet(1));
    ASSERT_TRUE(host::DialogUser::Activate(List("CurrentParameterMul"), 0, 3)); // the value of T
    EXPECT_EQ(Tolerance(), "fit|0.018mm|0mm|H|H7");
    EXPECT_FALSE(Uncheck("ToleranceCkb"));
    EXPECT_FALSE(Check("PlusMinusRdb"));
    ASSERT_TRUE(Type("T", "31"));
    EXPECT_EQ(Tolerance(), "fit|0.025mm|0mm|H|H7") << "the fit follows the value all the same";
}

TEST_F(ParameterEditingTest, CancelBringsTheTableBack) {
    StartWithPlate(FeatureCommand::Mode::Sets);
    const Texts before = Rows("CurrentParameterMul");
    ASSERT_TRUE(host::DialogUser::Activate(List("CurrentParameterMul"), 0, 1));
    ASSERT_TRUE(Type("D", "8"));
    ASSERT_TRUE(Press(CATDlgWndCANCEL));
    EXPECT_EQ(Rows("CurrentParameterMul"), before);
}

TEST_F(ParameterEditingTest, WhatASetDoesNotTabulateCannotBeEdited) {
    StartWithPlate(FeatureCommand::Mode::Sets);
    ASSERT_TRUE(host::DialogUser::Activate(List("CurrentParameterMul"), 0, 3)); // T, a dash
    EXPECT_FALSE(IsOpen());
    EXPECT_EQ(TakeMessages(), Texts({"The parameter set does not tabulate T, so there is nothing to edit."}));
}

// What the program ships with: every parameter that has a row, of the first and the last set of each type.
TEST_F(ParameterEditingTest, OpeningAndClosingChangesNothing) {
    ASSERT_TRUE(Start());
    int opened = 0;
    for (std::size_t group = 0; group < Shipped().Groups().size(); ++group) {
        ASSERT_TRUE(ChooseGroup(static_cast<int>(group)));
        int line = 0;
        for (const std::string& key : *Shipped().TypesOf(Shipped().Groups()[group])) {
            SCOPED_TRACE(key);
            ASSERT_TRUE(ChooseType(line++));
            const engineering::FeatureType& type = *Shipped().Type(key);
            for (const std::size_t set : {std::size_t{0}, type.Sets().size() - 1}) {
                ASSERT_TRUE(ChooseSet(static_cast<int>(set)));
                ASSERT_TRUE(PressButton(CATDlgWndAPPLY));
                const Texts before = Rows("ParameterMul");
                for (const engineering::Parameter& parameter : type.Parameters())
                    for (const CATULong button : {CATDlgWndOK, CATDlgWndCANCEL}) {
                        if (RowOf(parameter.name).empty())
                            continue;
                        const ParameterValue held = Command().ValueOf(parameter.name);
                        ASSERT_TRUE(Edit(parameter.name));
                        ASSERT_TRUE(Press(button));
                        ExpectHeld(parameter.name, held);
                        EXPECT_EQ(Rows("ParameterMul"), before);
                        EXPECT_EQ(TakeMessages(), Texts());
                        ++opened;
                    }
            }
        }
    }
    EXPECT_GT(opened, 200);
}

TEST_F(ParameterEditingTest, CancelBringsTheRowBackAlsoWhereTheOldDeviationsWereTypedAgain) {
    StartWithPlate();
    const std::string before = RowOf("D");
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(Check("ISOFittingRdb"));
    ASSERT_TRUE(Check("PlusMinusRdb"));
    ASSERT_TRUE(Type("Max", "0.254"));
    ASSERT_TRUE(Type("Min", "-0.508"));
    ASSERT_TRUE(Press(CATDlgWndCANCEL));
    EXPECT_EQ(RowOf("D"), before);
}

TEST_F(ParameterEditingTest, ARefusedTextThatIsHiddenAgainIsNoObstacle) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Type("Max", "wide"));
    ASSERT_TRUE(Uncheck("ToleranceCkb"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(TakeMessages(), Texts());
    EXPECT_FALSE(IsOpen());
    ExpectHeld("T", Plain(6.4));
}

TEST_F(ParameterEditingTest, ARefusedTextGoesWithTheModeThatSetsTheDeviation) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Type("Min", "wide"));
    ASSERT_TRUE(Check("PlusMinusSymmetricalRdb"));
    EXPECT_EQ(Tolerance(), "symmetric|0.1mm|-0.1mm");
    ASSERT_TRUE(Check("PlusMinusRdb"));
    ASSERT_TRUE(Type("Max", "wide"));
    ASSERT_TRUE(Check("ISOFittingRdb"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(TakeMessages(), Texts());
    ExpectHeld("T", WithFit(6.4, "H7"));
}

TEST_F(ParameterEditingTest, AnotherCellTakesTheFirstOneIntoTheTableOfSets) {
    StartWithPlate(FeatureCommand::Mode::Sets);
    ASSERT_TRUE(host::DialogUser::Activate(List("CurrentParameterMul"), 0, 1)); // the value of D
    ASSERT_TRUE(Type("D", "8"));
    ASSERT_TRUE(Type("Max", "0.3"));
    ASSERT_TRUE(host::DialogUser::Activate(List("CurrentParameterMul"), 0, 5)); // that of A
    EXPECT_EQ(Row("CurrentParameterMul", 0).substr(0, 25), "Small|8mm|0.3/-0.508|—|");
    EXPECT_EQ(ShownIn("A"), "22.5deg");
}

TEST_F(ParameterEditingTest, ALockedToleranceStaysWhateverTheValueIs) {
    StartWithPlate();
    ASSERT_TRUE(ChooseSet(1));
    for (const char* size : {"600", "0.8", "12"}) {
        SCOPED_TRACE(size);
        ASSERT_TRUE(Edit("T"));
        ASSERT_TRUE(Type("T", size));
        ASSERT_TRUE(Press(CATDlgWndOK));
        ExpectHeld("T", WithFit(std::stod(size), "H7"));
    }
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Type("T", "600"));
    ASSERT_TRUE(Type("T", "14"));
    ASSERT_TRUE(Press(CATDlgWndAPPLY));
    EXPECT_EQ(Tolerance(), "plus/minus|0.018mm|0mm") << "the panel has left its fits";
    ExpectHeld("T", WithFit(14, "H7"));
    ASSERT_TRUE(Type("T", "31"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    ExpectHeld("T", WithFit(31, "H7"));
}

TEST_F(ParameterEditingTest, ALockedToleranceThatIsUntouchedIsShownAsBefore) {
    const ParameterValue symmetric = WithLimits(12, 0.1, -0.1);
    const engineering::FeatureType type{{"Plate", "Mine", "House rule 7", ""},
                                        {{"T", engineering::Magnitude::Length, "mm", {}, true, false, false}},
                                        {{"Only", {symmetric}}},
                                        {}};
    const FeatureCatalogue catalogue{{"Mine"}, {type}, {}, Shipped().Fits()};
    ASSERT_TRUE(Start(FeatureCommand::Mode::Parameters, catalogue));
    ASSERT_TRUE(Edit("T"));
    EXPECT_EQ(Tolerance(), "symmetric|0.1mm|-0.1mm");
    ASSERT_TRUE(Press(CATDlgWndAPPLY));
    EXPECT_EQ(Tolerance(), "symmetric|0.1mm|-0.1mm");
    ExpectHeld("T", symmetric);
}

TEST_F(ParameterEditingTest, AFeatureThatIsRefusedTakesNothingOverFromThePanel) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Type("T", "0"));
    ASSERT_FALSE(Command().IsValid());
    for (const CATULong button : {CATDlgWndOK, CATDlgWndAPPLY}) {
        ASSERT_TRUE(PressButton(button));
        EXPECT_EQ(TakeMessages().size(), 1u);
        EXPECT_TRUE(IsRunning());
    }
    ASSERT_TRUE(Press(CATDlgWndCANCEL));
    ExpectHeld("T", Plain(6.4));
}

// Elsewhere the application goes first, with its dialogs.
TEST_F(ParameterEditingTest, TheEndOfTheCommandLeavesAPanelThatDoesNoHarm) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("D"));
    EndCommand();
    EXPECT_TRUE(Type("D", "12"));
    EXPECT_TRUE(Uncheck("ToleranceCkb"));
    EXPECT_TRUE(Press(CATDlgWndOK));
}

TEST_F(ParameterEditingTest, SpeaksTheUsersLanguage) {
    host::MessageCatalogs::SetLanguage("German");
    StartWithCounterbore();
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Type("Max", "-0.2"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(TakeMessages(),
              Texts({"Das obere Abmaß liegt unter dem unteren. Bitte zuerst die Abmaße berichtigen."}));
    host::MessageCatalogs::SetLanguage("");
}

// Whatever call fails: the dialog is there or not, and feature and panel can be used and closed.
TEST_F(ParameterEditingTest, AnyCallThatFailsLeavesACommandThatCanBeUsed) {
    Allow(support::Leftover::LastError, "the failures that are asked for leave errors behind");
    StartWithCounterbore();
    const auto edit = [this] {
        static_cast<void>(Edit("D"));
        if (!IsOpen())
            return;
        for (const char* name : {"PlusMinusRdb", "ISOFittingRdb"})
            if (CATDialog* const button = host::DialogPath::Find(name).widget)
                static_cast<void>(host::DialogUser::Check(*button));
        EXPECT_TRUE(Press(CATDlgWndCANCEL));
        EXPECT_FALSE(IsOpen());
    };
    host::FaultPoints::StartCounting();
    edit();
    const int calls = host::FaultPoints::Passed();
    ASSERT_GT(calls, 50);
    for (int call = 1; call <= calls; ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        host::FaultPoints::FailCall(call);
        edit();
        TakeMessages();
    }
    host::FaultPoints::Stop();
    edit();
    EXPECT_TRUE(IsRunning());
}

} // namespace command
