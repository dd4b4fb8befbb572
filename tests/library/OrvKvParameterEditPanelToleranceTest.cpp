// The check button of the parameter edit panel: what is shown, where, and what becomes of the tolerance.

#include "OrvKvParameterEditPanelTest.h"

#include "CATDlgRadioButton.h"
#include "OrvKvParameterEditISOFittingFieldSelectNotification.h"
#include "OrvKvParameterEditISOFittingGroupSelectNotification.h"
#include "OrvKvParameterEditISOFittingNotification.h"
#include "host/DialogDump.h"
#include "host/LayoutPlan.h"
#include "support/GoldenFolder.h"

namespace {

using namespace support;
using namespace editPanel;

const char fitReported[] = "OrvKvParameterEditISOFittingNotification";

class OrvKvParameterEditPanelToleranceTest : public OrvKvParameterEditPanelTest {
  protected:
    static CATDlgRadioButton& Radio(const std::string& iName) { return Widget<CATDlgRadioButton>(iName); }
    // The checked radio button; empty for none.
    static std::string Mode() {
        for (const char* name : {"PlusMinusRdb", "PlusMinusSymmetricalRdb", "ISOFittingRdb"})
            if (Radio(name).GetState() == CATDlgCheck)
                return name;
        return std::string();
    }
    // A field of the area by the label above it.
    static host::ValueFrame& FieldBelow(const std::string& iLabel) {
        CATDialog* widget = &Widget<CATDialog>(iLabel);
        while (dynamic_cast<host::ValueFrame*>(widget) == nullptr)
            widget = host::Inspector::NextSibling(*widget);
        return dynamic_cast<host::ValueFrame&>(*widget);
    }

    void ExpectPlaces(const std::string& iColumnsOfArea, const std::string& iRowsOfArea) {
        Pieces pieces = PiecesOf(Panel());
        const std::vector<std::pair<std::string, std::string>> places = {{"0(1)", "0(1)"},
                                                                         {"2(1)", "0(1)"},
                                                                         {"2(1)", "1(1)"},
                                                                         {"1(1)", "0(1)"},
                                                                         {iColumnsOfArea, iRowsOfArea}};
        ASSERT_EQ(pieces.size(), places.size());
        for (std::size_t i = 0; i < places.size(); ++i)
            EXPECT_EQ(std::make_pair(pieces[i].columns, pieces[i].rows), places[i]) << pieces[i].name;
    }
    void ExpectShown() {
        EXPECT_EQ(Area().GetVisibility(), CATDlgShow);
        EXPECT_EQ(HasTolerance(), 1);
        ExpectPlaces("", "2(1)");
    }
    void ExpectHidden() {
        EXPECT_EQ(Area().GetVisibility(), CATDlgHide);
        EXPECT_EQ(HasTolerance(), 0);
        ExpectPlaces("", "");
    }
};

TEST_F(OrvKvParameterEditPanelToleranceTest, ACheckShowsTheAreaBelowEverything) {
    MakeBuilt();
    ExpectHidden();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    ExpectShown();
    const host::LayoutPlan plan = host::PlanLayout(Panel());
    for (const CATDialog* child : host::Inspector::Children(Panel())) {
        EXPECT_EQ(plan.IsAbove(*child, Area()), child != &Area()) << child->GetName().ConvertToChar();
    }
    EXPECT_EQ(plan.CellOf(Area())->column, 0) << "it has no column of its own";
    EXPECT_EQ(Command().TakeClasses(), Classes()) << "the panel answers its button itself";
}

TEST_F(OrvKvParameterEditPanelToleranceTest, ACheckGivesAParameterWithoutToleranceTheUsualDeviations) {
    for (const CATICkeParm_var& parameter : {_length, host::Parameters::NewAngle("W", 30.0)}) {
        MakeBuilt({.parameter = parameter});
        ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
        EXPECT_EQ(Mode(), "PlusMinusRdb");
        EXPECT_EQ(ToleranceOf(parameter), "+0.1/-0.1");
        EXPECT_EQ(TakeMessages(), ShownMessages());
    }
}

TEST_F(OrvKvParameterEditPanelToleranceTest, AnUncheckHidesTheAreaAndRemovesTheToleranceAtOnce) {
    for (const CATICkeParm_var& parameter : {_length, host::Parameters::NewAngle("W", 30.0)}) {
        MakeBuilt({.parameter = parameter});
        ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
        ASSERT_EQ(ToleranceOf(parameter), "+0.1/-0.1");
        const double value = parameter->AsReal();
        ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
        ExpectHidden();
        EXPECT_EQ(ToleranceOf(parameter), "none");
        EXPECT_EQ(parameter->AsReal(), value);
        EXPECT_EQ(Command().TakeClasses(), Classes());
    }
}

TEST_F(OrvKvParameterEditPanelToleranceTest, AnUncheckTellsOfTheChangeOnceEverythingIsDone) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    ParameterWatcher watcher(_length);
    std::vector<std::string> seen;
    watcher.onEvent = [&] {
        ExpectHidden();
        seen.push_back(ToleranceOf(_length));
    };
    ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    EXPECT_EQ(watcher.Take(), Events({"value of D"}));
    EXPECT_EQ(seen, std::vector<std::string>({"none"}));
}

