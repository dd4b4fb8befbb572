// ISO 286 fits in the dialog of a parameter: what is offered, what follows the nominal size, and what is
// taken.

#include "CATDlgDialog.h"
#include "EditingTest.h"
#include "engineering/CatalogueLoader.h"
#include "host/DialogPath.h"
#include "host/DialogUser.h"

namespace command {

namespace {

using engineering::ToleranceClass;
using engineering::Value;
using Kind = engineering::Tolerance::Kind;

} // namespace

class FitEditingTest : public EditingTest {
  protected:
    // The value and the fit of a parameter: "11 H13"; limits as "11 +0.1/-0.1".
    std::string Held(const std::string& iParameter) {
        const engineering::ParameterValue held = Command().ValueOf(iParameter);
        const std::string value = TextOf(std::get<double>(*held.value));
        if (held.tolerance.kind == Kind::Limits)
            return value + " " + TextOf(held.tolerance.upper) + "/" + TextOf(held.tolerance.lower);
        return value + " " + held.tolerance.fitClass;
    }
    static bool CanChooseFit() {
        return host::DialogUser::CanSee(*host::DialogPath::Find("ISOFittingRdb").widget);
    }
    // T of the counterbore, with a tolerance, of that size.
    void EditLength(const std::string& iSize) {
        StartWithCounterbore();
        ASSERT_TRUE(Command().SetValue("T", iSize));
        ASSERT_TRUE(Edit("T"));
        ASSERT_TRUE(Check("ToleranceCkb"));
        TakeHeard();
    }

  private:
    static std::string TextOf(double iNumber) {
        CATUnicodeString text;
        text.BuildFromNum(iNumber, "%g");
        return text.ConvertToUTF8();
    }
};

TEST_F(FitEditingTest, AFitStartsWithTheUsualClassOfAHole) {
    EditLength("25");
    ASSERT_TRUE(Check("ISOFittingRdb"));
    EXPECT_EQ(Tolerance(), "fit|0.021mm|0mm|H|H7");
    EXPECT_EQ(RowOf("T"), "*|T|25mm|H7|Depth of the recess or groove");
}

TEST_F(FitEditingTest, AFitOfAShaftStartsWithItsUsualClass) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(ChooseGroup(3));
    ASSERT_TRUE(ChooseType(0)); // groove for a retaining ring on a shaft
    ASSERT_TRUE(ChooseText("ParameterSetCmb", LinesOf("ParameterSetCmb").back()));
    ASSERT_TRUE(Edit("D2"));
    const std::string before = Tolerance();
    EXPECT_EQ(before.substr(0, 4), "fit|") << before;
    ASSERT_TRUE(Check("PlusMinusRdb"));
    ASSERT_TRUE(Check("ISOFittingRdb"));
    EXPECT_NE(Tolerance().find("|h|h6"), std::string::npos) << Tolerance();
    const Texts groups = LinesOf("ToleranceGroupCmb");
    EXPECT_EQ(groups.front(), "a");
    EXPECT_EQ(groups.back(), "zc");
}

TEST_F(FitEditingTest, TheCommandHearsAndAnswersEachStep) {
    EditLength("25");
    ASSERT_TRUE(Check("ISOFittingRdb"));
    EXPECT_EQ(TakeHeardClasses(),
              Texts({"ParameterEditISOFitting", "ParameterEditISOFittingGroupSelect",
                     "ParameterEditISOFittingFieldSelect", "ModifiedParameterInMultiList"}));
    ASSERT_TRUE(ChooseText("ToleranceFieldCmb", "H8"));
    EXPECT_EQ(TakeHeardClasses(), Texts({"ParameterEditISOFittingFieldSelect", "ModifiedParameterInMultiList",
                                         "ParameterEditUpdateISOFittingValues"}));
}

