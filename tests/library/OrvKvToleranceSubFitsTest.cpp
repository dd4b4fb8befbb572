// Groups and fields of fits: how they are listed, chosen, reported and remembered.

#include "OrvKvToleranceSubModelTest.h"

namespace {

using namespace support;
using namespace toleranceSub;

class OrvKvToleranceSubFitsTest : public OrvKvToleranceSubModelTest {
  protected:
    static std::string Selected(const CATDlgCombo& iCombo) {
        CATUnicodeString text("nothing");
        if (iCombo.GetSelect() >= 0)
            iCombo.GetLine(text, iCombo.GetSelect());
        return text.ConvertToChar();
    }
};

// ---- groups

TEST_F(OrvKvToleranceSubFitsTest, GroupsAreListedInTheirOrderAndTheGivenOneIsSelectedAndReported) {
    MakeBuilt();
    const Report report = SetGroups({"JS", "G", "H"}, "G", "G6");
    EXPECT_EQ(report.result, "S_OK");
    EXPECT_EQ(report.traces, TraceLines());
    EXPECT_EQ(LinesOf(Groups()), Lines({"JS", "G", "H"}));
    EXPECT_EQ(Selected(Groups()), "G");
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Groups()), 3);
    EXPECT_EQ(Said(), Texts({"group 'G' at 20"}));
    EXPECT_EQ(Fitting(), "G|G6");
}

TEST_F(OrvKvToleranceSubFitsTest, AGroupThatIsNotListedSelectsAndReportsNothing) {
    MakeBuilt();
    for (const char* unknown : {"K", "h", "H ", " H", "", "JSS"}) {
        EXPECT_EQ(SetGroups({"G", "H", "JS"}, unknown, "H7").result, "S_OK") << unknown;
        EXPECT_EQ(LinesOf(Groups()), Lines({"G", "H", "JS"})) << unknown;
        EXPECT_EQ(Selected(Groups()), "nothing") << unknown;
        EXPECT_EQ(Said(), Texts()) << unknown;
        EXPECT_EQ(Fitting(), std::string(unknown) + "|H7") << "it is remembered all the same";
    }
}

TEST_F(OrvKvToleranceSubFitsTest, GroupsThatAreListedAnewReplaceTheOldOnes) {
    MakeChosen();
    SetGroups({"F", "E", "D", "H"}, "H", "");
    EXPECT_EQ(LinesOf(Groups()), Lines({"F", "E", "D", "H"}));
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Groups()), 4);
    EXPECT_EQ(Said(), Texts({"group 'H' at 20"}));
    EXPECT_EQ(LinesOf(Fields()), Lines({"H6", "H7"})) << "the command lists the fields";
    EXPECT_EQ(Fitting(), "H|");
    SetGroups({}, "H", "H7");
    EXPECT_EQ(LinesOf(Groups()), Lines());
    EXPECT_EQ(Selected(Groups()), "nothing");
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Groups()), 0);
    EXPECT_EQ(Said(), Texts());
    EXPECT_EQ(Fitting(), "H|H7");
}

TEST_F(OrvKvToleranceSubFitsTest, AGroupThatTheUserChoosesIsReportedButNotRemembered) {
    MakeChosen();
    ChooseText(Groups(), "G");
    EXPECT_EQ(Said(), Texts({"group 'G' at 20"}));
    EXPECT_EQ(Fitting(), "H|H7");
    EXPECT_EQ(LinesOf(Fields()), Lines({"H6", "H7"}));
    EXPECT_EQ(Selected(Fields()), "H7");
    ChooseText(Groups(), "G");
    EXPECT_EQ(Said(), Texts({"group 'G' at 20"})) << "again";
}

// ---- fields