TEST_F(OrvKvParameterEditPanelToleranceTest, CheckAndUncheckCanBeRepeated) {
    MakeBuilt();
    for (int round = 0; round < 3; ++round) {
        ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
        ExpectShown();
        ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
        ExpectHidden();
        EXPECT_EQ(ToleranceOf(_length), "none");
    }
    EXPECT_EQ(TakeMessages(), ShownMessages());
}

TEST_F(OrvKvParameterEditPanelToleranceTest, ACheckThatFindsItsModeLeavesTheDeviationsToTheCommand) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    ASSERT_TRUE(host::DialogUser::Type(FieldBelow("MaxLab"), "0.3"));
    ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    EXPECT_EQ(Mode(), "PlusMinusRdb");
    EXPECT_EQ(FieldBelow("MaxLab").Text(), "0.3mm");
    EXPECT_EQ(ToleranceOf(_length), "none");
    SetTolerance(_length, 0.3, -0.1);
    ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    EXPECT_EQ(ToleranceOf(_length), "none");
}

TEST_F(OrvKvParameterEditPanelToleranceTest, AnotherKindOfToleranceIsEnteredAtTheNextCheck) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    SetTolerance(_length, 0.4, -0.4);
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    EXPECT_EQ(Mode(), "PlusMinusSymmetricalRdb");
}

TEST_F(OrvKvParameterEditPanelToleranceTest, AToleranceThatIsSetAppearsWhenTheButtonIsSetAnew) {
    const struct {
        double maximum;
        double minimum;
        const char* mode;
    } cases[] = {{0.2, -0.2, "PlusMinusSymmetricalRdb"},
                 {0.2, -0.1, "PlusMinusRdb"},
                 {0.3, 0.1, "PlusMinusRdb"},
                 {0.0, 0.0, "PlusMinusSymmetricalRdb"}};
    for (const auto& each : cases) {
        const CATICkeParm_var parameter = Length("D", 10, each.maximum, each.minimum);
        const std::string before = ToleranceOf(parameter);
        MakeBuilt({.parameter = parameter});
        EXPECT_EQ(Area().GetVisibility(), CATDlgHide);
        CheckAnew();
        ExpectShown();
        EXPECT_EQ(Mode(), each.mode) << before;
        EXPECT_EQ(ToleranceOf(parameter), before);
        EXPECT_EQ(Command().TakeClasses(), Classes());
    }
}

TEST_F(OrvKvParameterEditPanelToleranceTest, AToleranceThatIsSetCanBeTakenAwayBeforeItWasShown) {
    const CATICkeParm_var parameter = Length("D", 10, 0.2, -0.1);
    MakeBuilt({.parameter = parameter});
    ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    ExpectHidden();
    EXPECT_EQ(ToleranceOf(parameter), "none");
}

