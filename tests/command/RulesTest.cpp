// The rules of the catalogue: messages, traffic light, and what an invalid feature may not do.

#include "CATDlgDialog.h"
#include "CommandTest.h"
#include "host/DialogUser.h"
#include "host/MessageCatalogs.h"
#include "host/Messages.h"
#include "host/ValueFrame.h"

#include <algorithm>

namespace command {

namespace {

using engineering::FeatureCatalogue;
using engineering::FeatureType;
using engineering::Magnitude;
using engineering::Rule;
using engineering::Severity;

FeatureCatalogue Washers() {
    const std::vector<engineering::Parameter> parameters{
        {"D", Magnitude::Length, "mm", {}, true, false, false},
        {"T", Magnitude::Length, "mm", {}, true, false, false}};
    const std::vector<engineering::ParameterSet> sets{{"Sound", {{10.0, {}}, {2.0, {}}}},
                                                      {"Flat", {{10.0, {}}, {0.0, {}}}}};
    const std::vector<Rule> rules{
        {"Thin", "T >= 1", Severity::Warning, "It is thin.", ""},
        {"Thick", "T > 0", Severity::Violation, "It has no thickness.", ""},
        {"Odd", "T >", Severity::Violation, "Never told.", "rules.csv:4: column 'condition': it ends"}};
    const std::vector<Rule> sound(rules.begin(), rules.begin() + 2);
    return FeatureCatalogue({"Mine"}, {FeatureType({"Washer", "Mine", "", ""}, parameters, sets, {}, sound),
                                       FeatureType({"Nut", "Mine", "", ""}, parameters, sets, {}, rules)});
}

} // namespace

class RulesTest : public CommandTest {
  protected:
    void StartWithWasher() {
        ASSERT_TRUE(Start(FeatureCommand::Mode::Parameters, _washers));
        TakeHeard();
    }
    bool IsRunning() { return Command().CurrentState() == FeatureCommand::State::Running; }

    const FeatureCatalogue _washers = Washers();
};

TEST_F(RulesTest, ASoundFeatureHasNoMessageAndAGreenLight) {
    StartWithWasher();
    EXPECT_EQ(RuleMessages(), Texts());
    EXPECT_EQ(Light(), "KelvaneRulesOK");
    EXPECT_TRUE(Command().IsValid());
}

TEST_F(RulesTest, AWarningIsYellowAndLeavesTheFeatureValid) {
    StartWithWasher();
    ASSERT_TRUE(Command().SetValue("T", "0.5"));
    EXPECT_EQ(RuleMessages(), Texts({"It is thin."}));
    EXPECT_EQ(Light(), "KelvaneRulesYellow");
    EXPECT_TRUE(Command().IsValid());
    EXPECT_EQ(TakeHeardClasses(), Texts({"ModifiedParameterInMultiList"}));
}

TEST_F(RulesTest, AViolationIsRedAndSignalsInvalidOnceAndThenValidAgain) {
    StartWithWasher();
    ASSERT_TRUE(Command().SetValue("T", "0"));
    EXPECT_EQ(RuleMessages(), Texts({"It is thin.", "It has no thickness."}));
    EXPECT_EQ(Light(), "KelvaneRulesKO");
    EXPECT_FALSE(Command().IsValid());
    ASSERT_TRUE(Command().SetValue("T", "-1"));
    ASSERT_TRUE(Command().SetValue("T", "3"));
    EXPECT_EQ(RuleMessages(), Texts());
    EXPECT_EQ(Light(), "KelvaneRulesOK");
    const Texts heard = TakeHeardClasses();
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "TriggerStateChangeToInvalid"), 1);
    EXPECT_EQ(std::count(heard.begin(), heard.end(), "TriggerStateChangeToValid"), 1);
}

TEST_F(RulesTest, TheFirstOutcomeForATypeIsSignalled) {
    StartWithWasher();
    ASSERT_TRUE(ChooseType(1));
    EXPECT_EQ(TakeHeardClasses().back(), "TriggerStateChangeToValid");
}

TEST_F(RulesTest, ASetIsCheckedWhole) {
    StartWithWasher();
    ASSERT_TRUE(ChooseSet(1));
    EXPECT_EQ(RuleMessages(), Texts({"It is thin.", "It has no thickness."}));
    ASSERT_TRUE(ChooseSet(0));
    EXPECT_EQ(RuleMessages(), Texts());
}

// On the way from M3 to M10 the through hole is wider than the counterbore for a moment.
TEST_F(RulesTest, ASoundSetSignalsNothingOnItsWay) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(ChooseType(1));
    TakeHeard();
    ASSERT_TRUE(ChooseText("ParameterSetCmb", "DIN 974-1 M10 series 1 fine"));
    EXPECT_EQ(Command().SetName(), "DIN 974-1 M10 series 1 fine");
    for (const std::string& heard : TakeHeardClasses())
        EXPECT_FALSE(heard.starts_with("TriggerStateChange")) << heard;
}

