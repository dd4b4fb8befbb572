// Which mode the tolerance panel starts with.

#include "OrvKvToleranceSubTest.h"

namespace {

using namespace support;
using namespace toleranceSub;

class OrvKvToleranceSubInitTest : public OrvKvToleranceSubTest {};

TEST_F(OrvKvToleranceSubInitTest, FailsBeforeThePanelIsBuilt) {
    Make();
    EXPECT_EQ(InitTolerance(), FailureIn(source, notBuilt));
    EXPECT_EQ(SetValues(0.1, -0.1, 1, 1, 1), FailureIn(source, notBuilt));
    EXPECT_EQ(SetFittingVals(0.1, -0.1), FailureIn(source, notBuilt));
    EXPECT_EQ(SetGroups({"H"}, "H", "H7"), PlainFailure());
    EXPECT_EQ(SetFields({"H7"}), PlainFailure());
    EXPECT_EQ(Fitting(), "|") << "the refused groups leave no fit";
    EXPECT_EQ(Tolerance(), "none");
    _panel->Build();
    EXPECT_EQ(InitTolerance(), SuccessIn(source));
}

TEST_F(OrvKvToleranceSubInitTest, ANullParameterRaisesTheNullHandleError) {
    MakeFor(CATICkeParm_var());
    EXPECT_EQ(ErrorRaisedBy([this] { _panel->InitTolerance(); }), "NullHandle");
    {
        const host::EventScope event;
        _panel->Build();
    }
    TakeMessages();
    Traces().Take();
    EXPECT_EQ(ErrorRaisedBy([this] { _panel->InitTolerance(); }), "NullHandle");
    EXPECT_EQ(Traces().Take(), TraceLines());
    EXPECT_EQ(TakeMessages(), ShownMessages());
    MakeBuilt();
    EXPECT_EQ(ErrorRaisedBy([this] { _panel->InitTolerance(); }), "");
}

TEST_F(OrvKvToleranceSubInitTest, WithGroupAndFieldItIsAFit) {
    MakeTolerated(0.1, -0.1);
    _panel->SetTolGroupAndField("H", "H7");
    EXPECT_EQ(Checked(), "") << "knowing a fit chooses nothing yet";
    EXPECT_EQ(Said(), Texts());
    EXPECT_EQ(InitTolerance(), SuccessIn(source));
    EXPECT_EQ(Checked(), "ISOFittingRdb");
    EXPECT_EQ(Said(), Texts({"fit of D 'H' 'H7'"}));
    EXPECT_EQ(Subscriptions(), "parm 2, max 0, min 0");
    EXPECT_EQ(Tolerance(), "0.1/-0.1");
}

TEST_F(OrvKvToleranceSubInitTest, WithAGroupOrAFieldAloneItIsNoFit) {
    for (const auto& [group, field] : {std::pair("H", ""), std::pair("", "H7"), std::pair("", "")}) {
        MakeTolerated(0.1, -0.1);
        _panel->SetTolGroupAndField(group, field);
        EXPECT_EQ(InitTolerance(), SuccessIn(source));
        EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb") << group << field;
        MakeTolerated(0.1, -0.2);
        _panel->SetTolGroupAndField(group, field);
        EXPECT_EQ(InitTolerance(), SuccessIn(source));
        EXPECT_EQ(Checked(), "PlusMinusRdb") << group << field;
        EXPECT_EQ(Fitting(), "|");
    }
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvToleranceSubInitTest, DeviationsAreSymmetricWhenTheirTextsOfSixDigitsAre) {
    const struct {
        double maximum;
        double minimum;
        bool isSymmetric;
    } cases[] = {{0.1, -0.1, true},
                 {0.1, -0.1000001, true},
                 {0.1, -0.1001, false},
                 {0.1, -0.100001, false},
                 {0.1, 0.1, false},
                 {-0.1, 0.1, true},
                 {0.1, 0.0, false},
                 {0.0, 0.0, true},
                 {0.0, -0.1, false},
                 {1e-07, -1e-07, true},
                 {1e-07, 0.0, false},
                 {1234567.0, -1234568.0, true},
                 {1234567.0, -1234599.0, false}};
    for (const auto& each : cases) {
        MakeTolerated(each.maximum, each.minimum);
        InitTolerance();
        EXPECT_EQ(Checked(), each.isSymmetric ? "PlusMinusSymmetricalRdb" : "PlusMinusRdb")
            << each.maximum << ' ' << each.minimum;
    }
}

TEST_F(OrvKvToleranceSubInitTest, SymmetricModeMakesDeviationsEqualThatDifferBehindTheSixthDigit) {
    MakeTolerated(0.1, -0.1000001);
    InitTolerance();
    EXPECT_EQ(Stored(MinLiteral()), -0.1);
    EXPECT_EQ(CATIParmTolerance_var(_parm)->GetMinTolerance(), -0.1);
}

TEST_F(OrvKvToleranceSubInitTest, WithoutAToleranceItIsPlusMinusWithTheDefaultDeviations) {
    MakeBuilt();
    EXPECT_EQ(InitTolerance(), SuccessIn(source));
    EXPECT_EQ(Checked(), "PlusMinusRdb");
    EXPECT_EQ(Tolerance(), "0.1/-0.1");
    MakeTolerated(0.3, -0.3);
    CATIParmTolerance_var(_parm)->Unset();
    InitTolerance();
    EXPECT_EQ(Checked(), "PlusMinusRdb");
}

TEST_F(OrvKvToleranceSubInitTest, AnAngleHasNoFit) {
    MakeFor(host::Parameters::NewAngle("A", 30)).Build();
    EXPECT_EQ(Fit().GetVisibility(), CATDlgShow);
    EXPECT_EQ(InitTolerance(), SuccessIn(source));
    EXPECT_EQ(Fit().GetVisibility(), CATDlgHide);
    EXPECT_EQ(Checked(), "PlusMinusRdb");
    EXPECT_EQ(ShownDeviations(), "0.1deg/-0.1deg");
    EXPECT_EQ(Tolerance(), "0.1/-0.1");
    EXPECT_FALSE(host::DialogUser::Check(Fit())) << "nobody can choose it";
    EXPECT_EQ(Checked(), "PlusMinusRdb");
    MakeBuilt();
    InitTolerance();
    EXPECT_EQ(Fit().GetVisibility(), CATDlgShow) << "a length has";
    Choose(Fit());
    Said();
}

TEST_F(OrvKvToleranceSubInitTest, TheFitOfAnAngleStaysHiddenWhateverItsValue) {
    MakeFor(host::Parameters::NewAngle("A", 30)).Build();
    InitTolerance();
    for (const char* value : {"45deg", "0.5deg", "30deg", "1.0001deg"}) {
        TypeValue(value);
        EXPECT_EQ(Fit().GetVisibility(), CATDlgHide) << value;
    }
    MakeBuilt();
    InitTolerance();
    TypeValue("0.5");
    EXPECT_EQ(Fit().GetVisibility(), CATDlgHide);
    TypeValue("30");
    EXPECT_EQ(Fit().GetVisibility(), CATDlgShow) << "that of a length comes back";
}

TEST_F(OrvKvToleranceSubInitTest, OtherMagnitudesThanAnglesKeepTheFit) {
    MakeTolerated(0.1, -0.1);
    InitTolerance();
    EXPECT_EQ(Fit().GetVisibility(), CATDlgShow);
}

TEST_F(OrvKvToleranceSubInitTest, AModeThatIsCheckedAlreadyIsNotEnteredAgain) {
    MakeTolerated(0.1, -0.1);
    InitTolerance();
    CATIParmTolerance_var(_parm)->Unset();
    _panel->SetTolGroupAndField("H", "H7");
    InitTolerance();
    EXPECT_EQ(Said(), Texts({"fit of D 'H' 'H7'"}));
    EXPECT_EQ(InitTolerance(), SuccessIn(source));
    EXPECT_EQ(Said(), Texts()) << "the fit is checked";
    EXPECT_EQ(Tolerance(), "none");
    EXPECT_EQ(TakeMessages(), ShownMessages());
}

TEST_F(OrvKvToleranceSubInitTest, FromAnotherModeItGoesOnAsIfTheUserHadChosen) {
    MakeTolerated(0.2, -0.1);
    InitTolerance();
    EXPECT_EQ(Checked(), "PlusMinusRdb");
    SetTolerance(0.3, -0.3);
    EXPECT_EQ(InitTolerance(), SuccessIn(source));
    EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb");
    EXPECT_EQ(Tolerance(), "0.2/-0.2") << "those of the editors, as from plus/minus";
    EXPECT_EQ(Subscriptions(), "parm 1, max 1, min 0");
    SetTolerance(0.3, -0.1);
    InitTolerance();
    EXPECT_EQ(Checked(), "PlusMinusRdb");
    EXPECT_EQ(Subscriptions(), "parm 1, max 1, min 1");
}

TEST_F(OrvKvToleranceSubInitTest, AnErrorOfTheCommandIsShownAndTheOperationSucceeds) {
    MakeBuilt();
    _panel->SetTolGroupAndField("H", "H7");
    RaisingCommand command;
    host::Application::SetActiveCommand(&command);
    Traces().Take();
    const host::EventScope event;
    EXPECT_EQ(_panel->InitTolerance(), S_OK);
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(Traces().Take(), CaughtTraces("OrvKvToleranceSub::OnFittingSelect", "Error_InCommand"));
    EXPECT_EQ(TakeMessages().size(), 1U);
    EXPECT_EQ(Checked(), "ISOFittingRdb");
}

TEST_F(OrvKvToleranceSubInitTest, AShownPanelForASizeWithoutFitsStartsSymmetric) {
    MakeTolerated(0.2, -0.1, 600);
    EXPECT_EQ(InitTolerance(), SuccessIn(source));
    EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb");
    EXPECT_EQ(Tolerance(), "0.2/-0.2");
    EXPECT_EQ(Fit().GetVisibility(), CATDlgHide);
    EXPECT_EQ(Subscriptions(), "parm 1, max 1, min 0");
    MakeTolerated(0.2, -0.1, 600);
    _panel->SetVisibility(CATDlgHide);
    InitTolerance();
    EXPECT_EQ(Checked(), "PlusMinusRdb") << "a hidden one does not look at the size";
    EXPECT_EQ(Tolerance(), "0.2/-0.1");
}

} // namespace