TEST_F(FitEditingTest, OffersTheLettersAndClassesThatExistAtTheSize) {
    EditLength("20");
    ASSERT_TRUE(Check("ISOFittingRdb"));
    Texts letters = engineering::LettersOf(engineering::FitSide::Hole);
    std::erase(letters, "T"); // over 24 mm only
    EXPECT_EQ(LinesOf("ToleranceGroupCmb"), letters);
    ASSERT_TRUE(ChooseText("ToleranceGroupCmb", "J"));
    EXPECT_EQ(LinesOf("ToleranceFieldCmb"), Texts({"J6", "J7", "J8"}));
}

TEST_F(FitEditingTest, AnotherLetterKeepsTheGradeWhereItExists) {
    EditLength("25");
    ASSERT_TRUE(Check("ISOFittingRdb"));
    ASSERT_TRUE(ChooseText("ToleranceGroupCmb", "K"));
    EXPECT_EQ(Tolerance(), "fit|0.006mm|-0.015mm|K|K7");
    ASSERT_TRUE(ChooseFit("H", "H10"));
    ASSERT_TRUE(ChooseText("ToleranceGroupCmb", "J"));
    EXPECT_EQ(Tolerance(), "fit|0.02mm|-0.013mm|J|J8") << "the nearest grade";
    EXPECT_EQ(TakeMessages(), Texts()) << "that is what was asked for";
}

TEST_F(FitEditingTest, OkTakesTheFitOver) {
    EditLength("25");
    ASSERT_TRUE(Check("ISOFittingRdb"));
    ASSERT_TRUE(ChooseFit("P", "P8"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(RowOf("T"), "*|T|25mm|P8|Depth of the recess or groove");
    EXPECT_EQ(Held("T"), "25 P8");
    ASSERT_TRUE(Edit("T"));
    EXPECT_EQ(Tolerance(), "fit|-0.022mm|-0.055mm|P|P8");
}

TEST_F(FitEditingTest, DeviationsFollowTheNominalSize) {
    EditLength("25");
    ASSERT_TRUE(Check("ISOFittingRdb"));
    ASSERT_TRUE(Type("T", "30"));
    EXPECT_EQ(Tolerance(), "fit|0.021mm|0mm|H|H7") << "30 belongs to 18 to 30";
    ASSERT_TRUE(Type("T", "30.001"));
    EXPECT_EQ(Tolerance(), "fit|0.025mm|0mm|H|H7");
    ASSERT_TRUE(Type("T", "500"));
    EXPECT_EQ(Tolerance(), "fit|0.063mm|0mm|H|H7");
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Held("T"), "500 H7");
}

TEST_F(FitEditingTest, AFitFollowsTheValueWithoutItsDialogToo) {
    StartWithCounterbore();
    ASSERT_TRUE(Command().SetValue("D", "31"));
    EXPECT_EQ(RowOf("D"), "*|D|31mm|H13|Counterbore diameter");
    ASSERT_TRUE(Edit("D"));
    EXPECT_EQ(Tolerance(), "fit|0.39mm|0mm|H|H13");
}

TEST_F(FitEditingTest, LeavingTheRangeGoesToSymmetricAndBackInsideOffersFitsAgain) {
    EditLength("25");
    ASSERT_TRUE(Check("ISOFittingRdb"));
    ASSERT_TRUE(Type("T", "500.0001"));
    EXPECT_EQ(Tolerance(), "symmetric|0.1mm|-0.1mm");
    EXPECT_FALSE(CanChooseFit());
    EXPECT_EQ(RowOf("T"), "*|T|500mm|+0.1/-0.1|Depth of the recess or groove");
    ASSERT_TRUE(Type("T", "1.0001"));
    EXPECT_TRUE(CanChooseFit());
    EXPECT_EQ(Tolerance(), "symmetric|0.1mm|-0.1mm");
    ASSERT_TRUE(Type("T", "1"));
    EXPECT_FALSE(CanChooseFit());
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Held("T"), "1 0.1/-0.1");
}