TEST_F(RulesTest, ARuleThatCannotBeReadIsShownAsAProblemOfTheCatalogueAndPassedOver) {
    StartWithWasher();
    ASSERT_TRUE(ChooseType(1));
    EXPECT_EQ(RuleMessages(), Texts({"Problem of the catalogue: rules.csv:4: column 'condition': it ends"}));
    EXPECT_EQ(Light(), "KelvaneRulesYellow");
    EXPECT_TRUE(Command().IsValid());
    EXPECT_TRUE(PressButton(CATDlgWndOK));
    EXPECT_EQ(Command().CurrentState(), FeatureCommand::State::Accepted);
}

TEST_F(RulesTest, AnInvalidFeatureIsNeitherAcceptedNorAppliedButCanBeCancelled) {
    StartWithWasher();
    ASSERT_TRUE(Command().SetValue("T", "0"));
    const std::string refusal = "The feature breaks a rule. Correct it first; the rules name what is wrong.";
    EXPECT_TRUE(PressButton(CATDlgWndOK));
    EXPECT_TRUE(PressButton(CATDlgWndAPPLY));
    EXPECT_EQ(TakeMessages(), Texts({refusal, refusal}));
    EXPECT_TRUE(IsRunning());
    EXPECT_EQ(RowOf("T").front(), '*');
    EXPECT_TRUE(PressButton(CATDlgWndCANCEL));
    EXPECT_EQ(Command().CurrentState(), FeatureCommand::State::Cancelled);
}

TEST_F(RulesTest, ApplyTakesTheValuesOverAndStaysOpen) {
    StartWithWasher();
    ASSERT_TRUE(Command().SetValue("T", "3"));
    EXPECT_EQ(RowOf("T").front(), '*');
    EXPECT_TRUE(PressButton(CATDlgWndAPPLY));
    EXPECT_TRUE(IsRunning());
    EXPECT_EQ(RowOf("T").substr(0, 7), "|T|3mm|");
    ASSERT_TRUE(ChooseSet(0));
    EXPECT_EQ(RowOf("T").substr(0, 8), "*|T|2mm|");
}

TEST_F(RulesTest, HelpTellsWhatTheDialogIsFor) {
    StartWithWasher();
    EXPECT_TRUE(PressButton(CATDlgWndHELP));
    ASSERT_EQ(host::Messages::Journal().size(), 1U);
    EXPECT_EQ(host::Messages::Journal()[0].title, "Kelvane feature");
    EXPECT_EQ(TakeMessages()[0].substr(0, 14), "Choose a group");
    EXPECT_TRUE(IsRunning());
}

TEST_F(RulesTest, TheThreadIsCheckedToo) {
    ASSERT_TRUE(Start());
    ASSERT_TRUE(ChooseType(1));
    ASSERT_TRUE(ShowPage("ThreadPge"));
    EXPECT_EQ(RuleMessages(), Texts());
    ASSERT_TRUE(host::DialogUser::Type(Field("ThreadLengthFrm"), "0"));
    EXPECT_EQ(RuleMessages().size(), 2U);
    EXPECT_EQ(Light(), "KelvaneRulesKO");
    ASSERT_TRUE(host::DialogUser::Type(Field("ThreadLengthFrm"), "12"));
    EXPECT_EQ(RuleMessages(), Texts());
}

TEST_F(RulesTest, MessagesSpeakTheLanguage) {
    host::MessageCatalogs::SetLanguage("German");
    ASSERT_TRUE(Start());
    ASSERT_TRUE(ChooseType(1));
    ASSERT_TRUE(Command().SetValue("D", "1 mm"));
    const auto& rules = Shipped().Type("Counterbore")->Rules();
    ASSERT_FALSE(RuleMessages().empty());
    for (const Rule& rule : rules)
        for (const std::string& message : RuleMessages())
            EXPECT_NE(message, rule.message);
    host::MessageCatalogs::SetLanguage("");
}

// The sets of the standards keep all rules but those that warn.
TEST_F(RulesTest, EveryShippedSetIsValid) {
    ASSERT_TRUE(Start());
    int sets = 0;
    for (std::size_t group = 0; group < Shipped().Groups().size(); ++group) {
        ASSERT_TRUE(ChooseGroup(static_cast<int>(group)));
        const auto& types = *Shipped().TypesOf(Shipped().Groups()[group]);
        for (std::size_t type = 0; type < types.size(); ++type) {
            ASSERT_TRUE(ChooseType(static_cast<int>(type)));
            for (std::size_t set = 0; set < Shipped().SetsOf(types[type])->size(); ++set) {
                ASSERT_TRUE(ChooseSet(static_cast<int>(set)));
                EXPECT_TRUE(Command().IsValid()) << types[type] << ' ' << Command().SetName();
                ++sets;
            }
        }
    }
    EXPECT_EQ(sets, 644);
}

} // namespace command
