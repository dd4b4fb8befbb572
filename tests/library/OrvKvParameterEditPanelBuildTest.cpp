// The parameter edit panel as it is made: dialog, texts, widgets and their places, flags, power input, copies
// and its end.

#include "NotedCalls.h"
#include "OrvKvParameterEditPanelTest.h"
#include "StandInParameter.h"

#include "CATDlgContainer.h"
#include "CATDlgDocument.h"
#include "host/CommandInspection.h"
#include "host/DialogDump.h"
#include "host/LayoutPlan.h"
#include "host/MessageCatalogs.h"
#include "support/GoldenFolder.h"

#include <limits>

namespace {

using namespace support;
using namespace editPanel;

constexpr CATDlgStyle plainFrame = 0xc0000;

class OrvKvParameterEditPanelBuildTest : public OrvKvParameterEditPanelTest {
  protected:
    std::string TitleOfBuilt(const std::string& iKey) {
        return MakeBuilt({.parameter = _length, .key = iKey}).GetTitle().ConvertToChar();
    }
    std::string LabelOfBuilt(const std::string& iKey) {
        MakeBuilt({.parameter = _length, .key = iKey});
        return Label().GetTitle().ConvertToChar();
    }
    // The names of the disabled children.
    std::vector<std::string> Disabled() {
        std::vector<std::string> names;
        for (const CATDialog* child : host::Inspector::Children(Panel()))
            if (child->GetSensitivity() == CATDlgDisable)
                names.emplace_back(child->GetName().ConvertToChar());
        return names;
    }
    std::string Dump() { return host::DialogDump::Of(Panel(), host::DialogDump::WithLayout); }
};

using Names = std::vector<std::string>;

TEST_F(OrvKvParameterEditPanelBuildTest, IsADialogOfTheMainWindowAndEmptyBeforeItIsBuilt) {
    const OrvKvParameterEditPanel& panel = Make();
    EXPECT_STREQ(panel.GetName().ConvertToChar(), "OrvKvParameterEditPanel");
    EXPECT_EQ(host::Inspector::Parent(panel), MainWindow());
    EXPECT_EQ(host::Inspector::Style(panel), 0x601C00UL);
    EXPECT_EQ(panel.GetVisibility(), CATDlgHide);
    EXPECT_TRUE(host::Inspector::Children(panel).empty());
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(panel), 0);
    EXPECT_EQ(SubscriptionsOn(_length), 0);
    EXPECT_FALSE(host::Inspector::IsPowerInputLinked(panel));
    EXPECT_EQ(host::Inspector::PowerInputOwner(), nullptr);
}

TEST_F(OrvKvParameterEditPanelBuildTest, HasOkApplyAndCancelOfWhichTheCommandHears) {
    OrvKvParameterEditPanel& panel = MakeBuilt();
    EXPECT_EQ(host::Inspector::StandardButtons(panel).size(), 3U);
    for (const CATULong button : {CATDlgWndOK, CATDlgWndAPPLY, CATDlgWndCANCEL})
        EXPECT_TRUE(host::DialogUser::PressStandardButton(panel, button)) << button;
    EXPECT_FALSE(host::DialogUser::PressStandardButton(panel, CATDlgWndHELP));
    EXPECT_FALSE(host::Inspector::IsModal(panel));
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaOKNotification", "CATDlgDiaAPPLYNotification",
                                                "CATDlgDiaCANCELNotification"}));
    EXPECT_EQ(panel.GetVisibility(), CATDlgShow) << "to close it is up to the command";
}

TEST_F(OrvKvParameterEditPanelBuildTest, EnterAcceptsAndEscapeCancels) {
    OrvKvParameterEditPanel& panel = MakeBuilt();
    EXPECT_TRUE(host::DialogUser::PressEnter(panel));
    EXPECT_TRUE(host::DialogUser::PressEscape(panel));
    EXPECT_EQ(Command().TakeClasses(), Classes({"CATDlgDiaOKNotification", "CATDlgDiaCANCELNotification"}));
}

TEST_F(OrvKvParameterEditPanelBuildTest, NamesItsResourceFileAfterItsClassAndLeavesHigherLevelsToTheBase) {
    Make();
    for (const int level : {0, -1, std::numeric_limits<int>::min()})
        EXPECT_STREQ(Panel().GetResourceFilename(level), "OrvKvParameterEditPanel") << level;
    for (const int level : {1, 2, std::numeric_limits<int>::max()})
        EXPECT_EQ(Panel().GetResourceFilename(level), nullptr) << level;
}

// Texts