TEST_F(OrvKvToleranceSubFitsTest, FieldsAreListedInTheirOrderAndTheRememberedOneIsSelectedAndReported) {
    MakeBuilt();
    SetGroups({"G", "H"}, "H", "H11");
    Said();
    const Report report = SetFields({"H7", "H11", "H6"});
    EXPECT_EQ(report.result, "S_OK");
    EXPECT_EQ(report.traces, TraceLines());
    EXPECT_EQ(LinesOf(Fields()), Lines({"H7", "H11", "H6"}));
    EXPECT_EQ(Selected(Fields()), "H11");
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Fields()), 3);
    EXPECT_EQ(Said(), Texts({"field 'H' 'H11' at 20"}));
    EXPECT_EQ(Fitting(), "H|H11");
}

TEST_F(OrvKvToleranceSubFitsTest, WithoutARememberedFieldTheFirstIsSelectedReportedAndRemembered) {
    MakeBuilt();
    SetGroups({"G", "H"}, "H", "");
    Said();
    EXPECT_EQ(SetFields({"H7", "H11"}).result, "S_OK");
    EXPECT_EQ(Selected(Fields()), "H7");
    EXPECT_EQ(Said(), Texts({"field 'H' 'H7' at 20"}));
    EXPECT_EQ(Fitting(), "H|H7");
}

TEST_F(OrvKvToleranceSubFitsTest, ARememberedFieldThatIsNotListedSelectsAndReportsNothing) {
    MakeBuilt();
    for (const char* unknown : {"H8", "h7", "H7 ", "H"}) {
        SetGroups({"H"}, "H", unknown);
        Said();
        EXPECT_EQ(SetFields({"H7", "H11"}).result, "S_OK") << unknown;
        EXPECT_EQ(Selected(Fields()), "nothing") << unknown;
        EXPECT_EQ(Said(), Texts()) << unknown;
        EXPECT_EQ(Fitting(), std::string("H|") + unknown);
    }
}

TEST_F(OrvKvToleranceSubFitsTest, FieldsThatAreListedAnewReplaceTheOldOnes) {
    MakeChosen();
    SetFields({"H9", "H8", "H7"});
    EXPECT_EQ(LinesOf(Fields()), Lines({"H9", "H8", "H7"}));
    EXPECT_EQ(host::Inspector::VisibleTextHeight(Fields()), 3);
    EXPECT_EQ(Said(), Texts({"field 'H' 'H7' at 20"}));
    for (const char* field : {"H7", ""}) {
        _panel->SetTolGroupAndField("H", field);
        EXPECT_EQ(SetFields({}).result, "S_OK");
        EXPECT_EQ(LinesOf(Fields()), Lines());
        EXPECT_EQ(host::Inspector::VisibleTextHeight(Fields()), 0);
        EXPECT_EQ(Said(), Texts()) << field;
        EXPECT_EQ(Fitting(), std::string("H|") + field);
    }
}

TEST_F(OrvKvToleranceSubFitsTest, AFieldThatTheUserChoosesIsReportedAndRememberedWithTheGroupThatIsShown) {
    MakeChosen();
    ChooseText(Groups(), "G");
    ChooseText(Fields(), "H6");
    EXPECT_EQ(Said(), Texts({"group 'G' at 20", "field 'G' 'H6' at 20"}));
    EXPECT_EQ(Fitting(), "G|H6");
    ChooseText(Fields(), "H6");
    EXPECT_EQ(Said(), Texts({"field 'G' 'H6' at 20"})) << "again";
}

TEST_F(OrvKvToleranceSubFitsTest, AFieldThatIsChosenWithoutAGroupHasTheEmptyGroup) {
    MakeBuilt();
    SetFields({"H7"});
    EXPECT_EQ(Said(), Texts({"field '' 'H7' at 20"}));
    EXPECT_EQ(Fitting(), "|H7");
    SetGroups({"G"}, "H", "");
    SetFields({"H7"});
    EXPECT_EQ(Said(), Texts({"field '' 'H7' at 20"}));
    EXPECT_EQ(Fitting(), "|H7") << "what is shown counts, not what was remembered";
}

// ---- texts and values

