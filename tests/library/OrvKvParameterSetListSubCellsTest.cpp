// The lines of the two tables: values, tolerances, and what happens with parameters that are none.

#include "OrvKvParameterSetListSubTest.h"
#include "StandInParameter.h"

#include "CATErrorMacros.h"
#include "CATICkeParm.h"
#include "CATIParmTolerance.h"
#include "CATInternalError.h"
#include "host/CommandInspection.h"
#include "host/DialogDump.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"
#include "host/LiveObjects.h"

#include <functional>
#include <limits>

namespace {

using namespace support;
using namespace parameterSetList;

const Shown editableValue{"D", 1, 1, 0, 0};
const Shown fixedValue{"D", 1, 0, 0, 0};
const Shown editableTolerance{"D", 0, 0, 1, 1};
const Shown fixedTolerance{"D", 0, 0, 1, 0};

class OrvKvParameterSetListSubCellsTest : public OrvKvParameterSetListSubTest {
  protected:
    // The cells that a set gets behind its name; both tables show the same.
    Texts CellsOf(const std::vector<Shown>& iShown, const Parameters& iParameters,
                  const Texts& iTolerances = {}) {
        MakeBuilt();
        SetNames(iShown);
        EXPECT_EQ(AddSet("set", iParameters, iTolerances), SuccessIn(source));
        EXPECT_EQ(SetCurrent("set", iParameters, iTolerances), SuccessIn(source));
        Texts cells = LineOf(SetTable(), 0);
        EXPECT_EQ(LineOf(CurrentTable(), 0), cells);
        delete _panel;
        EXPECT_EQ(cells[0], "set");
        cells.erase(cells.begin());
        return cells;
    }
    std::string CellOf(const Shown& iShown, const Parameters& iParameters, const Texts& iTolerances = {}) {
        return CellsOf({iShown}, iParameters, iTolerances)[0];
    }

    static CATBaseUnknown_var Tolerated(double iMaximum, double iMinimum) {
        const CATBaseUnknown_var length = Length(10);
        const CATIParmTolerance_var tolerance(length);
        tolerance->SetMaxTolerance(iMaximum);
        tolerance->SetMinTolerance(iMinimum);
        return length;
    }