TEST_F(OrvKvParameterEditPanelBuildTest, TheTitleNamesTheParameterInTheUsersLanguage) {
    const std::vector<std::pair<const char*, const char*>> titles = {{"", "Edit Parameter D1"},
                                                                     {"German", "Parameter D1 bearbeiten"},
                                                                     {"French", "Modifier le paramètre D1"},
                                                                     {"Japanese", "パラメーター D1 の編集"}};
    for (const auto& [language, title] : titles) {
        host::MessageCatalogs::SetLanguage(language);
        EXPECT_EQ(TitleOfBuilt("D1"), title) << language;
    }
    host::MessageCatalogs::SetLanguage("");
}

TEST_F(OrvKvParameterEditPanelBuildTest, TheTitleTakesAnyKeyAsItIs) {
    for (const std::string key :
         {"a b", "say \"D\"", "D'", "/p1", "/p2", "Ø äß 直径", "", "100 %s %n", "a\\nb"})
        EXPECT_EQ(TitleOfBuilt(key), "Edit Parameter " + key);
}

TEST_F(OrvKvParameterEditPanelBuildTest, WithoutItsCatalogueTheTitleSaysSo) {
    Allow(Leftover::MissingTexts, "no catalogue is there");
    host::MessageCatalogs::Reset();
    EXPECT_EQ(TitleOfBuilt("D"), "*resource error");
}

TEST_F(OrvKvParameterEditPanelBuildTest, TheLabelShowsTheDescriptionOfTheKey) {
    EXPECT_EQ(LabelOfBuilt("D"), "Diameter");
    EXPECT_EQ(LabelOfBuilt("a b"), "Apple");
    EXPECT_EQ(LabelOfBuilt("Blank"), "");
    EXPECT_EQ(LabelOfBuilt("Ratio"), "Ratio D/p1") << "it has no parameters";
}

TEST_F(OrvKvParameterEditPanelBuildTest, TheLabelSpeaksTheUsersLanguage) {
    _resources.Write("German/OrvKvParametersDescription.CATNls", "D = \"Durchmesser\";\n");
    host::MessageCatalogs::SetLanguage("German");
    EXPECT_EQ(LabelOfBuilt("D"), "Durchmesser");
    EXPECT_EQ(LabelOfBuilt("a b"), "Apple");
    host::MessageCatalogs::SetLanguage("");
}

TEST_F(OrvKvParameterEditPanelBuildTest, AKeyWithoutDescriptionIsShownItself) {
    for (const std::string key :
         {"K", "x y", "say \"D\"", "/p1", "Ø äß 直径", "100 %s %n", "Plug", "D.", "*resource error"})
        EXPECT_EQ(LabelOfBuilt(key), key);
}

TEST_F(OrvKvParameterEditPanelBuildTest, TheTextOfAMissingEntryIsNeverTheDescription) {
    EXPECT_EQ(LabelOfBuilt("Unlucky"), "Unlucky");
    host::MessageCatalogs::Reset();
    Allow(Leftover::MissingTexts, "no catalogue is there");
    EXPECT_EQ(LabelOfBuilt("D"), "D");
}

// Widgets

TEST_F(OrvKvParameterEditPanelBuildTest, ALengthAndAnAngleHaveAToleranceBelowTheValue) {
    for (const CATICkeParm_var& parameter : {_length, host::Parameters::NewAngle("W", 30.0)}) {
        OrvKvParameterEditPanel& panel = MakeBuilt({.parameter = parameter});
        EXPECT_EQ(PiecesOf(panel),
                  Pieces({{"CATDlgLabel", "No Name", 0, "0(1)", "0(1)"},
                          {"ParameterFrame", "D", plainFrame, "2(1)", "0(1)"},
                          {"CATDlgCheckButton", "ToleranceCkb", 0, "2(1)", "1(1)"},
                          {"CATDlgContainer", "SeparateParamFromToleranceCon", 0, "1(1)", "0(1)"},
                          {"CATDlgFrame", "OrvKvToleranceSub", 0, "", ""}}));
        EXPECT_TRUE(host::DialogUser::CanSee(CheckButton()));
        EXPECT_EQ(Area().GetVisibility(), CATDlgHide);
        EXPECT_FALSE(host::Inspector::Children(Area()).empty()) << "it is built";
    }
}

