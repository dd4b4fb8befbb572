// Values that change while a mode is on: deviations that the user enters, and the nominal size.

#include "OrvKvToleranceSubModelTest.h"

#include "support/ParameterWatcher.h"

#include <limits>
#include <utility>

namespace {

using namespace support;
using namespace toleranceSub;

constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double infinite = std::numeric_limits<double>::infinity();

class OrvKvToleranceSubValuesTest : public OrvKvToleranceSubModelTest {
  protected:
    void MakePlusMinus() { MakeIn(PlusMinus); }
    void MakeSymmetric() { MakeIn(Symmetric); }
    double Nominal() const { return Stored(_parm); }
    static bool OffersFit() { return Fit().GetVisibility() == CATDlgShow; }
};

// ---- plus/minus: each deviation on its own

TEST_F(OrvKvToleranceSubValuesTest, InPlusMinusEachDeviationGoesIntoTheToleranceByItself) {
    StandIn();
    MakePlusMinus();
    ParameterWatcher watcher(_parm);
    Type(Maximum(), "0.25");
    EXPECT_EQ(TakeCalls(), Calls({"max = 0.25"}));
    EXPECT_EQ(State(), "0.25/-0.1 in 0.25/-0.1");
    Type(Minimum(), "-0.2");
    EXPECT_EQ(TakeCalls(), Calls({"min = -0.2"}));
    EXPECT_EQ(State(), "0.25/-0.2 in 0.25/-0.2");
    Spin(Maximum(), 2);
    EXPECT_EQ(TakeCalls(), Calls({"max = 0.35"}));
    Spin(Minimum(), -1);
    EXPECT_EQ(TakeCalls(), Calls({"min = -0.25"}));
    EXPECT_EQ(watcher.Take(), Events()) << "the parameter itself has not changed";
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvToleranceSubValuesTest, InPlusMinusAMaximumBelowTheMinimumIsAccepted) {
    MakePlusMinus();
    Type(Maximum(), "-0.5");
    EXPECT_EQ(State(), "-0.5/-0.1 in -0.5/-0.1");
    Type(Minimum(), "0.5");
    EXPECT_EQ(State(), "-0.5/0.5 in -0.5/0.5");
}

TEST_F(OrvKvToleranceSubValuesTest, AnEditorKeepsItsSensitivityWhateverWritingTheDeviationDoesToIt) {
    StandIn();
    MakePlusMinus();
    for (const CATULong sensitivity : {CATDlgEnable, CATDlgDisable}) {
        const CATULong other = sensitivity == CATDlgEnable ? CATDlgDisable : CATDlgEnable;
        Maximum().SetSensitivity(sensitivity);
        Minimum().SetSensitivity(sensitivity);
        _tolerance->onSet = [&] {
            Maximum().SetSensitivity(other);
            Minimum().SetSensitivity(other);
        };
        CATIParmEvents_var(MaxLiteral())->RaiseChange(1);
        EXPECT_EQ(Maximum().GetSensitivity(), sensitivity);
        EXPECT_EQ(Minimum().GetSensitivity(), other) << "the other one is not looked at";
        Minimum().SetSensitivity(sensitivity);
        CATIParmEvents_var(MinLiteral())->RaiseChange(1);
        EXPECT_EQ(Minimum().GetSensitivity(), sensitivity);
        EXPECT_EQ(Maximum().GetSensitivity(), other);
        _tolerance->onSet = nullptr;
    }
}

// ---- symmetric: the minimum follows

TEST_F(OrvKvToleranceSubValuesTest, InSymmetricModeTheMinimumFollowsAndTheMaximumIsWrittenFirst) {
    StandIn();
    MakeSymmetric();
    ParameterWatcher watcher(_parm);
    for (const auto& [typed, calls, state] :
         {std::tuple("0.3", Calls({"max = 0.3", "min = -0.3"}), "0.3/-0.3 in 0.3/-0.3"),
          std::tuple("-0.4", Calls({"max = -0.4", "min = 0.4"}), "-0.4/0.4 in -0.4/0.4"),
          std::tuple("0", Calls({"max = 0", "min = 0"}), "0/0 in 0/0")}) {
        Type(Maximum(), typed);
        EXPECT_EQ(TakeCalls(), calls);
        EXPECT_EQ(State(), state);
    }
    EXPECT_EQ(Minimum().Text(), "0mm");
    Spin(Maximum(), 1);
    EXPECT_EQ(TakeCalls(), Calls({"max = 0.05", "min = -0.05"}));
    EXPECT_EQ(watcher.Take(), Events());
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvToleranceSubValuesTest, InSymmetricModeTheMinimumTellsOfItselfBeforeTheToleranceIsWritten) {
    MakeSymmetric();
    ParameterWatcher watcher(MinLiteral());
    Texts states;
    watcher.onEvent = [&] { states.push_back(State()); };
    Type(Maximum(), "0.3");
    EXPECT_EQ(states, Texts({"0.3/-0.3 in 0.1/-0.1"}));
    EXPECT_EQ(watcher.Take(), Events({"value of Min"}));
}

TEST_F(OrvKvToleranceSubValuesTest, InSymmetricModeTheMinimumCannotBeEnteredAndIsDisabledAnew) {
    MakeSymmetric();
    EXPECT_EQ(Editable(), "max");
    EXPECT_FALSE(host::DialogUser::Type(Minimum(), "-0.5"));
    EXPECT_FALSE(host::DialogUser::Spin(Minimum(), 1));
    Minimum().SetSensitivity(CATDlgEnable);
    Type(Maximum(), "0.3");
    EXPECT_EQ(Editable(), "max");
    EXPECT_EQ(State(), "0.3/-0.3 in 0.3/-0.3");
}

TEST_F(OrvKvToleranceSubValuesTest, ASilentlyEnabledMinimumIsNotListenedToInSymmetricMode) {
    StandIn();
    MakeSymmetric();
    Minimum().SetSensitivity(CATDlgEnable);
    Type(Minimum(), "-0.7");
    EXPECT_EQ(TakeCalls(), Calls());
    EXPECT_EQ(State(), "0.1/-0.7 in 0.1/-0.1");
}

TEST_F(OrvKvToleranceSubValuesTest, NoDeviationIsListenedToInFitModeAndBeforeTheFirstMode) {
    StandIn();
    MakeBuilt();
    Type(Maximum(), "0.7");
    Type(Minimum(), "-0.7");
    EXPECT_EQ(TakeCalls(), Calls());
    Enter(Fit());
    EXPECT_FALSE(host::DialogUser::Type(Maximum(), "0.8"));
    Maximum().SetSensitivity(CATDlgEnable);
    Minimum().SetSensitivity(CATDlgEnable);
    Type(Maximum(), "0.8");
    Type(Minimum(), "-0.8");
    EXPECT_EQ(TakeCalls(), Calls());
    EXPECT_EQ(Said(), Texts());
}

// ---- what is typed

TEST_F(OrvKvToleranceSubValuesTest, ATextThatIsNoDeviationStaysWithItsReasonAndTheLastDeviationHolds) {
    StandIn();
    MakePlusMinus();
    SetValues(0.3, -0.2, 1, 1, 1);
    TakeCalls();
    ParameterWatcher watcher(MaxLiteral());
    for (const char* typed : {"abc", "", " ", "1/0", "0/0", "1e999", "-1e999", "nan", "inf", "5deg", "0.1rad",
                              "0,1,2", "--", "0.1 mmm", "3mm*2mm", "(0.1"}) {
        ASSERT_TRUE(host::DialogUser::Type(Maximum(), typed)) << typed;
        EXPECT_TRUE(Maximum().IsRefused()) << typed;
        EXPECT_NE(Maximum().Problem(), "") << typed;
        EXPECT_EQ(Maximum().Text(), typed);
        EXPECT_EQ(State(), "0.3/-0.2 in 0.3/-0.2") << typed;
    }
    EXPECT_EQ(watcher.Take(), Events());
    EXPECT_EQ(TakeCalls(), Calls());
    EXPECT_EQ(TakeMessages(), ShownMessages()) << "the reason stands beside the text";
    Type(Maximum(), "0.4");
    EXPECT_FALSE(Maximum().IsRefused());
    EXPECT_EQ(TakeCalls(), Calls({"max = 0.4"}));
}

TEST_F(OrvKvToleranceSubValuesTest, ARefusedTextGivesWayToTheNextDeviation) {
    MakePlusMinus();
    Type(Maximum(), "abc");
    ASSERT_TRUE(host::DialogUser::Restore(Maximum()));
    EXPECT_EQ(Maximum().Text(), "0.1mm");
    Type(Maximum(), "abc");
    Type(Minimum(), "-0.3");
    EXPECT_EQ(Maximum().Text(), "abc") << "the other editor has nothing to do with it";
    SetFittingVals(0.021, 0.0);
    EXPECT_EQ(Maximum().Text(), "0.021mm");
}

TEST_F(OrvKvToleranceSubValuesTest, ADeviationMayBeTypedInAnotherUnitOrComputed) {
    MakePlusMinus();
    for (const auto& [typed, state] :
         {std::pair("0.1cm", "1/-0.1 in 1/-0.1"), std::pair("0,15", "0.15/-0.1 in 0.15/-0.1"),
          std::pair("+0.2 mm", "0.2/-0.1 in 0.2/-0.1"), std::pair("1in", "25.4/-0.1 in 25.4/-0.1"),
          std::pair("0.1+0.2", "0.3/-0.1 in 0.3/-0.1"), std::pair("25e-3", "0.025/-0.1 in 0.025/-0.1"),
          std::pair("1e300", "1e+300/-0.1 in 1e+300/-0.1")}) {
        Type(Maximum(), typed);
        EXPECT_FALSE(Maximum().IsRefused()) << typed;
        EXPECT_EQ(State(), state) << typed;
    }
}

TEST_F(OrvKvToleranceSubValuesTest, ADeviationOfAnAngleIsAnAngle) {
    _given = host::Parameters::NewAngle("W", 30.0);
    MakePlusMinus();
    Type(Maximum(), "0.5");
    EXPECT_EQ(Maximum().Text(), "0.5deg");
    EXPECT_EQ(State(), "0.5/-0.1 in 0.5/-0.1");
    Type(Minimum(), "-0.5mm");
    EXPECT_TRUE(Minimum().IsRefused());
    EXPECT_EQ(State(), "0.5/-0.1 in 0.5/-0.1");
}

TEST_F(OrvKvToleranceSubValuesTest, DeviationsKeepEveryDigitThatWasEntered) {
    MakePlusMinus();
    Type(Maximum(), "0.123456789012345");
    EXPECT_EQ(CATIParmTolerance_var(_parm)->GetMaxTolerance(), 0.123456789012345);
    Enter(Symmetric());
    EXPECT_EQ(CATIParmTolerance_var(_parm)->GetMinTolerance(), -0.123456789012345);
}

// ---- the nominal size

TEST_F(OrvKvToleranceSubValuesTest, FitsAreOfferedAboveOneAndUpToFiveHundred) {
    for (const double outside : {1.0, 0.9999, 0.0, 500.0001, 501.0, 1e12}) {
        MakePlusMinus();
        ASSERT_TRUE(OffersFit());
        Change(outside);
        EXPECT_FALSE(OffersFit()) << outside;
        EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb") << outside;
        for (const double inside : {1.0001, 500.0, 20.0, 1.0000000000000002}) {
            Change(inside);
            EXPECT_TRUE(OffersFit()) << inside;
            EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb") << inside;
            Change(outside);
            EXPECT_FALSE(OffersFit()) << outside;
        }
        EXPECT_EQ(Said(), Texts());
    }
}

TEST_F(OrvKvToleranceSubValuesTest, ASizeInTheRangeLeavesEveryModeAsItIs) {
    for (const char* mode : {"PlusMinusRdb", "PlusMinusSymmetricalRdb", "ISOFittingRdb"}) {
        MakeBuilt();
        Enter(Widget<CATDlgRadioButton>(mode));
        const std::string before = State() + Editable();
        for (const double size : {1.0001, 500.0, 30.0}) {
            Change(size);
            EXPECT_EQ(Checked(), mode) << size;
            EXPECT_EQ(State() + Editable(), before) << size;
            EXPECT_TRUE(OffersFit()) << size;
        }
        Said();
    }
}

TEST_F(OrvKvToleranceSubValuesTest, ASizeOutsideTheRangeEndsAFit) {
    for (const double outside : {1.0, 500.0001}) {
        MakeChosen();
        Change(outside);
        EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb") << outside;
        EXPECT_FALSE(OffersFit()) << outside;
        EXPECT_EQ(State(), "0.1/-0.1 in 0.1/-0.1") << outside;
        EXPECT_EQ(Editable(), "max") << outside;
        EXPECT_EQ(Said(), Texts()) << "nothing is asked of the command";
        Change(20.0);
        EXPECT_TRUE(OffersFit());
        EXPECT_EQ(Said(), Texts());
    }
}

TEST_F(OrvKvToleranceSubValuesTest, ASizeOutsideTheRangeKeepsTheDeviationsOfPlusMinus) {
    MakePlusMinus();
    SetValues(0.3, -0.2, 1, 1, 1);
    Change(700.0);
    EXPECT_EQ(State(), "0.3/-0.3 in 0.3/-0.3");
    EXPECT_EQ(Editable(), "max");
    Enter(PlusMinus());
    Change(800.0);
    EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb") << "each change looks at the size";
}

TEST_F(OrvKvToleranceSubValuesTest, AHiddenPanelKeepsModeAndFitWhateverTheSize) {
    for (const char* mode : {"PlusMinusRdb", "PlusMinusSymmetricalRdb", "ISOFittingRdb"}) {
        MakeBuilt();
        Enter(Widget<CATDlgRadioButton>(mode));
        _panel->SetVisibility(CATDlgHide);
        const std::string before = State() + Editable();
        for (const double outside : {1.0, 0.0, 500.0001}) {
            Change(outside);
            EXPECT_EQ(Checked(), mode) << outside;
            EXPECT_TRUE(OffersFit()) << outside;
            EXPECT_EQ(State() + Editable(), before) << outside;
        }
        EXPECT_EQ(Said(), Texts()) << "an update neither";
        _panel->SetVisibility(CATDlgShow);
        EXPECT_EQ(Checked(), mode) << "only a change looks at the size";
        Change(700.0);
        EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb");
        EXPECT_FALSE(OffersFit());
        _panel->SetVisibility(CATDlgHide);
        Change(30.0);
        EXPECT_TRUE(OffersFit()) << "a size in the range brings fits back, hidden or not";
    }
}

TEST_F(OrvKvToleranceSubValuesTest, APanelThatIsHiddenWithItsParentCountsAsShown) {
    auto& parent = *new CATDlgFrame(MainWindow(), "Parent");
    _parm = host::Parameters::NewLength("D", 20.0);
    _panel = new OrvKvToleranceSub(&parent, _parm);
    _panel->Build();
    parent.SetVisibility(CATDlgHide);
    Change(0.5);
    EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb");
    EXPECT_FALSE(OffersFit());
}

TEST_F(OrvKvToleranceSubValuesTest, ASizeOutsideTheRangeChoosesTheFirstModeToo) {
    MakeBuilt();
    Change(0.5);
    EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb");
    EXPECT_EQ(State(), "0.1/-0.1 in 0.1/-0.1");
    EXPECT_EQ(Editable(), "max");
}

TEST_F(OrvKvToleranceSubValuesTest, ANegativeSizeBecomesZeroAfterTheModeHasFollowedAndTellsNobody) {
    MakePlusMinus();
    ParameterWatcher size(_parm);
    ParameterWatcher maximum(MaxLiteral());
    std::vector<double> sizes;
    bool offeredFit = false;
    maximum.onEvent = [&] {
        sizes.push_back(Nominal());
        offeredFit = OffersFit();
    };
    Change(-5.0);
    EXPECT_EQ(sizes, std::vector<double>({-5.0})) << "on the way into the symmetric mode";
    EXPECT_TRUE(offeredFit) << "on that way still";
    EXPECT_EQ(Nominal(), 0.0);
    EXPECT_EQ(size.Take(), Events({"value of D"}));
    EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb");
    EXPECT_FALSE(OffersFit());
}

TEST_F(OrvKvToleranceSubValuesTest, ANegativeSizeBecomesZeroInAHiddenPanelAndForAnAngleToo) {
    MakePlusMinus();
    _panel->SetVisibility(CATDlgHide);
    Change(-1e-9);
    EXPECT_EQ(Nominal(), 0.0);
    EXPECT_EQ(Checked(), "PlusMinusRdb");
    EXPECT_TRUE(OffersFit());
    Destroy();
    _given = host::Parameters::NewAngle("W", 30.0);
    MakePlusMinus();
    ASSERT_EQ(CATIParmAsStored_var(_parm)->SetValue(-30.0), S_OK);
    EXPECT_EQ(Nominal(), -30.0) << "without an event nobody looks";
    CATIParmEvents_var(_parm)->RaiseChange(1);
    EXPECT_EQ(Nominal(), 0.0);
}

TEST_F(OrvKvToleranceSubValuesTest, AnAngleIsNeverOfferedAFit) {
    for (const bool isInitialised : {true, false}) {
        _given = host::Parameters::NewAngle("W", 30.0);
        MakeBuilt();
        if (isInitialised) {
            EXPECT_EQ(_panel->InitTolerance(), S_OK);
        }
        Change(0.5);
        EXPECT_FALSE(OffersFit());
        EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb") << "the mode follows the number all the same";
        for (const double size : {30.0, 2.0, 500.0}) {
            Change(size);
            EXPECT_FALSE(OffersFit()) << size;
        }
    }
}

TEST_F(OrvKvToleranceSubValuesTest, ASizeThatIsNotFiniteIsRefusedAndNobodyHearsOfIt) {
    MakeChosen();
    ParameterWatcher watcher(_parm);
    for (const double bad : {notANumber, infinite, -infinite}) {
        EXPECT_EQ(_parm->Valuate(bad), E_FAIL) << bad;
        EXPECT_EQ(CATIParmAsStored_var(_parm)->SetValue(bad), E_FAIL) << bad;
    }
    EXPECT_EQ(Nominal(), 20.0);
    EXPECT_EQ(watcher.Take(), Events());
    EXPECT_EQ(Checked(), "ISOFittingRdb");
    EXPECT_EQ(Said(), Texts());
}

// ---- updates of a fit

TEST_F(OrvKvToleranceSubValuesTest, InFitModeASizeInTheRangeAsksForNewDeviations) {
    MakeChosen();
    for (const auto& [size, told] :
         {std::pair(30.0, "update 'H' 'H7' at 30"), std::pair(500.0, "update 'H' 'H7' at 500"),
          std::pair(1.0001, "update 'H' 'H7' at 1.0001"), std::pair(30.0, "update 'H' 'H7' at 30")}) {
        Change(size);
        EXPECT_EQ(Said(), Texts({told}));
    }
    CATIParmEvents_var(_parm)->RaiseChange(1);
    EXPECT_EQ(Said(), Texts({"update 'H' 'H7' at 30"})) << "the size may be the same";
    CATIParmEvents_var(_parm)->RaiseToleranceChange();
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvToleranceSubValuesTest, AnUpdateNamesWhatTheCombosShowAndThePanelRemembersWhatItDid) {
    MakeChosen();
    ChooseText(Groups(), "G");
    Said();
    Change(30.0);
    EXPECT_EQ(Said(), Texts({"update 'G' 'H7' at 30"}));
    EXPECT_EQ(Fitting(), "H|H7");
    Groups().ClearLine();
    Fields().ClearLine();
    Change(31.0);
    EXPECT_EQ(Said(), Texts({"update '' '' at 31"}));
    EXPECT_EQ(Fitting(), "H|H7");
}

TEST_F(OrvKvToleranceSubValuesTest, NoUpdateIsSentOutsideOfFitMode) {
    MakeChosen();
    for (CATDlgRadioButton* const mode : {&PlusMinus(), &Symmetric(), &PlusMinus()}) {
        Enter(*mode);
        Change(Nominal() + 1.0);
        EXPECT_EQ(Said(), Texts());
    }
    Enter(Fit());
    Change(40.0);
    EXPECT_EQ(Said(), Texts({"update 'H' 'H7' at 40"})) << "the combos still show them";
}

TEST_F(OrvKvToleranceSubValuesTest, AHiddenPanelInFitModeStillAsksForNewDeviations) {
    MakeChosen();
    _panel->SetVisibility(CATDlgHide);
    Change(40.0);
    EXPECT_EQ(Said(), Texts({"update 'H' 'H7' at 40"}));
    Change(700.0);
    EXPECT_EQ(Said(), Texts());
    Change(50.0);
    EXPECT_EQ(Said(), Texts({"update 'H' 'H7' at 50"}));
}

TEST_F(OrvKvToleranceSubValuesTest, DeviationsOfAFitAreShownBeforeTheMaximumAndThenTheMinimumIsWritten) {
    StandIn();
    MakeIn(Fit);
    Texts states;
    _tolerance->onSet = [&] { states.push_back(State()); };
    SetFittingVals(0.021, -0.008);
    _tolerance->onSet = nullptr;
    EXPECT_EQ(TakeCalls(), Calls({"max = 0.021", "min = -0.008"}));
    EXPECT_EQ(states, Texts({"0.021/-0.008 in none", "0.021/-0.008 in 0.021/0"}));
    Said();
}

// ---- how long the parameter is watched

TEST_F(OrvKvToleranceSubValuesTest, TheParameterIsWatchedOnceAndInFitModeTwice) {
    MakeBuilt();
    EXPECT_EQ(SubscriptionsOn(_parm), 1);
    for (int round = 0; round < 3; ++round) {
        for (CATDlgRadioButton* const mode : {&PlusMinus(), &Symmetric(), &PlusMinus()}) {
            Enter(*mode);
            EXPECT_EQ(SubscriptionsOn(_parm), 1);
            EXPECT_EQ(SubscriptionsOn(MaxLiteral()), 1);
            EXPECT_EQ(SubscriptionsOn(MinLiteral()), mode == &PlusMinus() ? 1 : 0);
        }
        Enter(Fit());
        EXPECT_EQ(SubscriptionsOn(_parm), 2);
        EXPECT_EQ(SubscriptionsOn(MaxLiteral()), 0);
        EXPECT_EQ(SubscriptionsOn(MinLiteral()), 0);
        Change(30.0 + round);
        EXPECT_EQ(Said().size(), 1U) << "one update for one change";
    }
}

} // namespace
