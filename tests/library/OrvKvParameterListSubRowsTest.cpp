// The rows of the parameter list: which there are, and what stands in their cells.

#include "ParameterListTest.h"
#include "StandInParameter.h"

#include "CATDlgMultiList.h"
#include "host/Parameters.h"

namespace {

using namespace support;

class OrvKvParameterListSubRowsTest : public ParameterListTest {
  protected:
    OrvKvParameterListSubRowsTest() { MakeBuilt(); }

    // The row of one parameter D of 10 mm with the tolerance +0.1/-0.05.
    std::string RowOf(Listed iListed) {
        iListed.parameter = _diameter;
        iListed.name = "D";
        SetParameters({iListed});
        const Rows rows = ShownRows();
        return rows.empty() ? "no row" : rows.front();
    }

    CATICkeParm_var _diameter = Length("D", 10, 0.1, -0.05);
    CATICkeParm_var _depth = Length("T", 20);
};

TEST_F(OrvKvParameterListSubRowsTest, EachShownParameterHasARowInTheOrderOfTheList) {
    EXPECT_EQ(SetParameters({{.parameter = _depth, .name = "T"}, {.parameter = _diameter, .name = "D"}}),
              SuccessIn(parameterListSource));
    EXPECT_EQ(ShownRows(), Rows({"|T|20mm||Depth", "|D|10mm|+0.1/-0.05|Diameter"}));
    EXPECT_EQ(SubscriptionsOn(_diameter), 2);
    EXPECT_EQ(SubscriptionsOn(_depth), 2);
    EXPECT_EQ(List().GetVisibility(), CATDlgShow);
}

TEST_F(OrvKvParameterListSubRowsTest, AHiddenParameterHasNeitherRowNorSubscriptionAndLaterRowsCloseUp) {
    const CATICkeParm_var hidden = Length("H", 5);
    SetParameters({{.parameter = hidden, .name = "H", .valueShown = 0, .toleranceShown = 0},
                   {.parameter = _diameter, .name = "D"},
                   {.parameter = hidden, .name = "H", .valueShown = 0, .toleranceShown = 0},
                   {.parameter = _depth, .name = "T"}});
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter", "|T|20mm||Depth"}));
    EXPECT_EQ(SubscriptionsOn(hidden), 0);
    Change(_depth, 21);
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter", "|T|21mm||Depth"}));
}

TEST_F(OrvKvParameterListSubRowsTest, ARowNeedsAShownFlagOfOneOrMore) {
    const std::string row = "|D|10mm|+0.1/-0.05|Diameter";
    const std::string valueAlone = "|D|10mm||Diameter";
    const std::string toleranceAlone = "|D||+0.1/-0.05|Diameter";
    const struct {
        int valueShown;
        int toleranceShown;
        std::string row;
    } cases[] = {{0, 0, "no row"},
                 {-1, -1, "no row"},
                 {-1, 0, "no row"},
                 {0, -1, "no row"},
                 {1, 1, row},
                 {2, 2, row},
                 {1, 0, valueAlone},
                 {2, 0, valueAlone},
                 {1, -1, valueAlone},
                 {0, 1, toleranceAlone},
                 {-1, 1, toleranceAlone},
                 {0, 2, toleranceAlone}};
    for (const auto& each : cases) {
        EXPECT_EQ(RowOf({.valueShown = each.valueShown, .toleranceShown = each.toleranceShown}), each.row)
            << each.valueShown << ", " << each.toleranceShown;
        EXPECT_EQ(SubscriptionsOn(_diameter), each.row == "no row" ? 0 : 2);
    }
}

TEST_F(OrvKvParameterListSubRowsTest, AValueThatIsNotEditableStandsInParentheses) {
    EXPECT_EQ(RowOf({.valueEditable = 0}), "|D|(10mm)|+0.1/-0.05|Diameter");
    for (const int editable : {-1, 1, 2})
        EXPECT_EQ(RowOf({.valueEditable = editable}), "|D|10mm|+0.1/-0.05|Diameter") << editable;
}

TEST_F(OrvKvParameterListSubRowsTest, AToleranceTextStandsInItsColumnOrInPlaceOfTheValue) {
    for (const int editable : {-1, 1, 2})
        EXPECT_EQ(RowOf({.tolerance = "H7", .toleranceEditable = editable}), "|D|10mm|H7|Diameter")
            << editable;
    EXPECT_EQ(RowOf({.tolerance = "H7", .toleranceEditable = 0}), "|D|(H7)||Diameter");
    EXPECT_EQ(RowOf({.tolerance = "H7", .valueShown = 0, .toleranceEditable = 0}), "|D|(H7)||Diameter");
    EXPECT_EQ(RowOf({.tolerance = "H7", .valueEditable = 0, .toleranceEditable = 0}), "|D|(H7)||Diameter");
    EXPECT_EQ(RowOf({.tolerance = " ", .toleranceEditable = 1}), "|D|10mm| |Diameter");
    for (const int hidden : {-1, 0})
        EXPECT_EQ(RowOf({.tolerance = "H7", .toleranceShown = hidden}), "|D|10mm||Diameter") << hidden;
}

TEST_F(OrvKvParameterListSubRowsTest, WithoutAToleranceTextTheDeviationsOfTheParameterAreShown) {
    for (const int editable : {-1, 1, 2})
        EXPECT_EQ(RowOf({.toleranceEditable = editable}), "|D|10mm|+0.1/-0.05|Diameter") << editable;
    EXPECT_EQ(RowOf({.toleranceEditable = 0}), "|D|10mm|(+0.1/-0.05)|Diameter");
}

TEST_F(OrvKvParameterListSubRowsTest, WithoutAToleranceTheColumnIsEmptyOrHoldsAnEmptyPair) {
    SetParameters({{.parameter = _depth, .name = "T"},
                   {.parameter = _depth, .name = "T", .toleranceEditable = 0},
                   {.parameter = _depth, .name = "T", .toleranceShown = 0, .toleranceEditable = 0}});
    EXPECT_EQ(ShownRows(), Rows({"|T|20mm||Depth", "|T|20mm|()|Depth", "|T|20mm||Depth"}));
}

TEST_F(OrvKvParameterListSubRowsTest, DeviationsAreWrittenWithSixDigitsAndAPlusBeforeAPositiveMaximum) {
    const struct {
        double maximum;
        double minimum;
        const char* text;
    } cases[] = {{0.1, -0.05, "+0.1/-0.05"},
                 {0.021, 0.0, "+0.021/0"},
                 {0.0, -0.021, "0/-0.021"},
                 {0.2, 0.1, "+0.2/0.1"},
                 {-0.007, -0.02, "-0.007/-0.02"},
                 {-0.1, 0.1, "-0.1/0.1"},
                 {0.123456789, -1234567.0, "+0.123457/-1.23457e+06"},
                 {1e-7, 0.0, "+1e-07/0"},
                 {0.0, 1e-300, "0/1e-300"},
                 {0.0, 0.0, ""}};
    for (const auto& each : cases) {
        SetTolerance(_diameter, each.maximum, each.minimum);
        RowOf({});
        EXPECT_EQ(Cell(1, 3), each.text);
        RowOf({.toleranceEditable = 0});
        EXPECT_EQ(Cell(1, 3), "(" + std::string(each.text) + ")");
    }
}

TEST_F(OrvKvParameterListSubRowsTest, AnUnsetToleranceIsNone) {
    ASSERT_EQ(CATIParmTolerance_var(_diameter)->Unset(), S_OK);
    EXPECT_EQ(RowOf({}), "|D|10mm||Diameter");
}

TEST_F(OrvKvParameterListSubRowsTest, OnlyTheToleranceTypeOneIsATolerance) {
    const auto diameter = host::Adopt(new StandInParameter(_diameter));
    for (const int type : {-1, 0, 1, 2}) {
        diameter->tolerance = host::Adopt<CATIParmTolerance>(new FixedTolerance(type, 0.3, 0.2));
        SetParameters({{.parameter = diameter, .name = "D"}});
        EXPECT_EQ(Cell(1, 3), type == 1 ? "+0.3/0.2" : "") << type;
    }
}

TEST_F(OrvKvParameterListSubRowsTest, MinusZeroIsZero) {
    const auto diameter = host::Adopt(new StandInParameter(_diameter));
    const struct {
        double maximum;
        double minimum;
        const char* text;
    } cases[] = {{-0.0, -0.0, ""}, {-0.0, 0.0, ""}, {-0.0, -0.1, "0/-0.1"}, {0.1, -0.0, "+0.1/0"}};
    for (const auto& each : cases) {
        diameter->tolerance =
            host::Adopt<CATIParmTolerance>(new FixedTolerance(1, each.maximum, each.minimum));
        SetParameters({{.parameter = diameter, .name = "D"}});
        EXPECT_EQ(Cell(1, 3), each.text);
    }
}

TEST_F(OrvKvParameterListSubRowsTest, ParametersOfAllKindsAreShownAsTheyShowThemselves) {
    const CATICkeParm_var angle = host::Parameters::NewAngle("A", 45);
    SetTolerance(angle, 0.5, -0.5);
    SetParameters({{.parameter = angle, .name = "A"},
                   {.parameter = host::Parameters::NewReal("R", 2.5), .name = "R"},
                   {.parameter = host::Parameters::NewInteger("N", 4), .name = "N", .toleranceEditable = 0},
                   {.parameter = host::Parameters::NewBoolean("B", true), .name = "B", .valueEditable = 0},
                   {.parameter = host::Parameters::NewString("S", "größer 見"), .name = "S"}});
    EXPECT_EQ(ShownRows(),
              Rows({"|A|45deg|+0.5/-0.5| ", "|R|2.5|| ", "|N|4|()| ", "|B|(true)|| ", "|S|größer 見|| "}));
}

TEST_F(OrvKvParameterListSubRowsTest, AParameterWithoutADescriptionHasABlankInItsPlace) {
    SetParameters({{.parameter = _depth, .name = "T"},
                   {.parameter = _depth, .name = "Unheard"},
                   {.parameter = _depth, .name = "Unlucky"},
                   {.parameter = _depth, .name = "Blank"},
                   {.parameter = _depth, .name = ""}});
    EXPECT_EQ(Cell(1, 4), "Depth");
    EXPECT_EQ(Cell(2, 4), " ") << "not in the catalogue";
    EXPECT_EQ(Cell(3, 4), " ") << "the catalogue says that it is missing";
    EXPECT_EQ(Cell(4, 4), "") << "the catalogue has an empty text";
    EXPECT_EQ(Cell(5, 4), " ") << "a parameter without a name";
}

TEST_F(OrvKvParameterListSubRowsTest, WithoutTheDescriptionEverythingElseIsTheSame) {
    MakeBuilt(1);
    SetParameters({{.parameter = _diameter, .name = "D"},
                   {.parameter = _depth, .name = "T", .tolerance = "H7", .toleranceEditable = 0}});
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05", "|T|(H7)|"}));
}

TEST_F(OrvKvParameterListSubRowsTest, TheNameIsTheOneOfTheListAndNotThatOfTheParameter) {
    Panel().SetFeatureParameters(FeatureWith({"T"}));
    SetParameters({{.parameter = _diameter, .name = "T"}, {.parameter = _depth, .name = "Tiefe größer"}});
    EXPECT_EQ(ShownRows(), Rows({"*|T|10mm|+0.1/-0.05|Depth", "|Tiefe größer|20mm|| "}));
}

TEST_F(OrvKvParameterListSubRowsTest, ModifiedParametersAreMarkedAsLongAsThereIsAFeature) {
    const std::vector<Listed> both = {{.parameter = _diameter, .name = "D"},
                                      {.parameter = _depth, .name = "T"}};
    SetParameters(both);
    EXPECT_EQ(Cell(1, 0) + Cell(2, 0), "");
    const OrvIKvFeatureParameters_var feature = FeatureWith({"T"});
    Panel().SetFeatureParameters(feature);
    SetParameters(both);
    EXPECT_EQ(Cell(1, 0), "");
    EXPECT_EQ(Cell(2, 0), "*");
    feature->SetTemporarilyModified("D", 1);
    feature->SetTemporarilyModified("T", 0);
    SetParameters(both);
    EXPECT_EQ(Cell(1, 0), "*");
    EXPECT_EQ(Cell(2, 0), "");
    Panel().SetFeatureParameters(nullptr);
    SetParameters(both);
    EXPECT_EQ(Cell(1, 0) + Cell(2, 0), "");
}

TEST_F(OrvKvParameterListSubRowsTest, ANewListReplacesTheOldOne) {
    SetParameters(
        {{.parameter = _diameter, .name = "D", .tolerance = "H7"}, {.parameter = _depth, .name = "T"}});
    SetParameters({{.parameter = _depth, .name = "T"}});
    EXPECT_EQ(ShownRows(), Rows({"|T|20mm||Depth"}));
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
    EXPECT_EQ(SubscriptionsOn(_depth), 2);
    Change(_diameter, 11);
    EXPECT_EQ(TakeReported(), Reported());
    EXPECT_EQ(SetParameters({}), SuccessIn(parameterListSource));
    EXPECT_EQ(ShownRows(), Rows());
    EXPECT_EQ(SubscriptionsOn(_depth), 0);
    EXPECT_EQ(List().GetVisibility(), CATDlgShow);
}

TEST_F(OrvKvParameterListSubRowsTest, AParameterThatIsHiddenFromNowOnIsNotHeardAnyMore) {
    SetParameters({{.parameter = _diameter, .name = "D"}});
    SetParameters({{.parameter = _diameter, .name = "D", .valueShown = 0, .toleranceShown = 0}});
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
    EXPECT_EQ(ShownRows(), Rows());
}

TEST_F(OrvKvParameterListSubRowsTest, TheListIsHiddenWhileItIsFilled) {
    List().GetVisibilityNotification(); // asked for, and sent from now on
    SetParameters({{.parameter = _diameter, .name = "D"}});
    EXPECT_EQ(Command().TakeClasses(),
              Classes({"CATDlgVisibilityNotification", "CATDlgVisibilityNotification"}));
    const auto watched = host::Adopt(new StandInParameter(_depth));
    std::vector<CATULong> seen;
    watched->onShow = [&] { seen.push_back(List().GetVisibility()); };
    SetParameters({{.parameter = watched, .name = "T"}});
    EXPECT_EQ(seen, std::vector<CATULong>({CATDlgHide}));
    EXPECT_EQ(List().GetVisibility(), CATDlgShow);
}

TEST_F(OrvKvParameterListSubRowsTest, TheListsMayChangeAfterTheyWereHandedOver) {
    ParameterLists lists = ParameterLists::Of({{.parameter = _diameter, .name = "D"}});
    ASSERT_EQ(lists.HandTo(Panel()), S_OK);
    lists.names[1] = "changed";
    lists.valueEditable[1] = 0;
    lists.parameters.RemoveAll();
    Change(_diameter, 11);
    EXPECT_EQ(ShownRows(), Rows({"|D|11mm|+0.1/-0.05|Diameter"}));
    EXPECT_EQ(TakeReported(), Reported({"changed D"}));
}

TEST_F(OrvKvParameterListSubRowsTest, LongListsKeepTheirOrder) {
    std::vector<Listed> listed;
    for (int number = 1; number <= 2000; ++number)
        listed.push_back({.parameter = Length("P", number), .name = "P" + std::to_string(number)});
    EXPECT_EQ(SetParameters(listed), SuccessIn(parameterListSource));
    ASSERT_EQ(List().GetLineCount(), 2000);
    for (const int row : {1, 2, 999, 2000})
        EXPECT_EQ(Cell(row, 1) + " " + Cell(row, 2),
                  "P" + std::to_string(row) + " " + std::to_string(row) + "mm");
}

// Which of two parameters of one name a tolerance is taken from: the first, with the flags of the other.
TEST_F(OrvKvParameterListSubRowsTest, TheToleranceOfASecondParameterOfTheSameNameIsThatOfTheFirst) {
    const CATICkeParm_var second = Length("D", 12, 0.4, 0.3);
    SetParameters(
        {{.parameter = _diameter, .name = "D"}, {.parameter = second, .name = "D", .toleranceEditable = 0}});
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter", "|D|12mm|(+0.1/-0.05)|Diameter"}));
}

TEST_F(OrvKvParameterListSubRowsTest, AFitIsShownInTheToleranceColumnOfItsParameter) {
    SetParameters({{.parameter = _diameter, .name = "D"}, {.parameter = _depth, .name = "T"}});
    EXPECT_EQ(SetFittingInfo("T", "H7"), SuccessIn(parameterListSource));
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter", "|T|20mm|H7|Depth"}));
    EXPECT_EQ(SetFittingInfo("T", "g6"), SuccessIn(parameterListSource));
    EXPECT_EQ(SetFittingInfo("D", ""), SuccessIn(parameterListSource));
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm||Diameter", "|T|20mm|g6|Depth"}));
    EXPECT_EQ(TakeReported(), Reported());
}

TEST_F(OrvKvParameterListSubRowsTest, AFitIsShownWhateverTheFlagsAre) {
    RowOf({.toleranceShown = 0, .toleranceEditable = 0});
    SetFittingInfo("D", "H7");
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|H7|Diameter"}));
    MakeBuilt(1);
    RowOf({});
    SetFittingInfo("D", "H7");
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|H7"}));
}

TEST_F(OrvKvParameterListSubRowsTest, AFitOfAnUnknownOrHiddenParameterChangesNothingAndSucceeds) {
    SetParameters({{.parameter = _depth, .name = "T", .valueShown = 0, .toleranceShown = 0},
                   {.parameter = _diameter, .name = "D"}});
    for (const char* name : {"T", "d", "D ", "", "10mm"})
        EXPECT_EQ(SetFittingInfo(name, "H7"), SuccessIn(parameterListSource)) << name;
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|+0.1/-0.05|Diameter"}));
    SetFittingInfo("D", "H7");
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|H7|Diameter"}));
}

TEST_F(OrvKvParameterListSubRowsTest, AFitGoesToTheFirstRowOfItsNameAndNotToTheFirstPosition) {
    SetParameters({{.parameter = _diameter, .name = "D", .valueShown = 0, .toleranceShown = 0},
                   {.parameter = _depth, .name = "T"},
                   {.parameter = _depth, .name = "D"},
                   {.parameter = _depth, .name = "D"}});
    SetFittingInfo("D", "H7");
    EXPECT_EQ(Cell(1, 3), "");
    EXPECT_EQ(Cell(2, 3), "H7");
    EXPECT_EQ(Cell(3, 3), "+0.1/-0.05");
}

TEST_F(OrvKvParameterListSubRowsTest, AFitIsFoundInTheNewestListAlone) {
    SetParameters({{.parameter = _depth, .name = "T"}, {.parameter = _diameter, .name = "D"}});
    SetParameters({{.parameter = _diameter, .name = "D"}, {.parameter = _depth, .name = "S"}});
    SetFittingInfo("T", "H7");
    SetFittingInfo("D", "g6");
    EXPECT_EQ(ShownRows(), Rows({"|D|10mm|g6|Diameter", "|S|20mm|| "}));
}

TEST_F(OrvKvParameterListSubRowsTest, AParameterWithoutANameHasARowLikeAnyOther) {
    SetParameters({{.parameter = _diameter, .name = ""}});
    SetFittingInfo("", "H7");
    EXPECT_EQ(ShownRows(), Rows({"||10mm|H7| "}));
    Change(_diameter, 11);
    DoubleClick(1);
    EXPECT_EQ(TakeReported(), Reported({"changed ", "double click on  at 1, value 1, tolerance 1"}));
}

// Names, values, tolerance texts and fits of every look.
const std::string oddTexts[] = {" ",
                                "(D)",
                                "a/b\\c",
                                "100 % %s %n %d",
                                "/p1",
                                "two\r\nlines\twith a tab",
                                "\"quoted\"; 'too'",
                                "größer 直径 😀 e\u0301 \u202E \u00A0",
                                "\xFF\xC3",
                                "*resource error",
                                std::string(100000, 'x')};

TEST_F(OrvKvParameterListSubRowsTest, AnyTextStandsInItsCellAsItIs) {
    for (const std::string& text : oddTexts) {
        const CATICkeParm_var parameter = host::Parameters::NewString("S", text.c_str());
        SetParameters({{.parameter = parameter, .name = text, .tolerance = text},
                       {.parameter = parameter, .name = "F", .tolerance = text, .toleranceEditable = 0},
                       {.parameter = parameter, .name = "V", .valueEditable = 0}});
        EXPECT_EQ(ShownRows(), Rows({"|" + text + "|" + text + "|" + text + "| ", "|F|(" + text + ")|| ",
                                     "|V|(" + text + ")|| "}));
        SetFittingInfo("V", text.c_str());
        EXPECT_EQ(Cell(3, 3), text);
    }
}

TEST_F(OrvKvParameterListSubRowsTest, AParameterIsFoundByAnyName) {
    for (const std::string& name : oddTexts) {
        const std::string longer = name + "x";
        Panel().SetFeatureParameters(FeatureWith({name.c_str()}));
        SetParameters({{.parameter = _depth, .name = longer}, {.parameter = _diameter, .name = name}});
        EXPECT_EQ(Cell(1, 0) + Cell(2, 0), "*");
        EXPECT_EQ(SetFittingInfo(name.c_str(), "H7"), SuccessIn(parameterListSource));
        EXPECT_EQ(Cell(1, 3), "");
        EXPECT_EQ(Cell(2, 3), "H7");
        Change(_diameter, 11);
        EXPECT_EQ(Cell(2, 2), "11mm");
        DoubleClick(2);
        EXPECT_EQ(TakeReported(),
                  Reported({"changed " + name, "double click on " + name + " at 2, value 1, tolerance 1"}));
    }
}

TEST_F(OrvKvParameterListSubRowsTest, AnotherFeatureEndsAllSubscriptionsAndLeavesTheRows) {
    SetParameters({{.parameter = _diameter, .name = "D"}, {.parameter = _depth, .name = "T"}});
    const Rows rows = ShownRows();
    EXPECT_EQ(Observe([this] { return Panel().SetFeatureParameters(FeatureWith({"D"})); }), PlainSuccess());
    EXPECT_EQ(ShownRows(), rows);
    EXPECT_EQ(SubscriptionsOn(_diameter), 0);
    EXPECT_EQ(SubscriptionsOn(_depth), 0);
    Change(_diameter, 11);
    DoubleClick(2);
    EXPECT_EQ(SetFittingInfo("D", "H7"), SuccessIn(parameterListSource));
    EXPECT_EQ(ShownRows(), rows);
    EXPECT_EQ(TakeReported(), Reported());
    SetParameters({{.parameter = _diameter, .name = "D"}});
    EXPECT_EQ(ShownRows(), Rows({"*|D|11mm|+0.1/-0.05|Diameter"}));
}

} // namespace
