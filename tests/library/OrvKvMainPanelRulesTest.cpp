// The messages of the rules, the traffic light, and what the main panel reports of the state of the feature.

#include "OrvKvMainPanelTest.h"

#include "CATDlgLabel.h"
#include "OrvKvTriggerStateChangeToValidNotification.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"

#include <limits>

namespace {

using namespace support;
using namespace mainPanel;

class OrvKvMainPanelRulesTest : public OrvKvMainPanelTest {
  protected:
    Lines Messages() {
        const auto& editor = Part<CATDlgEditor>("KelvaneRules");
        Lines lines;
        for (int line = 0; line < editor.GetLineCount(); ++line) {
            CATUnicodeString text;
            editor.GetLine(text, line);
            lines.emplace_back(text.ConvertToChar());
        }
        return lines;
    }
    // Normal, selected, focus and disabled icon.
    Lines Icons() {
        const host::IconNames icons = host::Inspector::Icons(Part<CATDlgLabel>("Label003"));
        return {icons.normal, icons.selected, icons.focus, icons.disabled};
    }
};

TEST_F(OrvKvMainPanelRulesTest, ShowsEachMessageInALineOfItsOwn) {
    MakeBuilt();
    Panel().UpdateRuleEditor(TextsOf({"D is below K.", "T: größer als 5 × D", "D is below K."}));
    EXPECT_EQ(Messages(), Lines({"D is below K.", "T: größer als 5 × D", "D is below K."}));
}

TEST_F(OrvKvMainPanelRulesTest, NewMessagesReplaceTheOldOnesWhateverTheirNumber) {
    MakeBuilt();
    for (const int count : {3, 1, 7, 7, 0, 2, 300, 5, 0}) {
        CATListValCATUnicodeString messages;
        Lines expected;
        for (int number = 1; number <= count; ++number) {
            expected.push_back(std::to_string(count) + " of " + std::to_string(number));
            messages.Append(CATUnicodeString(expected.back().c_str()));
        }
        Panel().UpdateRuleEditor(messages);
        EXPECT_EQ(Messages(), expected) << count;
        EXPECT_EQ(messages.Size(), count) << "the list is the caller's";
    }
}

TEST_F(OrvKvMainPanelRulesTest, LongAndEmptyMessagesAreKeptAsTheyAre) {
    MakeBuilt();
    const std::string longMessage(10000, 'x');
    Panel().UpdateRuleEditor(TextsOf({longMessage.c_str(), "", "two\nlines"}));
    EXPECT_EQ(Messages(), Lines({longMessage, "", "two\nlines"}));
}

TEST_F(OrvKvMainPanelRulesTest, TheLightIsGreenBeforeItIsToldAnything) {
    MakeBuilt();
    EXPECT_EQ(Icons(), Lines({"I_GreenLightXML", "", "", ""}));
}

TEST_F(OrvKvMainPanelRulesTest, TheLightShowsTheStateOfTheRules) {
    MakeBuilt();
    const std::vector<std::pair<int, const char*>> lights = {
        {1, "KelvaneRulesKO"},     {2, "KelvaneRulesYellow"},
        {0, "KelvaneRulesOK"},     {1, "KelvaneRulesKO"},
        {3, "KelvaneRulesOK"},     {-1, "KelvaneRulesOK"},
        {2, "KelvaneRulesYellow"}, {std::numeric_limits<int>::max(), "KelvaneRulesOK"},
        {257, "KelvaneRulesOK"},   {std::numeric_limits<int>::min(), "KelvaneRulesOK"}};
    for (const auto& [state, icon] : lights) {
        Part<CATDlgLabel>("Label003").SetIconName("other", "selected", "focus", "disabled");
        Panel().SetColorIcon(state);
        EXPECT_EQ(Icons(), Lines({icon, "", "", ""})) << state;
    }
}

TEST_F(OrvKvMainPanelRulesTest, EveryLightHasAPicture) {
    for (const char* icon : {"I_GreenLightXML", "KelvaneRulesOK", "KelvaneRulesYellow", "KelvaneRulesKO"})
        EXPECT_NE(host::Inspector::IconFile(icon), "") << icon;
    EXPECT_EQ(host::Inspector::IconFile("KelvaneRulesBlue"), "");
}

TEST_F(OrvKvMainPanelRulesTest, AFoldedPanelShowsMessagesAndLightAsWell) {
    MakeBuilt();
    PressMoreLess();
    Panel().UpdateRuleEditor(TextsOf({"D is below K."}));
    Panel().SetColorIcon(1);
    EXPECT_EQ(Messages(), Lines({"D is below K."}));
    EXPECT_EQ(Icons().front(), "KelvaneRulesKO");
}

TEST_F(OrvKvMainPanelRulesTest, ReportsAChangeOfStateOnRequestAndOtherwiseNever) {
    MakeBuilt();
    Panel().SetColorIcon(1);
    Panel().UpdateRuleEditor(TextsOf({"D is below K."}));
    EXPECT_EQ(Command().TakeClasses(), Classes());
    Panel().TriggerStateChangeToInvalid();
    Panel().TriggerStateChangeToValid();
    Panel().TriggerStateChangeToValid();
    for (const HeardNotification& heard : Command().Heard())
        EXPECT_EQ(heard.sender, &Panel());
    EXPECT_EQ(Command().TakeClasses(), Classes({"OrvKvTriggerStateChangeToInvalidNotification",
                                                "OrvKvTriggerStateChangeToValidNotification",
                                                "OrvKvTriggerStateChangeToValidNotification"}));
}

TEST_F(OrvKvMainPanelRulesTest, AChangeOfStateGoesToTheFatherAndNotThroughThePanelItself) {
    ListeningPanel<OrvKvMainPanel> panel(parameterMode, static_cast<unsigned char>(0));
    panel.TriggerStateChangeToValid();
    panel.TriggerStateChangeToInvalid();
    EXPECT_EQ(Command().TakeClasses().size(), 2U);
    EXPECT_EQ(panel.Count(), 0);
    panel.SendNotification(&panel, new OrvKvTriggerStateChangeToValidNotification());
    EXPECT_EQ(panel.Count(), 1) << "one that is sent to the panel is counted";
    Command().Forget();
}

TEST_F(OrvKvMainPanelRulesTest, WithoutMemoryForTheNotificationNothingIsReported) {
    MakeBuilt();
    host::FaultPoints::FailCall(1, "notification allocation");
    Panel().TriggerStateChangeToValid();
    host::FaultPoints::Stop();
    EXPECT_EQ(Command().TakeClasses(), Classes());
    Panel().TriggerStateChangeToValid();
    EXPECT_EQ(Command().TakeClasses().size(), 1U);
}

} // namespace