TEST_F(OrvKvParameterEditPanelToleranceTest, AButtonSetSilentlyChangesNothing) {
    const CATICkeParm_var parameter = Length("D", 10, 0.2, -0.1);
    MakeBuilt({.parameter = parameter});
    CheckButton().SetState(CATDlgUncheck);
    EXPECT_EQ(ToleranceOf(parameter), "+0.2/-0.1");
    CheckButton().SetState(CATDlgCheck);
    EXPECT_EQ(Area().GetVisibility(), CATDlgHide);
}

TEST_F(OrvKvParameterEditPanelToleranceTest, ALockedToleranceIsShownAndCannotBeUsed) {
    const CATICkeParm_var parameter = Length("D", 10, 0.2, -0.1);
    MakeBuilt({.parameter = parameter, .toleranceEditable = 0});
    CheckAnew();
    ExpectShown();
    EXPECT_EQ(Mode(), "PlusMinusRdb");
    EXPECT_EQ(FieldBelow("MaxLab").Text(), "0.2mm");
    EXPECT_FALSE(host::DialogUser::Type(FieldBelow("MaxLab"), "0.3"));
    EXPECT_FALSE(host::DialogUser::Check(Radio("PlusMinusSymmetricalRdb")));
    EXPECT_FALSE(host::DialogUser::Uncheck(CheckButton()));
    EXPECT_EQ(ToleranceOf(parameter), "+0.2/-0.1");
}

TEST_F(OrvKvParameterEditPanelToleranceTest, AFitIsReportedWhileTheAreaIsShownWithGroupAndField) {
    for (const char* field : {"H7", "js6"}) {
        MakeBuilt({.parameter = Length("D", 10, 0.015, 0), .group = "H", .field = field});
        EXPECT_EQ(Command().TakeClasses(), Classes());
        CheckAnew();
        EXPECT_EQ(Mode(), "ISOFittingRdb");
        EXPECT_EQ(Command().Classes(), Classes({fitReported}));
        CATICkeParm_var parameter;
        CATString group;
        CATString reportedField;
        auto* const reported = Command().Last<OrvKvParameterEditISOFittingNotification>();
        ASSERT_NE(reported, nullptr);
        reported->GetFittingInfo(&parameter, &group, &reportedField);
        EXPECT_STREQ(group.ConvertToChar(), "H");
        EXPECT_STREQ(reportedField.ConvertToChar(), field);
        Command().Forget();
    }
}

TEST_F(OrvKvParameterEditPanelToleranceTest, AGroupWithoutFieldIsNoFit) {
    for (const auto& [group, field] : {std::pair("H", ""), std::pair("", "H7")}) {
        MakeBuilt({.parameter = _length, .group = group, .field = field});
        ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
        EXPECT_EQ(Mode(), "PlusMinusRdb");
        EXPECT_EQ(Command().TakeClasses(), Classes());
        ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    }
}

// A command that looks at the panel when it hears of a fit.
class LookingCommand : public CATCommand {
  public:
    explicit LookingCommand(std::function<void()> iLook)
        : CATCommand(nullptr, "LookingCommand"), _look(std::move(iLook)) {}

    CATNotifPropagationMode AnalyseNotification(CATCommand*, CATNotification* iNotification) override {
        if (iNotification->IsAKindOf(fitReported) != 0)
            _look();
        return CATNotifDontTransmitToFather;
    }

  private:
    std::function<void()> _look;
};

TEST_F(OrvKvParameterEditPanelToleranceTest, TheAreaIsLaidOutAndShownBeforeItsModeIsChosen) {
    MakeBuilt({.parameter = Length("D", 10, 0.015, 0), .group = "H", .field = "H7"});
    int looks = 0;
    LookingCommand command([&] {
        ++looks;
        ExpectShown();
    });
    host::Application::SetActiveCommand(&command);
    CheckAnew();
    host::Application::SetActiveCommand(&Command());
    EXPECT_EQ(looks, 1);
}