TEST_F(OrvKvParameterEditPanelBuildTest, OtherMagnitudesHaveNoToleranceAndAHiddenCheckButton) {
    for (const CATICkeParm_var& parameter : ParametersWithoutTolerance()) {
        OrvKvParameterEditPanel& panel = MakeBuilt({.parameter = parameter});
        EXPECT_EQ(PiecesOf(panel),
                  Pieces({{"CATDlgLabel", "No Name", 0, "0(1)", "0(1)"},
                          {"ParameterFrame", "D", plainFrame, "2(1)", "0(1)"},
                          {"CATDlgCheckButton", "ToleranceCkb", 0, "", ""},
                          {"CATDlgContainer", "SeparateParamFromToleranceCon", 0, "1(1)", "0(1)"}}));
        EXPECT_EQ(CheckButton().GetVisibility(), CATDlgHide);
        EXPECT_EQ(HasTolerance(), 0);
    }
}

TEST_F(OrvKvParameterEditPanelBuildTest, TheSeparatorIsTenPixelsHighAndWide) {
    MakeBuilt();
    int x = 0;
    int y = 0;
    int height = 0;
    int width = 0;
    Child<CATDlgContainer>()->GetRectDimensions(&x, &y, &height, &width);
    EXPECT_EQ(std::vector<int>({x, y, height, width}), std::vector<int>({1, 1, 10, 10}));
}

TEST_F(OrvKvParameterEditPanelBuildTest, TheCheckButtonStandsBelowTheEditorAndTheLabelLeftOfIt) {
    MakeBuilt();
    const host::LayoutPlan plan = host::PlanLayout(Panel());
    EXPECT_TRUE(plan.IsLeftOf(Label(), ValueEditor()));
    EXPECT_TRUE(plan.IsAbove(ValueEditor(), CheckButton()));
    EXPECT_EQ(plan.CellOf(CheckButton())->column, plan.CellOf(ValueEditor())->column);
}

// A parameter with a publisher of its own.
class PublishedParameter : public StandInParameter {
  public:
    using StandInParameter::StandInParameter;

    using StandInParameter::QueryInterface;
    HRESULT QueryInterface(const IID& iInterface, void** oPointer) override {
        return iInterface == IID_CATIParmPublisher ? _publisher->QueryInterface(iInterface, oPointer)
                                                   : StandInParameter::QueryInterface(iInterface, oPointer);
    }

  private:
    CATIParmPublisher_var _publisher = host::Parameters::NewPublisher("Feature");
};

TEST_F(OrvKvParameterEditPanelBuildTest, TheEditorIsThatOfTheParameterUnderTheNameOfTheKey) {
    constexpr int options = CATCkeNoFormula | CATCkeNoLabel | CATCkeWithSpinner | CATCkeNoRename;
    const std::string call = "D in OrvKvParameterEditPanel, options " + std::to_string(options);
    Calls calls;
    const auto plain = host::Adopt(new StandInParameter(_length));
    plain->frames = host::Adopt<CATICkeParamFrame>(new NotedFrames(_length, calls));
    MakeBuilt({.parameter = CATICkeParm_var(plain), .key = "a \"b\" Ø"});
    EXPECT_EQ(calls, Calls({call + ", named 'a \"b\" Ø'"}));
    calls.clear();
    const auto published = host::Adopt(new PublishedParameter(_length));
    published->frames = plain->frames;
    MakeBuilt({.parameter = CATICkeParm_var(published)});
    EXPECT_EQ(calls, Calls({call + ", named 'D', with a publisher"}));
}

TEST_F(OrvKvParameterEditPanelBuildTest, TheEditorChangesTheParameterAndFollowsIt) {
    MakeBuilt();
    EXPECT_EQ(ValueEditor().Text(), "10mm");
    ParameterWatcher watcher(_length);
    EXPECT_TRUE(host::DialogUser::Type(ValueEditor(), "12.5"));
    EXPECT_EQ(_length->AsReal(), 0.0125);
    EXPECT_EQ(watcher.Take(), Events({"value of D"}));
    EXPECT_TRUE(host::DialogUser::Spin(ValueEditor(), 1));
    EXPECT_TRUE(host::DialogUser::Type(ValueEditor(), "wide"));
    EXPECT_TRUE(ValueEditor().IsRefused());
    Change(_length, 8);
    EXPECT_EQ(ValueEditor().Text(), "8mm");
}

// Flags

TEST_F(OrvKvParameterEditPanelBuildTest, EachFlagDisablesItsPartAlone) {
    MakeBuilt({.parameter = _length});
    EXPECT_EQ(Disabled(), Names());
    MakeBuilt({.parameter = _length, .valueEditable = 0});
    EXPECT_EQ(Disabled(), Names({"D"}));
    MakeBuilt({.parameter = _length, .toleranceEditable = 0});
    EXPECT_EQ(Disabled(), Names({"ToleranceCkb", "OrvKvToleranceSub"}));
    MakeBuilt({.parameter = _length, .valueEditable = 0, .toleranceEditable = 0});
    EXPECT_EQ(Disabled(), Names({"D", "ToleranceCkb", "OrvKvToleranceSub"}));
}

