// Deviations that the command sets, and how the mode follows from those that the parameter has.

#include "OrvKvToleranceSubTest.h"

#include "StandInParameter.h"

#include "support/ParameterWatcher.h"

#include <limits>
#include <utility>

namespace {

using namespace support;
using namespace toleranceSub;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

class OrvKvToleranceSubDeviationsTest : public OrvKvToleranceSubTest {
  protected:
    // From now on each event of the parameter and of what is edited is noted with the state that it meets.
    // What was subscribed before has run by then.
    void Watch() {
        _watcher.Watch(_parm);
        _watcher.Watch(MaxLiteral());
        _watcher.Watch(MinLiteral());
        _watcher.onEvent = [this] { _seen.push_back(_watcher.Take().back() + ": " + State()); };
    }
    Texts Seen() { return std::exchange(_seen, {}); }

  private:
    ParameterWatcher _watcher;
    Texts _seen;
};

// ---- SetToleranceValues

TEST_F(OrvKvToleranceSubDeviationsTest, TheMinimumIsWrittenFirstThenTheMaximumThenTheParameterTellsOfIt) {
    MakeBuilt();
    Watch();
    EXPECT_EQ(SetValues(0.3, -0.2, 1, 1, 1).result, "S_OK");
    EXPECT_EQ(Seen(), Texts({"value of Min: 0/-0.2 in none", "value of Max: 0.3/-0.2 in 0/-0.2",
                             "value of D: 0.3/-0.2 in 0.3/-0.2"}));
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvToleranceSubDeviationsTest, TheMinimumStaysWhereItIsNotToBeWritten) {
    MakeBuilt();
    Watch();
    EXPECT_EQ(SetValues(0.3, -0.2, 1, 1, 0).result, "S_OK");
    EXPECT_EQ(Seen(), Texts({"value of Max: 0.3/0 in none", "value of D: 0.3/0 in 0.3/0"}));
}

TEST_F(OrvKvToleranceSubDeviationsTest, AnyFlagButZeroCounts) {
    MakeBuilt();
    Choose(PlusMinus());
    EXPECT_EQ(SetValues(0.3, -0.2, 255, 2, 255).result, "S_OK");
    EXPECT_EQ(State(), "0.3/-0.2 in 0.3/-0.2");
    EXPECT_EQ(Editable(), "max min");
}

TEST_F(OrvKvToleranceSubDeviationsTest, InPlusMinusEachDeviationIsWrittenByItsOwnEvent) {
    MakeBuilt();
    Choose(PlusMinus());
    Watch();
    SetValues(0.3, -0.2, 1, 1, 1);
    EXPECT_EQ(Seen(), Texts({"value of Min: 0.1/-0.2 in 0.1/-0.2", "value of Max: 0.3/-0.2 in 0.3/-0.2",
                             "value of D: 0.3/-0.2 in 0.3/-0.2"}));
}

TEST_F(OrvKvToleranceSubDeviationsTest, InSymmetricModeTheMaximumOverridesTheMinimum) {
    MakeBuilt();
    Choose(Symmetric());
    Watch();
    SetValues(0.3, -0.2, 1, 1, 1);
    EXPECT_EQ(Seen(), Texts({"value of Min: 0.1/-0.2 in 0.1/-0.1", "value of Min: 0.3/-0.3 in 0.1/-0.2",
                             "value of Max: 0.3/-0.3 in 0.3/-0.3", "value of D: 0.3/-0.3 in 0.3/-0.3"}));
    EXPECT_EQ(Editable(), "max");
}

TEST_F(OrvKvToleranceSubDeviationsTest, InFitModeNothingFollowsButAnUpdate) {
    MakeBuilt();
    Choose(Fit());
    Said();
    Watch();
    SetValues(0.3, -0.2, 1, 1, 1);
    EXPECT_EQ(Seen(), Texts({"value of Min: 0/-0.2 in none", "value of Max: 0.3/-0.2 in 0/-0.2",
                             "value of D: 0.3/-0.2 in 0.3/-0.2"}));
    EXPECT_EQ(Said(), Texts({"update '' '' at 20"}));
    EXPECT_EQ(Editable(), "") << "flags enable nothing";
}

TEST_F(OrvKvToleranceSubDeviationsTest, AFlagOfZeroDisablesItsEditorAndNoFlagEnablesOne) {
    MakeBuilt();
    Choose(PlusMinus());
    EXPECT_EQ(Editable(), "max min");
    SetValues(0.3, -0.2, 0, 1, 1);
    EXPECT_EQ(Editable(), "min");
    SetValues(0.3, -0.2, 1, 1, 1);
    EXPECT_EQ(Editable(), "min");
    SetValues(0.3, -0.2, 1, 0, 0);
    EXPECT_EQ(Editable(), "");
    SetValues(0.3, -0.2, 1, 1, 1);
    EXPECT_EQ(Editable(), "");
    EXPECT_EQ(State(), "0.3/-0.2 in 0.3/-0.2");
}

TEST_F(OrvKvToleranceSubDeviationsTest, EditorsShowTheDeviationsWithTheirUnit) {
    MakeBuilt();
    SetValues(0.025, -1.5, 1, 1, 1);
    EXPECT_EQ(Maximum().Text(), "0.025mm");
    EXPECT_EQ(Minimum().Text(), "-1.5mm");
    SetValues(0.0, -0.0, 1, 1, 1);
    EXPECT_EQ(Maximum().Text(), "0mm");
    EXPECT_EQ(Minimum().Text(), "0mm");
}

TEST_F(OrvKvToleranceSubDeviationsTest, AMaximumBelowTheMinimumIsTakenAsItIs) {
    MakeBuilt();
    Choose(PlusMinus());
    EXPECT_EQ(SetValues(-0.3, 0.2, 1, 1, 1).result, "S_OK");
    EXPECT_EQ(State(), "-0.3/0.2 in -0.3/0.2");
}

TEST_F(OrvKvToleranceSubDeviationsTest, ADeviationThatIsNotFiniteIsRefusedAndTheLastOneStays) {
    for (const double bad : {notANumber, infinite, -infinite}) {
        MakePlusMinus();
        EXPECT_EQ(CATIParmTolerance_var(_parm)->SetMaxTolerance(bad), E_FAIL);
        SetValues(0.3, -0.2, 1, 1, 1);
        EXPECT_EQ(SetValues(bad, -0.4, 1, 1, 1).result, "S_OK") << bad;
        EXPECT_EQ(State(), "0.3/-0.4 in 0.3/-0.4") << bad;
        EXPECT_EQ(SetValues(0.5, bad, 1, 1, 1).result, "S_OK") << bad;
        EXPECT_EQ(State(), "0.5/-0.4 in 0.5/-0.4") << bad;
        EXPECT_EQ(_panel->SetFittingVals(bad, bad), S_OK) << bad;
        EXPECT_EQ(State(), "0.5/-0.4 in 0.5/-0.4") << bad;
    }
}

// ---- SetFittingVals

TEST_F(OrvKvToleranceSubDeviationsTest, DeviationsOfAFitAreWrittenBeforeTheParameterAloneTellsOfThem) {
    MakeBuilt();
    Watch();
    EXPECT_EQ(SetFittingVals(0.021, -0.008).result, "S_OK");
    EXPECT_EQ(Seen(), Texts({"value of D: 0.021/-0.008 in 0.021/-0.008"}));
    EXPECT_EQ(Maximum().Text(), "0.021mm");
    EXPECT_EQ(Minimum().Text(), "-0.008mm");
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvToleranceSubDeviationsTest, DeviationsOfAFitDisableBothEditorsInEveryMode) {
    for (CATDlgRadioButton* (*const radio)() :
         {+[]() -> CATDlgRadioButton* { return nullptr; }, +[] { return &PlusMinus(); },
          +[] { return &Symmetric(); }, +[] { return &Fit(); }}) {
        MakeBuilt();
        CATDlgRadioButton* const mode = radio();
        if (mode != nullptr)
            Choose(*mode);
        Said();
        Watch();
        SetFittingVals(0.021, 0.008);
        EXPECT_EQ(Editable(), "");
        EXPECT_EQ(Seen(), Texts({"value of D: 0.021/0.008 in 0.021/0.008"})) << "in symmetric mode too";
        EXPECT_EQ(Said(), mode == &Fit() ? Texts({"update '' '' at 20"}) : Texts());
    }
}

TEST_F(OrvKvToleranceSubDeviationsTest, DeviationsOfAFitRunTheRuleOfTheNominalSize) {
    MakeBuilt();
    Choose(Fit());
    ASSERT_EQ(CATIParmAsStored_var(_parm)->SetValue(0.5), S_OK); // silently
    SetFittingVals(0.021, 0.0);
    EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb");
    EXPECT_EQ(State(), "0.1/-0.1 in 0.1/-0.1") << "leaving the fit resets them";
    EXPECT_EQ(Editable(), "") << "they are disabled at last";
}

// ---- the mode that the deviations ask for

TEST_F(OrvKvToleranceSubDeviationsTest, MinusZeroCountsAsZero) {
    const auto standIn = host::Adopt(new StandInParameter(host::Parameters::NewLength("D", 20.0)));
    for (const double maximum : {0.0, -0.0})
        for (const double minimum : {0.0, -0.0}) {
            standIn->tolerance = host::Adopt<CATIParmTolerance>(new FixedTolerance(1, maximum, minimum));
            MakeFor(standIn).Build();
            EXPECT_EQ(_panel->InitTolerance(), S_OK);
            EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb") << maximum << ' ' << minimum;
        }
}

TEST_F(OrvKvToleranceSubDeviationsTest, DeviationsThatAreNotSetAreNotSymmetric) {
    const auto standIn = host::Adopt(new StandInParameter(host::Parameters::NewLength("D", 20.0)));
    standIn->tolerance = host::Adopt<CATIParmTolerance>(new FixedTolerance(0, 0.1, -0.1));
    MakeFor(standIn).Build();
    EXPECT_EQ(_panel->InitTolerance(), S_OK);
    EXPECT_EQ(Checked(), "PlusMinusRdb");
}

TEST_F(OrvKvToleranceSubDeviationsTest, WithoutAToleranceInterfaceNothingIsSymmetric) {
    const auto standIn = host::Adopt(new StandInParameter(host::Parameters::NewLength("D", 20.0)));
    MakeFor(standIn);
    SetTolerance(0.1, -0.1);
    _panel->Build();
    standIn->missing = {IID_CATIParmTolerance};
    EXPECT_EQ(_panel->InitTolerance(), S_OK);
    EXPECT_EQ(Checked(), "PlusMinusRdb");
    EXPECT_EQ(TakeMessages().size(), 1U) << "the mode cannot be entered without it";
    EXPECT_EQ(Traces().Take(), CaughtTraces("OrvKvToleranceSub::OnPMSelect", "Error_NoInterface"));
    RunIdle();
}

} // namespace