TEST_F(OrvKvToleranceSubFitsTest, OddTextsAreListedReportedAndRememberedAsTheyStand) {
    MakeBuilt();
    const std::string longText(500, 'x');
    for (const std::string& odd : {std::string("Größe ±"), std::string("\t\"H\"\\"), std::string("/p1 %s %d"),
                                   std::string("H\n7"), longText, std::string("はめあい")}) {
        SetGroups({"H", odd}, odd.c_str(), odd.c_str());
        SetFields({"H7", odd});
        EXPECT_EQ(Said(), Texts({"group '" + odd + "' at 20", "field '" + odd + "' '" + odd + "' at 20"}));
        EXPECT_EQ(Fitting(), "" + odd + "|" + odd + "");
    }
}

TEST_F(OrvKvToleranceSubFitsTest, OfEqualTextsTheFirstIsSelected) {
    MakeBuilt();
    SetGroups({"G", "H", "H"}, "H", "H7");
    EXPECT_EQ(Groups().GetSelect(), 1);
    SetFields({"H6", "H7", "H7"});
    EXPECT_EQ(Fields().GetSelect(), 1);
    Said();
}

TEST_F(OrvKvToleranceSubFitsTest, AnEmptyTextIsALineLikeAnyOther) {
    MakeBuilt();
    SetGroups({"G", ""}, "", "H7");
    EXPECT_EQ(Groups().GetSelect(), 1) << "groups are always selected by text";
    EXPECT_EQ(Said(), Texts({"group '' at 20"}));
    _panel->SetTolGroupAndField("", "");
    SetFields({"H6", ""});
    EXPECT_EQ(Fields().GetSelect(), 0) << "an empty field means the first one";
    EXPECT_EQ(Said(), Texts({"field '' 'H6' at 20"}));
}

TEST_F(OrvKvToleranceSubFitsTest, TheValueOfTheParameterIsReportedAsItIsStored) {
    for (const double size : {0.0, 1.5, 499.9999999, 1e6}) {
        MakeFor(host::Parameters::NewLength("D", size)).Build();
        CATUnicodeString text;
        double value = -1.0;
        SetGroups({"H"}, "H", "H7");
        EXPECT_EQ(
            Command().Last<OrvKvParameterEditISOFittingGroupSelectNotification>()->GetSelectedToleranceGroup(
                &text, &value),
            S_OK);
        EXPECT_EQ(value, size);
        value = -1.0;
        SetFields({"H7"});
        EXPECT_EQ(
            Command().Last<OrvKvParameterEditISOFittingFieldSelectNotification>()->GetSelectedFittingValues(
                &text, &text, &value),
            S_OK);
        EXPECT_EQ(value, size);
    }
}

TEST_F(OrvKvToleranceSubFitsTest, AnAngleIsReportedInDegrees) {
    MakeFor(host::Parameters::NewAngle("W", 30.0)).Build();
    SetGroups({"H"}, "H", "H7");
    SetFields({"H7"});
    EXPECT_EQ(Said(), Texts({"group 'H' at 30", "field 'H' 'H7' at 30"}));
}

// ---- the whole conversation

TEST_F(OrvKvToleranceSubFitsTest, TheFitModeIsReportedWithTheRememberedGroupAndField) {
    MakeBuilt();
    SetGroups({"G", "H"}, "G", "G6");
    Said();
    _panel->SetTolGroupAndField("H", "H7");
    EXPECT_EQ(Said(), Texts());
    EXPECT_EQ(Selected(Groups()), "G") << "the combo stays";
    Choose(Fit());
    EXPECT_EQ(Said(), Texts({"fit of D 'H' 'H7'"}));
    EXPECT_EQ(Fitting(), "H|H7");
}

TEST_F(OrvKvToleranceSubFitsTest, AnAngleThatIsSaidToHaveAFitGetsItThoughNobodyCanChooseIt) {
    MakeFor(host::Parameters::NewAngle("W", 30.0)).Build();
    _panel->SetTolGroupAndField("H", "H7");
    CATULong visibilityWhenAsked = CATDlgShow;
    {
        AnsweringCommand command(Command());
        command.onHeard = [&](const std::string&) { visibilityWhenAsked = Fit().GetVisibility(); };
        EXPECT_EQ(_panel->InitTolerance(), S_OK);
    }
    EXPECT_EQ(visibilityWhenAsked, CATDlgHide);
    EXPECT_EQ(Checked(), "ISOFittingRdb");
    EXPECT_EQ(Fit().GetVisibility(), CATDlgHide);
    EXPECT_EQ(Said(), Texts({"fit of W 'H' 'H7'"}));
    Choose(PlusMinus());
    EXPECT_FALSE(host::DialogUser::Check(Fit()));
    EXPECT_EQ(State(), "0.1/-0.1 in 0.1/-0.1");
}