    // Fills both tables with one set, lets both operations fail, and sees that nothing has changed.
    void ExpectRefused(const Shown& iShown, const CATBaseUnknown_var& iParameter, const Texts& iTolerances,
                       const std::string& iKey, const std::string& iCatalogue,
                       const Texts& iErrorParameters) {
        MakeBuilt();
        const Shown first{"first"};
        SetNames({first, iShown});
        AddSet("A", {Length(1), Tolerated(1, 0)});
        AddSet("B", {Length(2), Tolerated(2, 0)});
        SetCurrent("B", {Length(2), Tolerated(2, 0)});
        const std::string before = host::DialogDump::Of(*_panel, host::DialogDump::WithLayout);
        const Parameters parameters = {Length(3), iParameter};
        Texts tolerances = {""};
        tolerances.insert(tolerances.end(), iTolerances.begin(), iTolerances.end());
        EXPECT_EQ(AddSet("C", parameters, tolerances),
                  CaughtIn(source, "OrvKvParameterSetListSub::SetParameterSet", iKey, iCatalogue,
                           iErrorParameters));
        EXPECT_EQ(SetCurrent("A", parameters, tolerances),
                  CaughtIn(source, "OrvKvParameterSetListSub::SetCurrentParameters", iKey, iCatalogue,
                           iErrorParameters));
        EXPECT_EQ(host::DialogDump::Of(*_panel, host::DialogDump::WithLayout), before);
        EXPECT_EQ(AddSet("C", {Length(3), Tolerated(3, 0)}), SuccessIn(source));
        EXPECT_EQ(SetCurrent("C", {Length(3), Tolerated(3, 0)}), SuccessIn(source));
        EXPECT_EQ(SelectedLineOf(SetTable()), 2) << "a set that was refused has no line";
        delete _panel;
    }
};

TEST_F(OrvKvParameterSetListSubCellsTest, AValueIsShownAsThePersonReadsIt) {
    EXPECT_EQ(CellOf(editableValue, {Length(10)}), "10mm");
    EXPECT_EQ(CellOf(editableValue, {host::Parameters::NewAngle("A", 30.5)}), "30.5deg");
    EXPECT_EQ(CellOf(editableValue, {host::Parameters::NewReal("R", -2.5)}), "-2.5");
    EXPECT_EQ(CellOf(editableValue, {host::Parameters::NewBoolean("B", true)}), "true");
    EXPECT_EQ(CellOf(editableValue, {host::Parameters::NewString("S", "100 % (größer)\n/")}),
              "100 % (größer)\n/");
}

TEST_F(OrvKvParameterSetListSubCellsTest, AValueThatCannotBeEditedStandsInParentheses) {
    EXPECT_EQ(CellOf(fixedValue, {Length(10)}), "(10mm)");
    EXPECT_EQ(CellOf({"D", 1, -3, 0, 0}, {Length(10)}), "(10mm)");
    EXPECT_EQ(CellOf({"D", 1, 7, 0, 0}, {Length(10)}), "10mm");
    EXPECT_EQ(CellOf(fixedValue, {host::Parameters::NewString("S", "")}), "()");
}

TEST_F(OrvKvParameterSetListSubCellsTest, AToleranceTextIsShownAsItIs) {
    for (const std::string& text :
         Texts{"H7", "+0.1 / 0 (100 %d)", "größer\n公差 \U0001F529", " ", std::string(100000, 't')}) {
        EXPECT_EQ(CellOf(editableTolerance, {Tolerated(1, 0)}, {text}), text);
        EXPECT_EQ(CellOf(fixedTolerance, {Tolerated(1, 0)}, {text}), "(" + text + ")");
    }
}

TEST_F(OrvKvParameterSetListSubCellsTest, AToleranceIsEditableAboveZero) {
    EXPECT_EQ(CellOf({"D", 0, 0, 1, -1}, {Length(1)}, {"H7"}), "(H7)");
    EXPECT_EQ(CellOf({"D", 0, 0, 1, 9}, {Length(1)}, {"H7"}), "H7");
}

TEST_F(OrvKvParameterSetListSubCellsTest, WithoutATextTheLimitsOfTheParameterAreShownTheMaximumFirst) {
    EXPECT_EQ(CellOf(editableTolerance, {Tolerated(0.1, -0.05)}, {""}), "0.1/-0.05");
    EXPECT_EQ(CellOf(fixedTolerance, {Tolerated(0.1, -0.05)}, {""}), "(0.1/-0.05)");
    EXPECT_EQ(CellOf(editableTolerance, {Tolerated(-0.2, -0.1)}, {""}), "-0.2/-0.1")
        << "the maximum comes first, also when it is the lower one";
}

TEST_F(OrvKvParameterSetListSubCellsTest, AMinusZeroIsShownAsZero) {
    EXPECT_EQ(CellOf(editableTolerance, {host::Adopt(new FixedTolerance(1, -0.0, -0.0))}, {""}), "0/0");
}

TEST_F(OrvKvParameterSetListSubCellsTest, OnlyAToleranceOfKindOneHasLimits) {
    for (const int kind : {-1, 0, 2}) {
        const CATBaseUnknown_var tolerance = host::Adopt(new FixedTolerance(kind, 0.2, 0.1));
        EXPECT_EQ(CellOf(editableTolerance, {tolerance}, {""}), "") << kind;
        EXPECT_EQ(CellOf(fixedTolerance, {tolerance}, {""}), "()") << kind;
    }
}

TEST_F(OrvKvParameterSetListSubCellsTest, LimitsHaveSixDigitsThatCount) {
    EXPECT_EQ(CellOf(editableTolerance, {Tolerated(0.0, 0.0)}, {""}), "0/0");
    EXPECT_EQ(CellOf(editableTolerance, {Tolerated(0.1234567, -1e-7)}, {""}), "0.123457/-1e-07");
    EXPECT_EQ(CellOf(editableTolerance, {Tolerated(1234567, 0.1 + 0.2)}, {""}), "1.23457e+06/0.3");
}

TEST_F(OrvKvParameterSetListSubCellsTest, WithoutATextAndWithoutLimitsTheCellIsEmpty) {
    EXPECT_EQ(CellOf(editableTolerance, {Length(1)}, {""}), "");
    EXPECT_EQ(CellOf(fixedTolerance, {Length(1)}, {""}), "()");
}

TEST_F(OrvKvParameterSetListSubCellsTest, CellsComeInTheOrderOfTheColumns) {
    const std::vector<Shown> shown = {{"A", 1, 1, 1, 1}, {"B", 0, 1, 1, 1}, {"C", 0, 1, 0, 1},
                                      {"D", 1, 1, 0, 1}, {"E", 2, 1, 3, 1}, {"F", -1, 1, -1, 1}};
    const Parameters lengths = {Length(1), Length(2), Length(3), Length(4), Length(5), Length(6)};
    EXPECT_EQ(CellsOf(shown, lengths, {"a", "b", "c", "d", "e", "f"}),
              Texts({"1mm", "a", "b", "4mm", "5mm", "e"}));
}

TEST_F(OrvKvParameterSetListSubCellsTest, ListsThatAreTooShortLeaveTheirCellsEmpty) {
    const std::vector<Shown> fixed(2, Shown{"D", 1, 0, 1, 0});
    EXPECT_EQ(CellsOf(fixed, {}, {}), Texts({"", "", "", ""}));
    EXPECT_EQ(CellsOf(fixed, {Length(1)}, {"a"}), Texts({"(1mm)", "(a)", "", ""}));
    EXPECT_EQ(CellsOf(fixed, {Length(1), Length(2)}, {"a"}), Texts({"(1mm)", "(a)", "(2mm)", ""}));
    EXPECT_EQ(CellsOf(fixed, {Length(1)}, {"a", "b"}), Texts({"(1mm)", "(a)", "", "(b)"}));
    EXPECT_EQ(CellsOf(fixed, {Length(1)}, {"a", ""}), Texts({"(1mm)", "(a)", "", ""}));
}

TEST_F(OrvKvParameterSetListSubCellsTest, ListsThatAreTooLongAreReadAsFarAsThereAreColumns) {
    EXPECT_EQ(CellsOf({editableValue}, {Length(1), NULL_var, Length(3)}, {"a", "b", "c"}), Texts({"1mm"}));
}

TEST_F(OrvKvParameterSetListSubCellsTest, ASetNameIsKeptAsItIs) {
    MakeBuilt();
    SetNames({editableValue});
    const Texts names = {
        "größer", "100 %d", "(a)/b", "zwei\nZeilen", "", "表 \U0001F529", std::string(100000, 'n')};
    for (const std::string& name : names) {
        EXPECT_EQ(AddSet(name, {Length(1)}), SuccessIn(source));
        EXPECT_EQ(SetCurrent(name, {Length(1)}), SuccessIn(source));
        EXPECT_EQ(LineOf(CurrentTable(), 0), Texts({name, "1mm"}));
        EXPECT_EQ(SelectedName(), name);
        EXPECT_EQ(SelectedLineOf(SetTable()), SetTable().GetLineCount() - 1);
    }
    for (std::size_t line = 0; line < names.size(); ++line)
        EXPECT_EQ(LineOf(SetTable(), static_cast<int>(line)), Texts({names[line], "1mm"}));
}

TEST_F(OrvKvParameterSetListSubCellsTest, SetsAreAddedAtTheEnd) {
    MakeFilled({"B", "A", "C"});
    EXPECT_EQ(LineOf(SetTable(), 0), Texts({"B", "1mm"}));
    EXPECT_EQ(LineOf(SetTable(), 1), Texts({"A", "2mm"}));
    EXPECT_EQ(LineOf(SetTable(), 2), Texts({"C", "3mm"}));
    EXPECT_EQ(CurrentTable().GetLineCount(), 0);
    EXPECT_EQ(TakeTold(), Texts());
}

TEST_F(OrvKvParameterSetListSubCellsTest, BeforeThereAreColumnsASetIsItsName) {
    MakeBuilt();
    EXPECT_EQ(AddSet("A", {Length(1)}, {"a"}), SuccessIn(source));
    EXPECT_EQ(SetCurrent("A", {Length(1)}, {"a"}), SuccessIn(source));
    EXPECT_EQ(LineOf(SetTable(), 0), Texts({"A"}));
    EXPECT_EQ(LineOf(CurrentTable(), 0), Texts({"A"}));
    EXPECT_EQ(SelectedName(), "A");
}

TEST_F(OrvKvParameterSetListSubCellsTest, TheCurrentSetReplacesTheOneBeforeAndKeepsTwoVisibleLines) {
    MakeFilled({"A", "B"});
    SetCurrent("A", {Length(1)});
    CurrentTable().SetVisibleTextHeight(7);
    SetCurrent("B", {Length(2)});
    EXPECT_EQ(CurrentTable().GetLineCount(), 1);
    EXPECT_EQ(LineOf(CurrentTable(), 0), Texts({"B", "2mm"}));
    EXPECT_EQ(host::Inspector::VisibleTextHeight(CurrentTable()), 2);
    EXPECT_EQ(SetTable().GetLineCount(), 2);
}

TEST_F(OrvKvParameterSetListSubCellsTest, TheLineOfTheCurrentSetIsSelectedAndNobodyIsTold) {
    MakeFilled({"A", "B", "C"});
    SetCurrent("C");
    EXPECT_EQ(SelectedLineOf(SetTable()), 2);
    SetCurrent("A");
    EXPECT_EQ(SelectedLineOf(SetTable()), 0);
    EXPECT_EQ(TakeTold(), Texts());
}

TEST_F(OrvKvParameterSetListSubCellsTest, OfSetsWithOneNameTheFirstIsSelected) {
    MakeFilled({"A", "B", "B", "A"});
    SetCurrent("B");
    EXPECT_EQ(SelectedLineOf(SetTable()), 1);
    SetCurrent("A");
    EXPECT_EQ(SelectedLineOf(SetTable()), 0);
}

TEST_F(OrvKvParameterSetListSubCellsTest, ASetThatIsNotInTheTableLeavesTheSelectionAlone) {
    MakeFilled({"A", "B"});
    for (const char* name : {"a", "A ", "", "C"}) {
        EXPECT_EQ(SetCurrent(name), SuccessIn(source)) << name;
        EXPECT_EQ(SelectedLineOf(SetTable()), -1) << name;
        EXPECT_EQ(LineOf(CurrentTable(), 0)[0], name);
    }
    SetCurrent("B");
    SetCurrent("C");
    EXPECT_EQ(SelectedLineOf(SetTable()), 1);
}

TEST_F(OrvKvParameterSetListSubCellsTest, TheTablesDoNotFollowTheParameters) {
    MakeBuilt();
    SetNames({{"D", 1, 1, 1, 1}});
    const CATBaseUnknown_var length = Tolerated(0.1, 0);
    const int before = host::CommandInspection::Subscriptions();
    AddSet("A", {length}, {""});
    SetCurrent("A", {length}, {""});
    EXPECT_EQ(host::CommandInspection::Subscriptions(), before);
    EXPECT_EQ(host::CommandInspection::SubscriptionsOn(*length.Object()), 0);
    CATICkeParm_var(length)->Valuate(0.05);
    CATIParmTolerance_var(length)->Unset();
    EXPECT_EQ(LineOf(SetTable(), 0), Texts({"A", "10mm", "0.1/0"}));
    EXPECT_EQ(LineOf(CurrentTable(), 0), Texts({"A", "10mm", "0.1/0"}));
    SetCurrent("A", {length}, {""});
    EXPECT_EQ(LineOf(CurrentTable(), 0), Texts({"A", "50mm", ""})) << "the parameter has changed indeed";
}

TEST_F(OrvKvParameterSetListSubCellsTest, TheTablesStayAndWorkWhenTheirParametersAreDestroyed) {
    MakeBuilt();
    SetNames({{"D", 1, 1, 1, 1}});
    const std::size_t before = host::LiveObjects::All().size();
    {
        const CATBaseUnknown_var length = Tolerated(0.1, 0);
        AddSet("A", {length}, {""});
        SetCurrent("A", {length}, {""});
        EXPECT_GT(host::LiveObjects::All().size(), before);
    }
    EXPECT_EQ(host::LiveObjects::All().size(), before) << "the tables do not keep parameters";
    EXPECT_EQ(LineOf(SetTable(), 0), Texts({"A", "10mm", "0.1/0"}));
    EXPECT_EQ(LineOf(CurrentTable(), 0), Texts({"A", "10mm", "0.1/0"}));
    ASSERT_TRUE(host::DialogUser::Select(SetTable(), {0}));
    ASSERT_TRUE(host::DialogUser::Activate(CurrentTable(), 0, 2));
    Texts expected = ChoiceOf("A");
    expected.push_back("edit 'D' row -1 value 0 tolerance 1");
    EXPECT_EQ(TakeTold(), expected);
}

TEST_F(OrvKvParameterSetListSubCellsTest, AShownValueWithoutAParameterFailsAndChangesNothing) {
    CATBaseUnknown noParameter;
    for (const CATBaseUnknown_var& wrong : Parameters{NULL_var, &noParameter})
        ExpectRefused(editableValue, wrong, {"H7"}, "NullHandle", "CATSystem", {"CATICkeParm"});
}

TEST_F(OrvKvParameterSetListSubCellsTest, AToleranceWithoutTextNeedsAParameterThatCanHaveOne) {
    for (const CATBaseUnknown_var& wrong : Parameters{NULL_var, host::Parameters::NewReal("R", 1)})
        ExpectRefused(fixedTolerance, wrong, {""}, "NullHandle", "CATSystem", {"CATIParmTolerance"});
}

TEST_F(OrvKvParameterSetListSubCellsTest, WhatIsNotShownOrHasATextIsNotAskedFor) {
    EXPECT_EQ(CellsOf({{"D", 0, 1, 0, 1}}, {NULL_var}, {""}), Texts());
    EXPECT_EQ(CellOf(editableTolerance, {NULL_var}, {"H7"}), "H7");
    EXPECT_EQ(CellOf(editableValue, {host::Parameters::NewReal("R", 1)}, {""}), "1");
}

// Raises an object when it is asked for an interface.
class RaisingObject : public CATBaseUnknown {
  public:
    explicit RaisingObject(std::function<CATBaseUnknown*()> iRaised) : _raised(std::move(iRaised)) {}