TEST_F(FitEditingTest, ASizeWithoutFitsOffersNone) {
    for (const char* size : {"1", "600", "0"}) {
        SCOPED_TRACE(size);
        EditLength(size);
        EXPECT_EQ(Tolerance(), "symmetric|0.1mm|-0.1mm");
        EXPECT_FALSE(CanChooseFit());
        ASSERT_TRUE(Press(CATDlgWndOK));
    }
}

// Fits are defined down to 0 mm, but the panel offers them above 1 mm only.
TEST_F(FitEditingTest, AClassOfASmallSizeShowsItsLimitsAndStaysAClass) {
    StartWithCounterbore();
    ASSERT_TRUE(Command().SetValue("D", "0.8"));
    ASSERT_TRUE(Edit("D"));
    EXPECT_EQ(Tolerance(), "plus/minus|0.14mm|0mm");
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Held("D"), "0.8 H13");
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(Type("Max", "0.12"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Held("D"), "0.8 0.12/0");
}

TEST_F(FitEditingTest, AClassThatEndsWithTheSizeIsReplacedAndTheUserIsTold) {
    EditLength("30");
    ASSERT_TRUE(Check("ISOFittingRdb"));
    ASSERT_TRUE(ChooseFit("T", "T7"));
    ASSERT_TRUE(Type("T", "20"));
    EXPECT_EQ(TakeMessages(), Texts({"ISO 286 does not define T7 for 20mm. H7 takes its place."}));
    EXPECT_EQ(Tolerance(), "fit|0.021mm|0mm|H|H7");
    const Texts groups = LinesOf("ToleranceGroupCmb");
    EXPECT_EQ(std::count(groups.begin(), groups.end(), "T"), 0);
    ASSERT_TRUE(Type("T", "30"));
    EXPECT_EQ(LinesOf("ToleranceGroupCmb"), engineering::LettersOf(engineering::FitSide::Hole));
    EXPECT_EQ(Tolerance(), "fit|0.021mm|0mm|H|H7");
    EXPECT_EQ(TakeMessages(), Texts());
}

TEST_F(FitEditingTest, LeavingFitsDropsTheClass) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(Check("PlusMinusRdb"));
    EXPECT_EQ(RowOf("D"), "*|D|11mm|+0.1/-0.1|Counterbore diameter");
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Held("D"), "11 0.1/-0.1");
    ASSERT_TRUE(Edit("D"));
    EXPECT_EQ(Tolerance(), "symmetric|0.1mm|-0.1mm");
}

// Deviations that are those of a class by chance do not bring the class back.
TEST_F(FitEditingTest, TypedDeviationsStayDeviations) {
    EditLength("25");
    ASSERT_TRUE(Check("ISOFittingRdb"));
    ASSERT_TRUE(Check("PlusMinusRdb"));
    ASSERT_TRUE(Type("Max", "0.021"));
    ASSERT_TRUE(Type("Min", "0"));
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Held("T"), "25 0.021/0");
    EXPECT_EQ(RowOf("T"), "*|T|25mm|+0.021/0|Depth of the recess or groove");
}

TEST_F(FitEditingTest, UncheckingAndCheckingAgainBringsTheFitBack) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(ChooseText("ToleranceFieldCmb", "H9"));
    ASSERT_TRUE(Uncheck("ToleranceCkb"));
    EXPECT_EQ(RowOf("D"), "*|D|11mm||Counterbore diameter");
    ASSERT_TRUE(Check("ToleranceCkb"));
    EXPECT_EQ(Tolerance(), "fit|0.043mm|0mm|H|H9");
    EXPECT_EQ(RowOf("D"), "*|D|11mm|H9|Counterbore diameter");
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Held("D"), "11 H9");
}

TEST_F(FitEditingTest, AFitThatIsUncheckedDoesNotComeBackByItself) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(Uncheck("ToleranceCkb"));
    ASSERT_TRUE(Type("D", "12"));
    EXPECT_EQ(Tolerance(), "none");
    EXPECT_EQ(RowOf("D"), "*|D|12mm||Counterbore diameter");
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Held("D"), "12 ");
}