TEST_F(OrvKvToleranceSubFitsTest, ACommandThatAnswersAtOnceGetsAFitWithoutAnUpdate) {
    MakeBuilt();
    _panel->SetTolGroupAndField("H", "H7");
    AnsweringCommand command(Command());
    double maximum = 0.021;
    command.onHeard = [&](const std::string& iTold) {
        if (iTold.starts_with("fit"))
            SetGroups({"G", "H"}, "H", "H7");
        else if (iTold.starts_with("group"))
            SetFields({"H6", "H7"});
        else if (iTold.starts_with("field"))
            SetFittingVals(maximum, 0.0);
    };
    EXPECT_EQ(_panel->InitTolerance(), S_OK);
    EXPECT_EQ(Said(), Texts({"fit of D 'H' 'H7'", "group 'H' at 20", "field 'H' 'H7' at 20"}));
    EXPECT_EQ(State(), "0.021/0 in 0.021/0");
    EXPECT_EQ(Checked(), "ISOFittingRdb");
    EXPECT_EQ(Editable(), "");
    maximum = 0.013;
    ChooseText(Fields(), "H6");
    EXPECT_EQ(Said(), Texts({"field 'H' 'H6' at 20", "update 'H' 'H6' at 20"}));
    EXPECT_EQ(State(), "0.013/0 in 0.013/0");
    ChooseText(Groups(), "G");
    EXPECT_EQ(Said(), Texts({"group 'G' at 20", "field 'G' 'H6' at 20", "update 'G' 'H6' at 20"}));
    EXPECT_EQ(Fitting(), "G|H6");
}

TEST_F(OrvKvToleranceSubFitsTest, ACommandMayAnswerAnUpdateOnceWithNewDeviations) {
    MakeChosen();
    AnsweringCommand command(Command());
    int answers = 0;
    command.onHeard = [&](const std::string&) {
        if (++answers == 1)
            SetFittingVals(0.025, 0.0);
    };
    Change(40.0);
    EXPECT_EQ(Said(), Texts({"update 'H' 'H7' at 40", "update 'H' 'H7' at 40"}));
    EXPECT_EQ(State(), "0.025/0 in 0.025/0");
}

TEST_F(OrvKvToleranceSubFitsTest, ListsOfTheCommandMayChangeWhileTheirLinesAreReported) {
    MakeBuilt();
    CATListValCATUnicodeString groups = ListOf({"G", "H"});
    CATString group("H");
    CATString field("H7");
    AnsweringCommand command(Command());
    command.onHeard = [&](const std::string& iTold) {
        if (!iTold.starts_with("group"))
            return;
        groups = CATListValCATUnicodeString();
        group = field = "";
        SetFields({"H6", "H7"});
    };
    EXPECT_EQ(_panel->SetToleranceGroups(groups, group, field), S_OK);
    EXPECT_EQ(Said(), Texts({"group 'H' at 20", "field 'H' 'H7' at 20"}));
    EXPECT_EQ(Fitting(), "H|H7");
}

