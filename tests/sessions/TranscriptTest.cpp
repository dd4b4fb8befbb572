#include "session/Transcript.h"

#include "CATDlgCombo.h"
#include "PlayedPanel.h"
#include "host/EventScope.h"
#include "session/WidgetValues.h"

namespace sessions {

class TranscriptTest : public PlayerTest {
  protected:
    // The transcript of a session, whole.
    std::string Transcribe(const std::string& iSession) {
        host::EventScope::RunIdle();
        std::ostringstream output;
        session::Transcript transcript(output);
        transcript.Start("tour.jsonl", ThePlayer().SinceStep());
        ThePlayer().AddListener(transcript);
        std::istringstream input(iSession);
        const session::Reading reading = session::ReadScript(input, "s", ThePlayer().Words());
        if (!reading.script)
            return reading.problem;
        transcript.Finish(ThePlayer().Play(*reading.script));
        TakeMessages();
        return output.str();
    }
};

TEST_F(TranscriptTest, TellsWhatCameOfEachStep) {
    EXPECT_EQ(Transcribe(R"({"do":"choose","at":"TypeCmb","line":1}
{"expect":"line","at":"TypeCmb","is":1}

{"do":"press","at":"GoPbt"}
{"expect":"line","at":"TypeCmb","is":2}
{"do":"press","at":"Nothing"})"),
              R"(tour.jsonl

before the first step
    created Panel and 17 widgets below
1: {"do":"choose","at":"TypeCmb","line":1}
    notified CATDlgComboSelectNotification {"name":"catdlgcomboselectnotification","number":1}
    changed Panel/TopFrm/TypeCmb (selection): 3 lines, line 1 "Slot" chosen
2: {"expect":"line","at":"TypeCmb","is":1}
4: {"do":"press","at":"GoPbt"}
    message "Going": "Really go?" answered OK
    trace Channel 2: "gone"
    created Question
    changed Panel/TopFrm/InfoEdt (content): "gone"
    changed Panel (layout)
    destroyed Question
5: {"expect":"line","at":"TypeCmb","is":2}
    failed; actual: 1
6: {"do":"press","at":"Nothing"}
    refused: there is no widget 'Nothing'

3 steps, 2 expectations, 2 failures
)");
}

TEST_F(TranscriptTest, TellsWhatAParameterShowsAndWhyATextIsNotTaken) {
    EXPECT_EQ(Transcribe(R"({"do":"type","at":"DepthFrm","text":"1 cm"}
{"do":"type","at":"DepthFrm","text":"wide"}
{"do":"escape","at":"DepthFrm"})"),
              R"(tour.jsonl

before the first step
    created Panel and 17 widgets below
1: {"do":"type","at":"DepthFrm","text":"1 cm"}
    changed Panel/TopFrm/DepthFrm (content): "10mm"
2: {"do":"type","at":"DepthFrm","text":"wide"}
    changed Panel/TopFrm/DepthFrm (content): "wide", which is not taken: 'wide' is not a number
3: {"do":"escape","at":"DepthFrm"}
    changed Panel/TopFrm/DepthFrm (content): "10mm"

3 steps, 0 expectations, 0 failures
)");
}

TEST_F(TranscriptTest, TellsWhatIsDestroyedByItsPath) {
    ThePanel().RequestDelayedDestruction();
    EXPECT_EQ(Transcribe(R"({"expect":"exists","at":"Panel","is":false})"), R"(tour.jsonl

before the first step
    created Panel and 17 widgets below
    destroyed Panel and 17 widgets below
1: {"expect":"exists","at":"Panel","is":false}

0 steps, 1 expectation, 0 failures
)");
}

TEST_F(TranscriptTest, TheTreeHoldsClassNameStatesAndValues) {
    ThePanel().type->SetSelect(2);
    const session::Json tree = session::TreeOfAll();
    ASSERT_EQ(tree.size(), 1U);
    EXPECT_EQ(tree[0].at("class"), "CATDlgDialog");
    EXPECT_EQ(tree[0].at("shown"), true);
    const session::Json& combo = tree[0].at("children")[0].at("children")[1];
    EXPECT_EQ(combo,
              session::Json::parse(R"({"class":"CATDlgCombo","name":"TypeCmb","shown":true,"enabled":true,
        "text":"Groove","lines":["Hole","Slot","Groove"],"selected":2})"));
}

TEST_F(TranscriptTest, TheTreeHoldsTheProblemOfAFieldThatHasOne) {
    const auto field = [] { return session::TreeOfAll()[0].at("children")[0].at("children").back(); };
    EXPECT_EQ(field(), session::Json::parse(
                           R"({"class":"ParameterFrame","name":"DepthFrm","shown":true,"enabled":true,
        "text":"12.5mm"})"));
    EXPECT_EQ(Play(R"({"do":"type","at":"DepthFrm","text":"wide"})"), Held());
    EXPECT_EQ(field(), session::Json::parse(
                           R"({"class":"ParameterFrame","name":"DepthFrm","shown":true,"enabled":true,
        "text":"wide","problem":"'wide' is not a number"})"));
}

} // namespace sessions
