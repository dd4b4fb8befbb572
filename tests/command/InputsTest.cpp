// The input geometries, picked from the sample part.

#include "CATDlgPushButton.h"
#include "CommandTest.h"
#include "host/DialogPath.h"
#include "host/DialogUser.h"
#include "host/MessageCatalogs.h"
#include "workbench/CommandSteps.h"

namespace command {

namespace {

using engineering::ElementKind;
using session::Json;

using Kinds = std::set<ElementKind>;
using AllHeard = std::vector<HeardNotification>;

} // namespace

class InputsTest : public CommandTest {
  protected:
    // A tapped blind hole: a point, a direction and a limit.
    void StartWithBlindHole() {
        ASSERT_TRUE(Start());
        ASSERT_TRUE(ChooseGroup(1));
        ASSERT_EQ(Command().TypeKey(), "TappedBlindHole");
        TakeHeard();
    }
    static Texts Inputs() { return {Input(1), Input(2), Input(3)}; }
};

TEST_F(InputsTest, ShowsTheInputsThatTheTypeHas) {
    ASSERT_TRUE(Start());
    EXPECT_EQ(Inputs(), Texts({"No selection", "No selection", "hidden"}));
    EXPECT_EQ(PressPushButton("Input3Pbt").reason,
              "MainPanel/GroupFrm/OrvKvGroupAndGeometrySub/InsertionEditorSub/Input3Pbt is hidden");
    ASSERT_TRUE(ChooseGroup(1));
    EXPECT_EQ(Inputs(), Texts({"No selection", "No selection", "No selection"}));
}

TEST_F(InputsTest, TheFirstInputWaitsAndEachPickLetsTheNextOneWait) {
    StartWithBlindHole();
    EXPECT_EQ(Command().AwaitedInput(), 1);
    EXPECT_EQ(Command().AwaitedKinds(), Kinds({ElementKind::Point}));
    EXPECT_TRUE(Command().Pick("Top face hole 1"));
    EXPECT_EQ(Command().AwaitedInput(), 2);
    EXPECT_TRUE(Command().Pick("Hole 1 axis"));
    EXPECT_EQ(Command().AwaitedInput(), 3);
    EXPECT_TRUE(Command().Pick("Base face"));
    EXPECT_EQ(Command().AwaitedInput(), 0);
    EXPECT_EQ(Inputs(), Texts({"Top face hole 1", "Hole 1 axis", "Base face"}));
    EXPECT_EQ(Command().PickedElements(), Texts({"Top face hole 1", "Hole 1 axis", "Base face"}));
}

TEST_F(InputsTest, AButtonLetsItsInputWaitAndAPickReplacesTheElement) {
    StartWithBlindHole();
    EXPECT_TRUE(Command().Pick("Top face hole 1"));
    EXPECT_TRUE(PressPushButton("Input1Pbt"));
    EXPECT_EQ(TakeHeard(), AllHeard({{"OrvKvSetInputGeometryNotification", {{"inputGeometry", 1}}}}));
    EXPECT_EQ(Command().AwaitedInput(), 1);
    EXPECT_TRUE(Command().Pick("Top face hole 2"));
    EXPECT_EQ(Input(1), "Top face hole 2");
    EXPECT_EQ(Command().AwaitedInput(), 2);
}

TEST_F(InputsTest, RefusesWhatDoesNotFitAndKeepsWhatIsThere) {
    StartWithBlindHole();
    EXPECT_EQ(Command().Pick("Top face").reason, "'Top face' is a plane; the input takes a point.");
    EXPECT_EQ(Command().Pick("Moon").reason, "The part has no element 'Moon'.");
    EXPECT_EQ(Inputs(), Texts({"No selection", "No selection", "No selection"}));
    for (const char* element : {"Top face hole 1", "Hole 1 axis", "Base face"})
        EXPECT_TRUE(Command().Pick(element));
    EXPECT_EQ(Command().Pick("Base face").reason,
              "No input waits for an element. Press the button of an input first.");
    EXPECT_TRUE(PressPushButton("Input2Pbt"));
    EXPECT_EQ(Command().Pick("Top face hole 1").reason,
              "'Top face hole 1' is a point; the input takes a line or plane.");
    EXPECT_EQ(Inputs(), Texts({"Top face hole 1", "Hole 1 axis", "Base face"}));
}

TEST_F(InputsTest, TheDirectionCanBeInvertedAndTurnedBack) {
    StartWithBlindHole();
    EXPECT_TRUE(Command().Pick("Top face hole 1"));
    EXPECT_TRUE(Command().Pick("Top face"));
    EXPECT_TRUE(PressPushButton("InvertPbt"));
    EXPECT_EQ(TakeHeard(), AllHeard({{"OrvKvInvertFeatureNotification", Json::object()}}));
    EXPECT_EQ(Inputs(), Texts({"Top face hole 1", "Top face (inverted)", "No selection"}));
    EXPECT_TRUE(PressPushButton("InvertPbt"));
    EXPECT_EQ(Input(2), "Top face");
}

TEST_F(InputsTest, AnotherTypeKeepsWhatItTakesToo) {
    StartWithBlindHole();
    for (const char* element : {"Top face hole 1", "Top face", "Base face"})
        EXPECT_TRUE(Command().Pick(element));
    ASSERT_TRUE(ChooseType(1));
    EXPECT_EQ(Inputs(), Texts({"Top face hole 1", "Top face", "hidden"}));
    ASSERT_TRUE(ChooseGroup(3)); // a groove on a shaft takes lines as direction
    EXPECT_EQ(Inputs(), Texts({"Top face hole 1", "No selection", "hidden"}));
    EXPECT_EQ(Command().AwaitedInput(), 2);
}

TEST_F(InputsTest, TellsOfEachChangeThatAPersonCouldSee) {
    StartWithBlindHole();
    int changes = 0;
    Command().WhenInputsChange([&changes] { ++changes; });
    EXPECT_FALSE(Command().Pick("Moon"));
    EXPECT_EQ(changes, 0);
    EXPECT_TRUE(Command().Pick("Top face hole 1"));
    EXPECT_EQ(changes, 1);
    EXPECT_TRUE(PressPushButton("Input1Pbt"));
    EXPECT_EQ(changes, 2);
}

TEST_F(InputsTest, SessionsPickAndSetThroughSteps) {
    StartWithBlindHole();
    workbench::PickStep pick(Command());
    EXPECT_TRUE(pick.Do(Json{{"do", "pick"}, {"element", "Top face hole 3"}}));
    EXPECT_EQ(Input(1), "Top face hole 3");
    EXPECT_FALSE(pick.Do(Json{{"do", "pick"}, {"element", "Moon"}}));
    workbench::SetStep set(Command());
    EXPECT_TRUE(set.Do(Json{{"do", "set"}, {"parameter", "E"}, {"text", "3 mm"}}));
    EXPECT_EQ(RowOf("E").substr(0, 8), "*|E|3mm|");
    EXPECT_FALSE(set.Do(Json{{"do", "set"}, {"parameter", "E"}, {"text", "3 kg"}}));
}

TEST_F(InputsTest, NothingCanBePickedOnceTheDialogIsClosed) {
    StartWithBlindHole();
    ASSERT_TRUE(PressButton(CATDlgWndOK));
    EXPECT_FALSE(Command().Pick("Top face hole 1"));
}

TEST_F(InputsTest, RefusalsSpeakTheLanguage) {
    host::MessageCatalogs::SetLanguage("German");
    StartWithBlindHole();
    EXPECT_EQ(Input(1), "Keine Auswahl");
    EXPECT_EQ(Command().Pick("Top face").reason,
              "'Top face' ist vom Typ Ebene; die Eingabe nimmt nur Punkt.");
    host::MessageCatalogs::SetLanguage("");
}

} // namespace command