    using CATBaseUnknown::QueryInterface;
    HRESULT QueryInterface(const IID&, void**) override { CATThrow(_raised()); }

  private:
    std::function<CATBaseUnknown*()> _raised;
};

TEST_F(OrvKvParameterSetListSubCellsTest, AnErrorThatAParameterRaisesBecomesTheFailingResult) {
    RaisingObject raising([] { return new CATInternalError("Error_InModel", "ModelCatalog"); });
    ExpectRefused(editableValue, &raising, {""}, "Error_InModel", "ModelCatalog", {});
    ExpectRefused(editableTolerance, &raising, {""}, "Error_InModel", "ModelCatalog", {});
}

TEST_F(OrvKvParameterSetListSubCellsTest, ARaisedObjectThatIsNoErrorPassesUnchanged) {
    CATBaseUnknown noError;
    RaisingObject raising([&noError] { return &noError; });
    MakeFilled({"A"});
    const std::string before = host::DialogDump::Of(*_panel, host::DialogDump::WithLayout);
    const auto raisedBy = [](const std::function<void()>& iCall) -> CATBaseUnknown* {
        try {
            iCall();
        } catch (CATBaseUnknown* raised) {
            return raised;
        }
        return nullptr;
    };
    EXPECT_EQ(raisedBy([&] { CallAddSet("B", {&raising}, {}); }), &noError);
    EXPECT_EQ(raisedBy([&] { CallSetCurrent("A", {&raising}, {}); }), &noError);
    EXPECT_EQ(host::DialogDump::Of(*_panel, host::DialogDump::WithLayout), before);
    EXPECT_EQ(Traces().Take(), TraceLines());
}

} // namespace