TEST_F(FitEditingTest, CheckingAgainAtAnotherSizeGivesTheDeviationsOfThatSize) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(Uncheck("ToleranceCkb"));
    ASSERT_TRUE(Type("D", "31"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    EXPECT_EQ(Tolerance(), "fit|0.39mm|0mm|H|H13");
}

TEST_F(FitEditingTest, CheckingAgainAtASizeWithoutFitsEndsAsSymmetric) {
    StartWithCounterbore();
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(Uncheck("ToleranceCkb"));
    ASSERT_TRUE(Type("D", "600"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    EXPECT_EQ(Tolerance(), "symmetric|0.1mm|-0.1mm");
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Held("D"), "600 0.1/-0.1");
}

TEST_F(FitEditingTest, AnAngleHasNoFits) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(ChooseType(2)); // countersink DIN 74
    ASSERT_TRUE(Edit("ALPHA"));
    EXPECT_FALSE(CanChooseFit());
    ASSERT_TRUE(Type("ALPHA", "60"));
    EXPECT_FALSE(CanChooseFit());
}

TEST_F(FitEditingTest, AClassOfALargeSizeHasNoLimitsAndComesBackWithTheSize) {
    StartWithCounterbore();
    ASSERT_TRUE(Command().SetValue("D", "600"));
    EXPECT_EQ(RowOf("D"), "*|D|600mm|H13|Counterbore diameter");
    ASSERT_TRUE(Edit("D"));
    EXPECT_EQ(Tolerance(), "none");
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Held("D"), "600 H13");
    ASSERT_TRUE(Command().SetValue("D", "11"));
    EXPECT_EQ(Held("D"), "11 H13");
    ASSERT_TRUE(Edit("D"));
    EXPECT_EQ(Tolerance(), "fit|0.27mm|0mm|H|H13");
}

TEST_F(FitEditingTest, CancelBringsAnUncheckedFitBack) {
    StartWithCounterbore();
    const std::string before = RowOf("D");
    ASSERT_TRUE(Edit("D"));
    ASSERT_TRUE(Uncheck("ToleranceCkb"));
    ASSERT_TRUE(Type("D", "31"));
    ASSERT_TRUE(Press(CATDlgWndCANCEL));
    EXPECT_EQ(RowOf("D"), before);
    EXPECT_EQ(Held("D"), "11 H13");
}

TEST_F(FitEditingTest, ACatalogueWithoutFitsKeepsItsClassesAsTexts) {
    const engineering::FeatureCatalogue plain{{"ScrewHoles"}, {*Shipped().Type("Counterbore")}};
    ASSERT_TRUE(Start(FeatureCommand::Mode::Parameters, plain));
    EXPECT_EQ(RowOf("D"), "|D|6.5mm|H13|Counterbore diameter");
    ASSERT_TRUE(Edit("D"));
    EXPECT_EQ(Tolerance(), "none");
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Held("D"), "6.5 H13");
}

TEST_F(FitEditingTest, ACatalogueWithoutFitsListsNone) {
    const engineering::FeatureCatalogue plain{{"ScrewHoles"}, {*Shipped().Type("Counterbore")}};
    ASSERT_TRUE(Start(FeatureCommand::Mode::Parameters, plain));
    ASSERT_TRUE(Edit("T"));
    ASSERT_TRUE(Check("ToleranceCkb"));
    ASSERT_TRUE(Check("ISOFittingRdb"));
    ASSERT_TRUE(Type("T", "5"));
    EXPECT_EQ(LinesOf("ToleranceGroupCmb"), Texts());
    EXPECT_EQ(Tolerance(), "fit|0.1mm|-0.1mm|-|-");
    ASSERT_TRUE(Press(CATDlgWndOK));
    EXPECT_EQ(Held("T"), "5 0.1/-0.1");
}

} // namespace command