TEST_F(OrvKvParameterEditPanelToleranceTest, DeviationsThatAreEnteredAreInTheParameterAtOnce) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    ASSERT_TRUE(host::DialogUser::Type(FieldBelow("MaxLab"), "0.25"));
    EXPECT_EQ(ToleranceOf(_length), "+0.25/-0.1");
    ASSERT_TRUE(host::DialogUser::Type(FieldBelow("MinLab"), "-0.05"));
    EXPECT_EQ(ToleranceOf(_length), "+0.25/-0.05");
    ASSERT_TRUE(host::DialogUser::Check(Radio("PlusMinusSymmetricalRdb")));
    EXPECT_EQ(ToleranceOf(_length), "+0.25/-0.25");
}

TEST_F(OrvKvParameterEditPanelToleranceTest, ANominalSizeOutsideTheIsoRangeIsAnsweredWhileTheAreaIsShown) {
    const CATICkeParm_var parameter = Length("D", 10, 0.015, 0);
    MakeBuilt({.parameter = parameter, .group = "H", .field = "H7"});
    CheckAnew();
    ASSERT_EQ(Mode(), "ISOFittingRdb");
    ASSERT_TRUE(host::DialogUser::Type(ValueEditor(), "501"));
    EXPECT_EQ(Mode(), "PlusMinusSymmetricalRdb");
    EXPECT_EQ(Radio("ISOFittingRdb").GetVisibility(), CATDlgHide);
    ASSERT_TRUE(host::DialogUser::Type(ValueEditor(), "-3"));
    EXPECT_EQ(ValueEditor().Text(), "0mm");
    ASSERT_TRUE(host::DialogUser::Type(ValueEditor(), "20"));
    EXPECT_EQ(Radio("ISOFittingRdb").GetVisibility(), CATDlgShow);
    EXPECT_EQ(Mode(), "PlusMinusSymmetricalRdb");
}

TEST_F(OrvKvParameterEditPanelToleranceTest, AHiddenButtonThatIsCheckedByProgramChangesNothing) {
    for (const CATICkeParm_var& parameter : ParametersWithoutTolerance()) {
        MakeBuilt({.parameter = parameter});
        const std::string before = host::DialogDump::Of(Panel(), host::DialogDump::WithLayout);
        ParameterWatcher watcher(parameter);
        CheckAnew();
        EXPECT_EQ(HasTolerance(), 1);
        CheckButton().SetState(CATDlgUncheck, CATDlgWithNotification);
        EXPECT_EQ(host::DialogDump::Of(Panel(), host::DialogDump::WithLayout), before);
        EXPECT_EQ(watcher.Take(), Events());
        EXPECT_EQ(Command().TakeClasses(), Classes()) << "it is answered";
    }
    EXPECT_EQ(Traces().Take(), TraceLines());
    EXPECT_EQ(TakeMessages(), ShownMessages());
}

TEST_F(OrvKvParameterEditPanelToleranceTest, LooksLikeThis) {
    const auto dump = [this] { return host::DialogDump::Of(Panel(), host::DialogDump::WithLayout); };
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    EXPECT_TRUE(MatchesGolden("ParameterEditPanel-plus-minus", dump()));
    ASSERT_TRUE(host::DialogUser::Check(Radio("PlusMinusSymmetricalRdb")));
    EXPECT_TRUE(MatchesGolden("ParameterEditPanel-symmetric", dump()));
    ASSERT_TRUE(host::DialogUser::Check(Radio("ISOFittingRdb")));
    EXPECT_TRUE(MatchesGolden("ParameterEditPanel-fit", dump()));
    MakeBuilt({.parameter = host::Parameters::NewAngle("W", 30.0)});
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    EXPECT_TRUE(MatchesGolden("ParameterEditPanel-angle", dump()));
    MakeBuilt({.parameter = Length("D", 10, 0.2, -0.1), .valueEditable = 0, .toleranceEditable = 0});
    CheckAnew();
    EXPECT_TRUE(MatchesGolden("ParameterEditPanel-locked", dump()));
}

} // namespace