TEST_F(OrvKvParameterEditPanelBuildTest, AnyFlagButZeroLeavesItsPartEnabled) {
    for (const unsigned char flag : std::initializer_list<unsigned char>{1, 2, 255}) {
        MakeBuilt({.parameter = _length, .valueEditable = flag, .toleranceEditable = flag});
        EXPECT_EQ(Disabled(), Names()) << int(flag);
    }
}

TEST_F(OrvKvParameterEditPanelBuildTest, FlagsHoldForOtherMagnitudesToo) {
    for (const CATICkeParm_var& parameter : ParametersWithoutTolerance()) {
        MakeBuilt({.parameter = parameter, .valueEditable = 0, .toleranceEditable = 0});
        EXPECT_EQ(Disabled(), Names({"D", "ToleranceCkb"}));
        EXPECT_FALSE(host::DialogUser::Type(ValueEditor(), "7"));
    }
}

TEST_F(OrvKvParameterEditPanelBuildTest, WhatIsLockedShowsItsValueAndTakesNoOther) {
    MakeBuilt({.parameter = Length("D", 10, 0.2, -0.1), .valueEditable = 0, .toleranceEditable = 0});
    EXPECT_EQ(ValueEditor().Text(), "10mm");
    EXPECT_FALSE(host::DialogUser::Type(ValueEditor(), "12"));
    EXPECT_EQ(CheckButton().GetState(), CATDlgCheck);
    EXPECT_FALSE(host::DialogUser::Uncheck(CheckButton()));
}

// A tolerance that is there already

TEST_F(OrvKvParameterEditPanelBuildTest, TheCheckOfASetToleranceIsReportedAndTheAreaStaysHidden) {
    for (const CATICkeParm_var& parameter : {Length("D", 10, 0.1, -0.05), Length("D", 10, 0, 0)}) {
        const std::string before = ToleranceOf(parameter);
        ParameterWatcher watcher(parameter);
        Make({.parameter = parameter}).Build();
        EXPECT_EQ(Command().TakeClasses(), Classes({checkChanged})) << "the panel does not listen yet";
        EXPECT_EQ(CheckButton().GetState(), CATDlgCheck);
        EXPECT_EQ(HasTolerance(), 1);
        EXPECT_EQ(Area().GetVisibility(), CATDlgHide);
        EXPECT_EQ(PiecesOf(Panel()).back(), Piece({"CATDlgFrame", "OrvKvToleranceSub", 0, "", ""}));
        EXPECT_EQ(ToleranceOf(parameter), before);
        EXPECT_EQ(watcher.Take(), Events());
    }
}

TEST_F(OrvKvParameterEditPanelBuildTest, WithoutAToleranceNothingIsCheckedOrReported) {
    Make().Build();
    EXPECT_EQ(CheckButton().GetState(), CATDlgUncheck);
    EXPECT_EQ(HasTolerance(), 0);
    EXPECT_EQ(Command().TakeClasses(), Classes());
    EXPECT_EQ(ToleranceOf(_length), "none");
}

TEST_F(OrvKvParameterEditPanelBuildTest, TheButtonIsListenedToWhetherItIsHiddenOrNot) {
    std::vector<CATICkeParm_var> parameters = ParametersWithoutTolerance();
    parameters.push_back(_length);
    parameters.push_back(Length("D", 10, 0.1, -0.1));
    for (const CATICkeParm_var& parameter : parameters) {
        const OrvKvParameterEditPanel& panel = MakeBuilt({.parameter = parameter});
        EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(panel), 1);
    }
}

// Power input

TEST_F(OrvKvParameterEditPanelBuildTest, ThePowerInputServesThePanelOnceBuilt) {
    for (const CATICkeParm_var& parameter : {_length, ParametersWithoutTolerance()[0]}) {
        const OrvKvParameterEditPanel& panel = Make({.parameter = parameter});
        Panel().Build();
        EXPECT_TRUE(host::Inspector::IsPowerInputLinked(panel));
        EXPECT_EQ(host::Inspector::PowerInputUpdates(panel), 1);
        EXPECT_EQ(host::Inspector::PowerInputOwner(), &panel);
    }
}

TEST_F(OrvKvParameterEditPanelBuildTest, TheEndGivesThePowerInputBackUnlessAnotherDialogHasIt) {
    MakeBuilt();
    Destroy();
    EXPECT_EQ(host::Inspector::PowerInputOwner(), nullptr);
    MakeBuilt();
    CATDlgDialog other(MainWindow(), "Other");
    other.TakePowerInputFocus();
    Destroy();
    EXPECT_EQ(host::Inspector::PowerInputOwner(), &other);
}

