#include "session/Player.h"

#include "CATDlgCheckButton.h"
#include "CATDlgCombo.h"
#include "CATDlgEditor.h"
#include "CATDlgMultiList.h"
#include "CATDlgPushButton.h"
#include "CATDlgRadioButton.h"
#include "CATDlgSpinner.h"
#include "PlayedPanel.h"
#include "session/StepHandler.h"

namespace sessions {

TEST_F(PlayerTest, EveryStepDoesWhatAPersonDoes) {
    int x = 0;
    int y = 0;
    EXPECT_EQ(Play(R"({"do":"choose","at":"TypeCmb","line":2}
{"do":"type","at":"NameEdt","text":"Plate"}
{"do":"check","at":"FlagCkb"}
{"do":"check","at":"TwoRdb"}
{"do":"spin","at":"CountSpn","steps":3}
{"do":"select","at":"RowsMul","rows":[0,1]}
{"do":"page","at":"SecondPge"}
{"do":"type","at":"DeepEdt","text":"deep"}
{"do":"move","at":"Panel","x":40,"y":-50})"),
              Held());
    ThePanel().GetRectDimensions(&x, &y, nullptr, nullptr);
    EXPECT_EQ(ThePanel().type->GetSelect(), 2);
    EXPECT_EQ(ThePanel().name->GetText(), "Plate");
    EXPECT_EQ(ThePanel().flag->GetState(), CATDlgCheck);
    EXPECT_EQ(ThePanel().two->GetState(), CATDlgCheck);
    EXPECT_EQ(ThePanel().count->GetValue(), 3.0);
    EXPECT_EQ(ThePanel().rows->GetSelectCount(), 2);
    EXPECT_EQ(std::pair(x, y), std::pair(40, -50));
    EXPECT_EQ(Play(R"({"do":"choose","at":"TypeCmb","text":"Slot"}
{"do":"uncheck","at":"FlagCkb"}
{"do":"type","at":"CountSpn","text":"7.5"}
{"do":"activate","at":"RowsMul","row":1,"column":1})"),
              Held());
    EXPECT_EQ(ThePanel().type->GetSelect(), 1);
    EXPECT_EQ(ThePanel().flag->GetState(), CATDlgUncheck);
    EXPECT_EQ(ThePanel().count->GetValue(), 7.5);
    EXPECT_EQ(ThePanel().rows->GetActivatedColumn(), 1);
}

TEST_F(PlayerTest, ButtonsOfADialogAndItsCloseBoxAreHeardByTheCommand) {
    EXPECT_EQ(Play(R"({"do":"press","at":"Panel","button":"ok"}
{"expect":"notified","class":"CATDlgDiaOKNotification","times":1}
{"do":"press","at":"Panel","button":"Cancel"}
{"expect":"notified","class":"CATDlgDiaCANCELNotification"}
{"expect":"notified","class":"CATDlgDiaOKNotification","times":0}
{"do":"close","at":"Panel"}
{"expect":"notified","class":"CATDlgWindCloseNotification"})"),
              Held());
    EXPECT_EQ(Command().TakeClasses(),
              support::Classes(
                  {"CATDlgDiaOKNotification", "CATDlgDiaCANCELNotification", "CATDlgWindCloseNotification"}));
}

TEST_F(PlayerTest, EveryExpectationThatHoldsIsSilent) {
    EXPECT_EQ(Play(R"({"do":"choose","at":"TypeCmb","line":1}
{"do":"select","at":"RowsMul","rows":[1]}
{"do":"check","at":"OneRdb"}
{"do":"type","at":"CountSpn","text":"2.5"}
{"expect":"text","at":"TypeCmb","is":"Slot"}
{"expect":"text","at":"InfoEdt","is":"first\nsecond"}
{"expect":"text","at":"HintLab","is":"Choose a type"}
{"expect":"text","at":"CountSpn","is":"2.5"}
{"expect":"title","at":"HintLab","is":"Choose a type"}
{"expect":"lines","at":"TypeCmb","is":["Hole","Slot","Groove"]}
{"expect":"lines","at":"TypeCmb","is":3}
{"expect":"lines","at":"InfoEdt","is":["first","second"]}
{"expect":"line","at":"TypeCmb","is":1}
{"expect":"line","at":"TypeCmb","is":"Slot"}
{"expect":"line","at":"TypeCmb","line":2,"is":"Groove"}
{"expect":"line","at":"InfoEdt","line":1,"is":"second"}
{"expect":"selected","at":"RowsMul","is":[1]}
{"expect":"selected","at":"TypeCmb","is":1}
{"expect":"selected","at":"Pages","is":0}
{"expect":"rows","at":"RowsMul","is":[["D","10mm"],["T","10mm"]]}
{"expect":"rows","at":"RowsMul","is":2}
{"expect":"cell","at":"RowsMul","row":1,"column":0,"is":"T"}
{"expect":"columns","at":"RowsMul","is":["Name","Value"]}
{"expect":"checked","at":"OneRdb","is":true}
{"expect":"checked","at":"FlagCkb","is":false}
{"expect":"shown","at":"PlainEdt","is":true}
{"expect":"shown","at":"DeepEdt","is":false}
{"expect":"enabled","at":"GoPbt","is":true}
{"expect":"exists","at":"GoPbt","is":true}
{"expect":"exists","at":"StopPbt","is":false}
{"expect":"widget","at":"TopFrm/GoPbt","is":"CATDlgPushButton"})"),
              Held());
}

// Each row expects what does not hold; the actual value stands beside it.
struct Wrong {
    const char* line;
    const char* what;
    const char* expected;
    const char* actual;
};

void PrintTo(const Wrong& iWrong, std::ostream* ioStream) {
    *ioStream << iWrong.line;
}

class WrongExpectationTest : public PlayerTest, public testing::WithParamInterface<Wrong> {};

TEST_P(WrongExpectationTest, IsToldWithBothValues) {
    EXPECT_EQ(Play(GetParam().line),
              Failed("s:1: " + std::string(GetParam().what), GetParam().expected, GetParam().actual));
}

const Wrong wrongExpectations[] = {
    {R"({"expect":"text","at":"NameEdt","is":"x"})", "text of NameEdt", R"("x")", R"("")"},
    {R"({"expect":"text","at":"GoPbt","is":"x"})", "text of GoPbt", R"("x")",
     "Panel/TopFrm/GoPbt is a CATDlgPushButton and has no text"},
    {R"({"expect":"title","at":"HintLab","is":"x"})", "title of HintLab", R"("x")", R"("Choose a type")"},
    {R"({"expect":"lines","at":"TypeCmb","is":["Hole"]})", "lines of TypeCmb", R"(["Hole"])",
     R"(["Hole","Slot","Groove"])"},
    {R"({"expect":"lines","at":"TypeCmb","is":4})", "lines of TypeCmb", "4", "3"},
    {R"({"expect":"lines","at":"FlagCkb","is":4})", "lines of FlagCkb", "4",
     "Panel/TopFrm/FlagCkb is a CATDlgCheckButton and has no lines"},
    {R"({"expect":"line","at":"TypeCmb","is":0})", "line of TypeCmb", "0", "-1"},
    {R"({"expect":"line","at":"TypeCmb","line":3,"is":"x"})", "line 3 of TypeCmb", R"("x")",
     "Panel/TopFrm/TypeCmb is a CATDlgCombo and has no line 3, it has 3"},
    {R"({"expect":"selected","at":"RowsMul","is":[0]})", "selected of RowsMul", "[0]", "[]"},
    {R"({"expect":"rows","at":"RowsMul","is":[]})", "rows of RowsMul", "[]",
     R"([["D","10mm"],["T","10mm"]])"},
    {R"({"expect":"rows","at":"RowsMul","is":3})", "rows of RowsMul", "3", "2"},
    {R"({"expect":"cell","at":"RowsMul","row":0,"column":1,"is":"x"})", "cell 0, 1 of RowsMul", R"("x")",
     R"("10mm")"},
    {R"({"expect":"cell","at":"RowsMul","row":2,"column":0,"is":""})", "cell 2, 0 of RowsMul", R"("")",
     "Panel/TopFrm/RowsMul is a CATDlgMultiList and has no row 2, it has 2"},
    {R"({"expect":"cell","at":"RowsMul","row":0,"column":2,"is":""})", "cell 0, 2 of RowsMul", R"("")",
     "Panel/TopFrm/RowsMul is a CATDlgMultiList and has no column 2, it has 2"},
    {R"({"expect":"columns","at":"RowsMul","is":["x"]})", "columns of RowsMul", R"(["x"])",
     R"(["Name","Value"])"},
    {R"({"expect":"text","at":"DepthFrm","is":"12.5 mm"})", "text of DepthFrm", R"("12.5 mm")",
     R"("12.5mm")"},
    {R"({"expect":"problem","at":"DepthFrm","is":"x"})", "problem of DepthFrm", R"("x")", R"("")"},
    {R"({"expect":"problem","at":"NameEdt","is":""})", "problem of NameEdt", R"("")",
     "Panel/TopFrm/NameEdt is a CATDlgEditor and has no problem"},
    {R"({"expect":"checked","at":"FlagCkb","is":true})", "checked of FlagCkb", "true", "false"},
    {R"({"expect":"checked","at":"NameEdt","is":true})", "checked of NameEdt", "true",
     "Panel/TopFrm/NameEdt is a CATDlgEditor and has no check mark"},
    {R"({"expect":"shown","at":"DeepEdt","is":true})", "shown of DeepEdt", "true", "false"},
    {R"({"expect":"enabled","at":"GoPbt","is":false})", "enabled of GoPbt", "false", "true"},
    {R"({"expect":"exists","at":"GoPbt","is":false})", "exists of GoPbt", "false", "true"},
    {R"({"expect":"exists","at":"StopPbt","is":true})", "exists of StopPbt", "true", "false"},
    {R"({"expect":"exists","at":"a//b","is":false})", "exists of a//b", "false", "'a//b' is not a path"},
    {R"({"expect":"widget","at":"GoPbt","is":"CATDlgCombo"})", "widget of GoPbt", R"("CATDlgCombo")",
     R"("CATDlgPushButton")"},
    {R"({"expect":"text","at":"StopPbt","is":"x"})", "text of StopPbt", R"("x")",
     "there is no widget 'StopPbt'"},
    {R"({"expect":"notified","class":"X"})", "notified since the last step", R"({"class":"X"})", "[]"},
    {R"({"expect":"message","text":"X"})", "message since the last step", R"({"text":"X"})", "[]"},
    {R"({"expect":"trace","text":"X"})", "trace since the last step", R"({"text":"X"})", "[]"},
};

INSTANTIATE_TEST_SUITE_P(Expectations, WrongExpectationTest, testing::ValuesIn(wrongExpectations));

struct Refused {
    const char* line;
    const char* reason;
};

void PrintTo(const Refused& iRefused, std::ostream* ioStream) {
    *ioStream << iRefused.line;
}

class RefusedStepTest : public PlayerTest, public testing::WithParamInterface<Refused> {};

// The step behind the refused one would fail, were it played.
TEST_P(RefusedStepTest, EndsTheSessionWithTheReason) {
    const std::string session =
        std::string(GetParam().line) + "\n" + R"({"expect":"text","at":"NameEdt","is":"x"})";
    EXPECT_EQ(Play(session), Texts({"s:1: refused: " + std::string(GetParam().reason)}));
}

const Refused refusedSteps[] = {
    {R"({"do":"press","at":"StopPbt"})", "there is no widget 'StopPbt'"},
    {R"({"do":"press","at":"TypeCmb"})", "Panel/TopFrm/TypeCmb is a CATDlgCombo, no push button"},
    {R"({"do":"press","at":"GoPbt","button":"OK"})", "Panel/TopFrm/GoPbt is a CATDlgPushButton, no dialog"},
    {R"({"do":"press","at":"Panel","button":"Apply"})", "Panel has no button Apply"},
    {R"({"do":"choose","at":"TypeCmb","line":3})", "Panel/TopFrm/TypeCmb has no line 3, it has 3"},
    {R"({"do":"choose","at":"TypeCmb","text":"Rib"})", "Panel/TopFrm/TypeCmb has no line 'Rib'"},
    {R"({"do":"choose","at":"GoPbt","line":0})", "Panel/TopFrm/GoPbt is a CATDlgPushButton, no combo"},
    {R"({"do":"check","at":"GoPbt"})", "Panel/TopFrm/GoPbt is no radio or check button"},
    {R"({"do":"uncheck","at":"OneRdb"})",
     "Panel/TopFrm/OneRdb is a radio button and cannot be unchecked by hand"},
    {R"({"do":"type","at":"InfoEdt","text":"x"})", "Panel/TopFrm/InfoEdt is read-only"},
    {R"({"do":"type","at":"GoPbt","text":"x"})", "Panel/TopFrm/GoPbt is a CATDlgPushButton, no editor"},
    {R"({"do":"spin","at":"NameEdt","steps":1})", "Panel/TopFrm/NameEdt is a CATDlgEditor, no spinner"},
    {R"({"do":"select","at":"RowsMul","rows":[2]})", "Panel/TopFrm/RowsMul has no line 2, it has 2"},
    {R"({"do":"select","at":"TypeCmb","rows":[0]})", "Panel/TopFrm/TypeCmb is a CATDlgCombo, no list"},
    {R"({"do":"activate","at":"RowsMul","row":0,"column":2})", "Panel/TopFrm/RowsMul has no column 2"},
    {R"({"do":"activate","at":"GoPbt","row":0,"column":0})",
     "Panel/TopFrm/GoPbt is a CATDlgPushButton, no list"},
    {R"({"do":"page","at":"TopFrm"})", "Panel/TopFrm is a CATDlgFrame, no tab page"},
    {R"({"do":"move","at":"TopFrm","x":1,"y":1})", "Panel/TopFrm is a CATDlgFrame, no window"},
    {R"({"do":"close","at":"TopFrm"})", "Panel/TopFrm is a CATDlgFrame, no window"},
    {R"({"do":"type","at":"DepthFrm","text":"1\n2"})", "Panel/TopFrm/DepthFrm takes one line"},
    {R"({"do":"escape","at":"GoPbt"})", "Panel/TopFrm/GoPbt is a CATDlgPushButton, no value field or dialog"},
    {R"({"do":"type","at":"DeepEdt","text":"x"})",
     "Panel/Pages/SecondPge/DeepEdt is on the page Panel/Pages/SecondPge, which is not in front"},
};

INSTANTIATE_TEST_SUITE_P(Steps, RefusedStepTest, testing::ValuesIn(refusedSteps));

TEST_F(PlayerTest, AFailedExpectationDoesNotEndTheSession) {
    EXPECT_EQ(Play(R"({"expect":"text","at":"NameEdt","is":"a"}
{"do":"type","at":"NameEdt","text":"b"}
{"expect":"text","at":"NameEdt","is":"c"})"),
              Texts({"s:1: text of NameEdt\n  expected: \"a\"\n  actual:   \"\"",
                     "s:3: text of NameEdt\n  expected: \"c\"\n  actual:   \"b\""}));
}

TEST_F(PlayerTest, AParameterIsTypedSteppedAndRestored) {
    EXPECT_EQ(Play(R"({"expect":"text","at":"DepthFrm","is":"12.5mm"}
{"do":"type","at":"DepthFrm","text":"1/2 in"}
{"expect":"text","at":"DepthFrm","is":"12.7mm"}
{"expect":"problem","at":"DepthFrm","is":""}
{"do":"spin","at":"DepthFrm","steps":-2}
{"expect":"text","at":"DepthFrm","is":"10.7mm"}
{"do":"type","at":"DepthFrm","text":"wide"}
{"expect":"text","at":"DepthFrm","is":"wide"}
{"expect":"problem","at":"DepthFrm","is":"'wide' is not a number"}
{"do":"escape","at":"DepthFrm"}
{"expect":"text","at":"DepthFrm","is":"10.7mm"}
{"expect":"problem","at":"DepthFrm","is":""}
{"expect":"enabled","at":"DepthFrm","is":true}
{"expect":"widget","at":"DepthFrm","is":"ParameterFrame"})"),
              Held());
    EXPECT_EQ(ThePanel().depth->Show(), "10.7mm");
}

TEST_F(PlayerTest, AParameterThatTheUserMayNotEditIsRefused) {
    ThePanel().depth->SetUserAccessMode(1);
    for (const char* line :
         {R"({"do":"type","at":"DepthFrm","text":"8"})", R"({"do":"spin","at":"DepthFrm","steps":1})"})
        EXPECT_EQ(Play(line), Texts({"s:1: refused: Panel/TopFrm/DepthFrm is read-only"}));
    EXPECT_EQ(ThePanel().depth->Show(), "12.5mm");
}

TEST_F(PlayerTest, EscapeCancelsADialog) {
    EXPECT_EQ(Play(R"({"do":"escape","at":"Panel"}
{"expect":"notified","class":"CATDlgDiaCANCELNotification","times":1})"),
              Held());
}

TEST_F(PlayerTest, ASpinnerIsReadWithItsPrecision) {
    ThePanel().count->SetPrecision(0, 0);
    EXPECT_EQ(Play(R"({"do":"type","at":"CountSpn","text":"2,75"}
{"expect":"text","at":"CountSpn","is":"3"})"),
              Held());
    EXPECT_EQ(ThePanel().count->GetValue(), 2.75);
}

TEST_F(PlayerTest, StepsAndExpectationsAreCounted) {
    std::istringstream input(R"({"do":"check","at":"FlagCkb"}
{"expect":"checked","at":"FlagCkb","is":true}
{"expect":"checked","at":"FlagCkb","is":false}
{"do":"check","at":"Nothing"}
{"do":"check","at":"OneRdb"})");
    const session::Reading reading = session::ReadScript(input, "s", ThePlayer().Words());
    ASSERT_TRUE(reading.script) << reading.problem;
    const session::PlayResult result = ThePlayer().Play(*reading.script);
    EXPECT_EQ(result.steps, 2U);
    EXPECT_EQ(result.expectations, 2U);
    EXPECT_EQ(result.failures.size(), 2U);
    EXPECT_EQ(ThePanel().one->GetState(), CATDlgUncheck);
}

TEST_F(PlayerTest, TracesAndMessagesCountFromTheLastStepOnly) {
    EXPECT_EQ(Play(R"({"do":"press","at":"GoPbt"}
{"expect":"message","text":"Really go?","title":"Going","times":1}
{"expect":"trace","channel":"Channel","level":2,"text":"gone"}
{"expect":"trace","text":"gone","times":1}
{"do":"check","at":"FlagCkb"}
{"expect":"message","text":"Really go?","times":0}
{"expect":"trace","text":"gone","times":0})"),
              Held());
    EXPECT_EQ(Play(R"({"do":"press","at":"GoPbt"}
{"expect":"trace","channel":"Channel","level":1,"text":"gone"})"),
              Failed("s:2: trace since the last step", R"({"channel":"Channel","level":1,"text":"gone"})",
                     R"([{"channel":"Channel","level":2,"text":"gone"}])"));
}

TEST_F(PlayerTest, AMessageGetsTheAnswerThatWasGivenBefore) {
    EXPECT_EQ(Play(R"({"do":"press","at":"GoPbt"}
{"expect":"text","at":"InfoEdt","is":"gone"}
{"do":"answer","button":"Cancel"}
{"do":"press","at":"GoPbt"}
{"expect":"text","at":"InfoEdt","is":"stayed"})"),
              Held());
}

TEST_F(PlayerTest, AnAnswerForWhichNoMessageComesIsAFailure) {
    EXPECT_EQ(Play(R"({"do":"answer","button":"OK"})"),
              Failed("s:1: at the end of the session every answer is used", "0",
                     "1 answer for which no message came"));
    host::Messages::Reset();
}

TEST_F(PlayerTest, ANotificationIsComparedByTheValuesThatAreAskedFor) {
    EXPECT_EQ(Play(R"({"do":"choose","at":"TypeCmb","line":0}
{"expect":"notified","class":"CATDlgComboSelectNotification"}
{"expect":"notified","class":"CATDlgComboSelectNotification","with":{}}
{"expect":"notified","class":"CATDlgComboSelectNotification","with":{"name":"catdlgcomboselectnotification","number":1}})"),
              Held());
    EXPECT_EQ(Play(R"({"do":"choose","at":"TypeCmb","line":0}
{"expect":"notified","class":"CATDlgComboSelectNotification","with":{"number":1}}
{"expect":"notified","class":"CATDlgComboSelectNotification","with":{"colour":1}})")
                  .size(),
              2U);
}

TEST_F(PlayerTest, WhatThePanelAnswersItselfIsNotHeardByTheCommand) {
    EXPECT_EQ(Play(R"({"do":"press","at":"GoPbt"}
{"expect":"notified","class":"CATDlgPushBActivateNotification","times":0}
{"do":"choose","at":"TypeCmb","line":0}
{"expect":"notified","class":"CATDlgComboSelectNotification","times":1})"),
              Held());
}

// A command's own step, which tells what it was given.
class PickHandler : public session::StepHandler {
  public:
    session::Form Describe() const override { return {"pick", {{"element"}}}; }
    host::Outcome Do(const session::Json& iStep) override {
        picked = iStep.at("element").get<std::string>();
        return picked == "Face.1" ? host::Outcome::Done()
                                  : host::Outcome::Refused("there is no element " + picked);
    }

    std::string picked;
};

TEST_F(PlayerTest, ACommandAddsStepsOfItsOwn) {
    PickHandler handler;
    ThePlayer().AddHandler(handler);
    EXPECT_EQ(Play(R"({"do":"pick","element":"Face.1"})"), Held());
    EXPECT_EQ(handler.picked, "Face.1");
    EXPECT_EQ(Play(R"({"do":"pick","element":"Edge.1"})"),
              Texts({"s:1: refused: there is no element Edge.1"}));
}

TEST_F(PlayerTest, TheRecorderLetsTheCommandHearEverything) {
    EXPECT_EQ(Play(R"({"do":"choose","at":"TypeCmb","line":0})"), Held());
    ASSERT_EQ(Recorder().Heard().size(), 1U);
    EXPECT_EQ(Recorder().Heard()[0].className, "CATDlgComboSelectNotification");
    EXPECT_EQ(Command().TakeClasses(), support::Classes({"CATDlgComboSelectNotification"}));
}

TEST_F(PlayerTest, HostileTheDialogGoesInItsOwnStep) {
    session::Player& player = ThePlayer();
    PickHandler handler;
    player.AddHandler(handler);
    ThePanel().RequestDelayedDestruction();
    EXPECT_EQ(Play(R"({"do":"pick","element":"Face.1"}
{"expect":"exists","at":"Panel","is":false}
{"do":"press","at":"GoPbt"})"),
              Texts({"s:3: refused: there is no widget 'GoPbt'"}));
}

} // namespace sessions
