// What the parameter edit panel tells the command, and what the command puts into it.

#include "OrvKvParameterEditPanelTest.h"

#include "CATDlgRadioButton.h"

namespace {

using namespace support;
using namespace editPanel;

const char groupChosen[] = "OrvKvParameterEditISOFittingGroupSelectNotification";
const char fieldChosen[] = "OrvKvParameterEditISOFittingFieldSelectNotification";

// What GetModifiedParameter writes; it starts with other values.
struct Modified {
    CATICkeParm_var parameter = host::Parameters::NewReal("Before", 1.0);
    CATString key = "before";
    double maximum = 7.0;
    double minimum = 8.0;
    CATString group = "before";
    CATString field = "before";

    std::string Fit() const {
        return std::string(group.ConvertToChar()) + "|" + std::string(field.ConvertToChar());
    }
};

class OrvKvParameterEditPanelResultsTest : public OrvKvParameterEditPanelTest {
  protected:
    Report Get(Modified& oModified) {
        return Observed([&](auto& panel) {
            return panel.GetModifiedParameter(&oModified.parameter, &oModified.key, &oModified.maximum,
                                              &oModified.minimum, &oModified.group, &oModified.field);
        });
    }
    std::string FitOfPanel() {
        Modified modified;
        EXPECT_EQ(Get(modified).result, "S_OK");
        return modified.Fit();
    }
    Report SetGroups(std::initializer_list<const char*> iGroups, const char* iGroup, const char* iField) {
        return Observed(
            [&](auto& panel) { return panel.SetToleranceGroups(TextsOf(iGroups), iGroup, iField); });
    }
    Report SetFields(std::initializer_list<const char*> iFields) {
        return Observed([&](auto& panel) { return panel.SetToleranceFields(TextsOf(iFields)); });
    }
    Report SetValues(double iMax, double iMin) {
        return Observed([&](auto& panel) { return panel.SetToleranceValues(iMax, iMin); });
    }
    void SetFittingVals(double iMax, double iMin) {
        const host::EventScope event;
        Panel().SetFittingVals(iMax, iMin);
    }
    // The limit editors of the area, the maximum first.
    std::vector<host::ValueFrame*> LimitEditors() const {
        std::vector<host::ValueFrame*> editors;
        for (CATDialog* child : host::Inspector::Children(Area()))
            if (auto* const editor = dynamic_cast<host::ValueFrame*>(child))
                editors.push_back(editor);
        return editors;
    }
    // "0.1mm enabled, -0.1mm disabled".
    std::string Limits() const {
        std::string limits;
        for (const host::ValueFrame* editor : LimitEditors())
            limits += (limits.empty() ? "" : ", ") + editor->Text() +
                      (editor->GetSensitivity() == CATDlgEnable ? " enabled" : " disabled");
        return limits;
    }
    // A built panel whose fit the user has chosen.
    void MakeWithFit() {
        MakeBuilt({.parameter = Length("D", 10, 0.015, 0), .group = "H", .field = "H7"});
        CheckAnew();
        EXPECT_EQ(SetGroups({"G", "H", "JS"}, "H", "H7"), SuccessAfter(1));
        EXPECT_EQ(SetFields({"H6", "H7", "H8"}).result, "S_OK");
        Command().Forget();
    }
    // A success of the panel behind other results.
    static Report SuccessAfter(int iResults) {
        Report report = SuccessIn(source);
        report.returns += iResults;
        return report;
    }
};

// GetModifiedParameter

TEST_F(OrvKvParameterEditPanelResultsTest, GivesParameterAndKeyAndTheFitThatItWasOpenedWith) {
    MakeBuilt({.parameter = _length, .key = "a \"b\" Ø", .group = "H", .field = "H7"});
    Modified modified;
    EXPECT_EQ(Get(modified), SuccessAfter(1));
    EXPECT_TRUE(modified.parameter == _length);
    EXPECT_STREQ(modified.key.ConvertToChar(), "a \"b\" Ø");
    EXPECT_EQ(modified.Fit(), "H|H7");
}

TEST_F(OrvKvParameterEditPanelResultsTest, GroupAndFieldAreEmptyWithoutAToleranceArea) {
    for (const CATICkeParm_var& parameter : ParametersWithoutTolerance()) {
        MakeBuilt({.parameter = parameter, .group = "H", .field = "H7"});
        Modified modified;
        EXPECT_EQ(Get(modified), SuccessIn(source));
        EXPECT_TRUE(modified.parameter == parameter);
        EXPECT_EQ(modified.Fit(), "|");
    }
}

TEST_F(OrvKvParameterEditPanelResultsTest, AnswersBeforeItIsBuilt) {
    Make({.parameter = _length, .group = "H", .field = "H7"});
    Modified modified;
    EXPECT_EQ(Get(modified), SuccessIn(source));
    EXPECT_TRUE(modified.parameter == _length);
    EXPECT_EQ(modified.Fit(), "|");
}

TEST_F(OrvKvParameterEditPanelResultsTest, ANullPointerToParameterKeyGroupOrFieldMeansThatNothingIsWritten) {
    MakeBuilt({.parameter = _length, .group = "H", .field = "H7"});
    for (int missing = 0; missing < 4; ++missing) {
        Modified modified;
        const CATICkeParm_var before = modified.parameter;
        EXPECT_EQ(Observed([&](auto& panel) {
                      return panel.GetModifiedParameter(
                          missing == 0 ? nullptr : &modified.parameter,
                          missing == 1 ? nullptr : &modified.key, &modified.maximum, &modified.minimum,
                          missing == 2 ? nullptr : &modified.group, missing == 3 ? nullptr : &modified.field);
                  }),
                  SuccessIn(source))
            << missing;
        EXPECT_TRUE(modified.parameter == before) << missing;
        EXPECT_STREQ(modified.key.ConvertToChar(), "before") << missing;
        EXPECT_EQ(modified.Fit(), "before|before") << missing;
        EXPECT_EQ(modified.maximum, 7.0) << missing;
        EXPECT_EQ(modified.minimum, 8.0) << missing;
    }
}

TEST_F(OrvKvParameterEditPanelResultsTest, DeviationsMayBeLeftOut) {
    MakeBuilt({.parameter = _length, .group = "H", .field = "H7"});
    for (const bool takesMaximum : {false, true}) {
        Modified modified;
        EXPECT_EQ(Observed([&](auto& panel) {
                      return panel.GetModifiedParameter(
                          &modified.parameter, &modified.key, takesMaximum ? &modified.maximum : nullptr,
                          takesMaximum ? nullptr : &modified.minimum, &modified.group, &modified.field);
                  }),
                  SuccessAfter(1));
        EXPECT_EQ(modified.Fit(), "H|H7");
        EXPECT_EQ(takesMaximum ? modified.minimum : modified.maximum, takesMaximum ? 8.0 : 7.0);
    }
}

TEST_F(OrvKvParameterEditPanelResultsTest, ANullParameterIsGivenBackAsSuch) {
    Make({.parameter = CATICkeParm_var()});
    Modified modified;
    EXPECT_EQ(Get(modified), SuccessIn(source));
    EXPECT_FALSE(!!modified.parameter);
}

TEST_F(OrvKvParameterEditPanelResultsTest, TheFitIsTheOneThatTheUserHasChosen) {
    MakeWithFit();
    ASSERT_TRUE(host::DialogUser::ChooseText(Combo("ToleranceFieldCmb"), "H8"));
    EXPECT_EQ(FitOfPanel(), "H|H8");
    ASSERT_TRUE(host::DialogUser::ChooseText(Combo("ToleranceGroupCmb"), "JS"));
    EXPECT_EQ(FitOfPanel(), "H|H8") << "a group alone is no fit";
    ASSERT_TRUE(host::DialogUser::Check(Widget<CATDlgRadioButton>("PlusMinusRdb")));
    EXPECT_EQ(FitOfPanel(), "|");
}

// HasTolerance

TEST_F(OrvKvParameterEditPanelResultsTest, HasToleranceFollowsTheCheckButton) {
    Make();
    EXPECT_EQ(HasTolerance(), 0) << "before it is built";
    MakeBuilt();
    EXPECT_EQ(HasTolerance(), 0);
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    EXPECT_EQ(HasTolerance(), 1);
    ASSERT_TRUE(host::DialogUser::Uncheck(CheckButton()));
    EXPECT_EQ(HasTolerance(), 0);
    SetTolerance(_length, 0.1, -0.1);
    EXPECT_EQ(HasTolerance(), 0) << "it is the button that counts";
}

TEST_F(OrvKvParameterEditPanelResultsTest, HasToleranceFailsWithoutAPlaceForTheState) {
    const auto ask = [this] { return Observed([](auto& panel) { return panel.HasTolerance(nullptr); }); };
    Make();
    EXPECT_EQ(ask(), FailureIn(source, "pState is invalid."));
    MakeBuilt();
    EXPECT_EQ(ask(), FailureIn(source, "pState is invalid."));
    EXPECT_EQ(HasTolerance(), 0);
}

// Setters without a tolerance area

TEST_F(OrvKvParameterEditPanelResultsTest, WithoutAToleranceAreaTheSettersFailWithoutAWord) {
    std::vector<CATICkeParm_var> parameters = ParametersWithoutTolerance();
    parameters.push_back(_length);
    for (const CATICkeParm_var& parameter : parameters) {
        if (parameter == _length)
            Make();
        else
            MakeBuilt({.parameter = parameter});
        ParameterWatcher watcher(parameter);
        EXPECT_EQ(SetGroups({"H"}, "H", "H7"), PlainFailure());
        EXPECT_EQ(SetFields({"H7"}), PlainFailure());
        EXPECT_EQ(SetValues(0.1, -0.1), PlainFailure());
        SetFittingVals(0.1, -0.1);
        EXPECT_EQ(ToleranceOf(parameter), "none");
        EXPECT_EQ(watcher.Take(), Events());
    }
    EXPECT_EQ(Traces().Take(), TraceLines());
    EXPECT_EQ(TakeMessages(), ShownMessages());
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

// Setters with one

TEST_F(OrvKvParameterEditPanelResultsTest, GroupsAndFieldsFillTheirCombosAndAreReported) {
    MakeBuilt();
    EXPECT_EQ(SetGroups({"G", "H", "JS"}, "H", "H7"), SuccessAfter(1));
    EXPECT_EQ(LinesOf(Combo("ToleranceGroupCmb")), Lines({"G", "H", "JS"}));
    EXPECT_EQ(Combo("ToleranceGroupCmb").GetSelect(), 1);
    EXPECT_EQ(Command().TakeClasses(), Classes({groupChosen}));
    EXPECT_EQ(FitOfPanel(), "H|H7");
    Report result = SetFields({"H6", "H7"});
    EXPECT_EQ(result.result, "S_OK");
    EXPECT_EQ(result.traces, TraceLines());
    EXPECT_EQ(LinesOf(Combo("ToleranceFieldCmb")), Lines({"H6", "H7"}));
    EXPECT_EQ(Combo("ToleranceFieldCmb").GetSelect(), 1);
    EXPECT_EQ(Command().TakeClasses(), Classes({fieldChosen}));
}

TEST_F(OrvKvParameterEditPanelResultsTest, ToleranceValuesReachTheParameterAndLockBothEditors) {
    for (const bool isChecked : {false, true}) {
        MakeBuilt({.parameter = Length("D", 10)});
        if (isChecked) {
            ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
            EXPECT_EQ(Limits(), "0.1mm enabled, -0.1mm enabled");
        }
        EXPECT_EQ(SetValues(0.3, -0.2).result, "S_OK");
        EXPECT_EQ(Limits(), "0.3mm disabled, -0.2mm disabled") << isChecked;
        Modified modified;
        Get(modified);
        EXPECT_EQ(ToleranceOf(modified.parameter), "+0.3/-0.2") << isChecked;
        EXPECT_EQ(SetValues(-0.2, 0.3).result, "S_OK") << "the order of the two is not looked at";
        EXPECT_EQ(Limits(), "-0.2mm disabled, 0.3mm disabled");
    }
}

TEST_F(OrvKvParameterEditPanelResultsTest, ToleranceValuesGiveASuccessWhateverBecomesOfThem) {
    MakeBuilt();
    ASSERT_TRUE(host::DialogUser::Check(CheckButton()));
    EXPECT_EQ(SetValues(std::numeric_limits<double>::infinity(), -0.2).result, "S_OK");
    EXPECT_EQ(TakeMessages(), ShownMessages());
}

TEST_F(OrvKvParameterEditPanelResultsTest, FittingValuesReachTheParameterAndLockBothEditors) {
    MakeWithFit();
    Modified modified;
    Get(modified);
    ParameterWatcher watcher(modified.parameter);
    SetFittingVals(0.022, 0);
    EXPECT_EQ(Limits(), "0.022mm disabled, 0mm disabled");
    EXPECT_EQ(ToleranceOf(modified.parameter), "+0.022/+0");
    EXPECT_EQ(watcher.Take(), Events({"value of D"}));
    EXPECT_EQ(TakeMessages(), ShownMessages());
}

} // namespace