// Once, copies, the end

TEST_F(OrvKvParameterEditPanelBuildTest, ASecondBuildMakesNothing) {
    MakeBuilt({.parameter = Length("D", 10, 0.1, -0.05)});
    const std::string before = Dump();
    CheckButton().SetState(CATDlgUncheck);
    CATDlgDialog other(MainWindow(), "Other");
    other.TakePowerInputFocus();
    Panel().Build();
    EXPECT_EQ(CheckButton().GetState(), CATDlgUncheck);
    CheckButton().SetState(CATDlgCheck);
    EXPECT_EQ(Dump(), before);
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(Panel()), 1);
    EXPECT_EQ(host::Inspector::PowerInputUpdates(Panel()), 1);
    EXPECT_EQ(host::Inspector::PowerInputOwner(), &other);
    EXPECT_EQ(Command().TakeClasses(), Classes());
}

TEST_F(OrvKvParameterEditPanelBuildTest, TheEndRemovesTheCallbackAndLetsTheParameterGo) {
    OrvKvParameterEditPanel& panel = MakeBuilt();
    EXPECT_GT(SubscriptionsOn(_length), 0);
    std::vector<int> counts;
    new CountingChild(panel, counts);
    Destroy();
    EXPECT_EQ(counts, std::vector<int>({0}));
    EXPECT_EQ(SubscriptionsOn(_length), 0);
}

TEST_F(OrvKvParameterEditPanelBuildTest, AnEndBeforeBuildIsSafe) {
    Make();
    Destroy();
    EXPECT_EQ(host::CommandInspection::AnalyseCallbacks(), 0);
}

TEST_F(OrvKvParameterEditPanelBuildTest, APanelThatIsGivenUpCannotBeUsedAndLeavesRoomForTheNext) {
    OrvKvParameterEditPanel& panel = MakeBuilt();
    {
        const host::EventScope event;
        EXPECT_TRUE(host::DialogUser::PressStandardButton(panel, CATDlgWndOK));
        CATDlgCheckButton& button = CheckButton();
        GiveUp();
        EXPECT_FALSE(host::DialogUser::Check(button));
    }
    EXPECT_EQ(SubscriptionsOn(_length), 0);
    Make().Build();
    EXPECT_EQ(host::Inspector::Windows().size(), 1U);
}

TEST_F(OrvKvParameterEditPanelBuildTest, ACopySharesTheWidgetsAndItsEndLeavesThemAlone) {
    MakeBuilt({.parameter = _length, .group = "H", .field = "H7"});
    const std::string before = Dump();
    {
        OrvKvParameterEditPanel copy(Panel());
        OrvKvParameterEditPanel assigned(host::Parameters::NewReal("X", 1.0), "X", "", "", 1, 1);
        assigned = copy;
        for (OrvKvParameterEditPanel* twin : {&copy, &assigned}) {
            CATICkeParm_var parameter;
            CATString key;
            CATString group;
            CATString field;
            EXPECT_EQ(twin->GetModifiedParameter(&parameter, &key, nullptr, nullptr, &group, &field), S_OK);
            EXPECT_TRUE(parameter == _length);
            EXPECT_STREQ(key.ConvertToChar(), "D");
            EXPECT_STREQ((group + field).ConvertToChar(), "HH7");
            CheckButton().SetState(CATDlgCheck);
            unsigned char state = 0;
            EXPECT_EQ(twin->HasTolerance(&state), S_OK);
            EXPECT_EQ(int(state), 1);
            CheckButton().SetState(CATDlgUncheck);
            twin->Build();
            EXPECT_TRUE(host::Inspector::Children(*twin).empty());
        }
    }
    EXPECT_EQ(Dump(), before);
    EXPECT_TRUE(host::DialogUser::Check(CheckButton()));
    EXPECT_EQ(Area().GetVisibility(), CATDlgShow);
}

TEST_F(OrvKvParameterEditPanelBuildTest, LooksLikeThis) {
    MakeBuilt();
    EXPECT_TRUE(MatchesGolden("ParameterEditPanel-length", Dump()));
    MakeBuilt(
        {.parameter = host::Parameters::NewAngle("W", 30.0), .valueEditable = 0, .toleranceEditable = 0});
    EXPECT_TRUE(MatchesGolden("ParameterEditPanel-angle-locked", Dump()));
    MakeBuilt({.parameter = host::Parameters::NewReal("X", 2.5), .key = "X"});
    EXPECT_TRUE(MatchesGolden("ParameterEditPanel-real", Dump()));
}

} // namespace