TEST_F(OrvKvToleranceSubFitsTest, ThePanelMayBeGivenUpWhileItReports) {
    for (const int step : {0, 1, 2, 3, 4}) {
        MakeChosen();
        if (step == 4)
            Enter(PlusMinus());
        {
            AnsweringCommand command(Command());
            command.onHeard = [&](const std::string&) { _panel->RequestDelayedDestruction(); };
            const host::EventScope event;
            if (step == 0)
                EXPECT_TRUE(host::DialogUser::ChooseText(Groups(), "G"));
            else if (step == 1)
                EXPECT_TRUE(host::DialogUser::ChooseText(Fields(), "H6"));
            else if (step == 2)
                Change(30.0);
            else if (step == 3)
                SetGroups({"G", "H"}, "G", "");
            else
                Choose(Fit());
        }
        EXPECT_EQ(Said().size(), 1U) << step;
        EXPECT_FALSE(Exists("ToleranceGroupCmb")) << step;
        _panel = nullptr;
        Change(20.0);
        EXPECT_EQ(Said(), Texts()) << step;
    }
}

// ---- what the panel remembers

TEST_F(OrvKvToleranceSubFitsTest, GroupAndFieldAreRememberedSilently) {
    MakeBuilt();
    EXPECT_EQ(Fitting(), "|");
    _panel->SetTolGroupAndField("H", "H7");
    EXPECT_EQ(Fitting(), "H|H7");
    _panel->SetTolGroupAndField("", "");
    EXPECT_EQ(Fitting(), "|");
    EXPECT_EQ(LinesOf(Groups()), Lines());
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvToleranceSubFitsTest, TheDeviationsOfTheFitAreLeftUnwritten) {
    MakeChosen();
    SetFittingVals(0.021, 0.001);
    double maximum = 7.0;
    double minimum = 8.0;
    CATString group;
    CATString field;
    const Report report = Observe([&] { return _panel->GetFittingInfo(&maximum, &minimum, &group, &field); });
    EXPECT_EQ(report.result, "S_OK");
    EXPECT_EQ(report.traces, TraceLines());
    EXPECT_EQ(maximum, 7.0);
    EXPECT_EQ(minimum, 8.0);
    EXPECT_STREQ(group.ConvertToChar(), "H");
    EXPECT_STREQ(field.ConvertToChar(), "H7");
    Said();
}

TEST_F(OrvKvToleranceSubFitsTest, OneTextMayBeLeftOutButNotBoth) {
    MakeChosen();
    CATString text("?");
    EXPECT_EQ(_panel->GetFittingInfo(nullptr, nullptr, &text, nullptr), S_OK);
    EXPECT_STREQ(text.ConvertToChar(), "H");
    EXPECT_EQ(_panel->GetFittingInfo(nullptr, nullptr, nullptr, &text), S_OK);
    EXPECT_STREQ(text.ConvertToChar(), "H7");
    double deviation = 3.0;
    EXPECT_EQ(Observe([&] { return _panel->GetFittingInfo(&deviation, &deviation, nullptr, nullptr); }),
              FailureIn(source, "(pTolGroup == NULL) \n->or (pTolField == NULL)"));
    EXPECT_EQ(deviation, 3.0);
}

TEST_F(OrvKvToleranceSubFitsTest, EveryPlusMinusModeForgetsGroupAndField) {
    MakeChosen();
    Choose(PlusMinus());
    EXPECT_EQ(Fitting(), "|");
    _panel->SetTolGroupAndField("H", "H7");
    Choose(Symmetric());
    EXPECT_EQ(Fitting(), "|");
    _panel->SetTolGroupAndField("H", "H7");
    Choose(PlusMinus());
    EXPECT_EQ(Fitting(), "|");
    Choose(Fit());
    EXPECT_EQ(Said(), Texts({"fit of D '' ''"}));
    ChooseText(Fields(), "H6");
    EXPECT_EQ(Fitting(), "H|H6") << "the combos keep their lines";
    Choose(Symmetric());
    EXPECT_EQ(Fitting(), "|");
    Said();
}

TEST_F(OrvKvToleranceSubFitsTest, AFitCannotBeChosenInAPlusMinusMode) {
    MakeChosen();
    for (CATDlgRadioButton* const radio : {&PlusMinus(), &Symmetric()}) {
        Choose(*radio);
        EXPECT_FALSE(host::DialogUser::Choose(Groups(), 0));
        EXPECT_FALSE(host::DialogUser::Choose(Fields(), 0));
    }
    EXPECT_EQ(Said(), Texts());
}

} // namespace
