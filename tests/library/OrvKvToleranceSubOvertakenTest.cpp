// Another mode is chosen while one is being entered: the one chosen last counts.

#include "OrvKvToleranceSubModesTest.h"

#include "support/ParameterWatcher.h"

#include "CATErrorMacros.h"
#include "CATInternalError.h"

#include <utility>

namespace {

using namespace support;
using namespace toleranceSub;

// Answers questions for a fit as a command does that knows one field for each group.
void AnswerWithFits(AnsweringCommand& ioCommand, OrvKvToleranceSub*& iPanel) {
    ioCommand.onHeard = [&iPanel](const std::string& iTold) {
        long result = S_OK;
        if (iTold.starts_with("fit"))
            result = iPanel->SetToleranceGroups(ListOf({"G", "H"}), "H", "");
        else if (iTold.starts_with("group"))
            result = iPanel->SetToleranceFields(ListOf({"H7"}));
        else if (iTold.starts_with("field"))
            result = iPanel->SetFittingVals(0.021, 0.0);
        EXPECT_EQ(result, S_OK) << iTold;
    };
}

class OrvKvToleranceSubOvertakenTest : public OrvKvToleranceSubModesTest {
  protected:
    // Leaves the fit for a size without fits before anybody sees it: while the panel is hidden nothing
    // happens.
    void ChangeUnseen(const std::string& iValue) {
        _panel->SetVisibility(CATDlgHide);
        TypeValue(iValue);
        _panel->SetVisibility(CATDlgShow);
    }
    // The mode counts: what another radio does depends on it.
    void ExpectModeToBeSymmetric() {
        ExpectSymmetric();
        Type(Maximum(), "0.2");
        EXPECT_EQ(Tolerance(), "0.2/-0.2");
        _panel->SetVisibility(CATDlgHide); // lets the size be
        PlusMinus().SetState(CATDlgCheck, 1);
        ExpectPlusMinus();
        EXPECT_EQ(Tolerance(), "0.2/-0.2") << "neither a first mode nor a fit was left";
        ExpectNothingShown();
    }
};

TEST_F(OrvKvToleranceSubOvertakenTest, AFitForASizeWithoutFitsEndsInSymmetricModeFromEveryMode) {
    for (const char* before : {"", "PlusMinusRdb", "PlusMinusSymmetricalRdb"}) {
        MakeBuilt();
        if (*before != '\0')
            Choose(Widget<CATDlgRadioButton>(before));
        ChangeUnseen("600");
        AnsweringCommand command(Command());
        AnswerWithFits(command, _panel);
        Choose(Fit());
        EXPECT_EQ(Said(), Texts({"fit of D '' ''", "group 'H' at 600", "field 'H' 'H7' at 600"})) << before;
        EXPECT_EQ(Tolerance(), "0.1/-0.1") << before;
        EXPECT_EQ(Fit().GetVisibility(), CATDlgHide) << before;
        ExpectModeToBeSymmetric();
        EXPECT_EQ(Said(), Texts()) << before;
    }
}

TEST_F(OrvKvToleranceSubOvertakenTest, WithinTheRangeTheSameCommandSetsTheFit) {
    MakeBuilt();
    AnsweringCommand command(Command());
    AnswerWithFits(command, _panel);
    Choose(Fit());
    EXPECT_EQ(Said(), Texts({"fit of D '' ''", "group 'H' at 20", "field 'H' 'H7' at 20"}))
        << "no update is reported while the mode is being entered";
    ExpectFit();
    EXPECT_EQ(Tolerance(), "0.021/0");
    EXPECT_EQ(Fitting(), "H|H7");
    TypeValue("30");
    EXPECT_EQ(Said(), Texts({"update 'H' 'H7' at 30"}));
}

TEST_F(OrvKvToleranceSubOvertakenTest, TheAnswerOfTheCommandMayChooseAnotherMode) {
    const char* const modes[] = {"PlusMinusRdb", "PlusMinusSymmetricalRdb"};
    for (const char* before : modes)
        for (const char* after : modes) {
            MakeBuilt();
            Choose(Widget<CATDlgRadioButton>(before));
            SetValues(0.3, -0.3, 1, 1, 1);
            AnsweringCommand command(Command());
            command.onHeard = [&](const std::string&) { CheckByProgram(Widget<CATDlgRadioButton>(after)); };
            Choose(Fit());
            if (after == modes[0])
                ExpectPlusMinus();
            else
                ExpectSymmetric();
            EXPECT_EQ(Tolerance(), "0.1/-0.1") << "a fit was left";
            EXPECT_EQ(Said(), Texts({"fit of D '' ''"}));
            ExpectNothingShown();
        }
}

TEST_F(OrvKvToleranceSubOvertakenTest, TheAnswerMayChooseThereAndBackAgain) {
    MakePlusMinus();
    AnsweringCommand command(Command());
    int asked = 0;
    command.onHeard = [&](const std::string&) {
        if (++asked > 1)
            return;
        CheckByProgram(Symmetric());
        CheckByProgram(Fit());
    };
    Choose(Fit());
    ExpectFit();
    EXPECT_EQ(Said(), Texts({"fit of D '' ''", "fit of D '' ''"}));
    TypeValue("30");
    EXPECT_EQ(Said(), Texts({"update '' '' at 30"}));
    ExpectNothingShown();
}

TEST_F(OrvKvToleranceSubOvertakenTest, AnErrorAfterTheSwitchIsShownAndTheModeStaysWhatWasChosenLast) {
    MakePlusMinus();
    AnsweringCommand command(Command());
    command.onHeard = [&](const std::string&) {
        CheckByProgram(Symmetric());
        CATThrow(new CATInternalError("Error_InAnswer", "CommandCatalog"));
    };
    Choose(Fit());
    EXPECT_EQ(Traces().Take(), CaughtTraces("OrvKvToleranceSub::OnFittingSelect", "Error_InAnswer"));
    EXPECT_EQ(TakeMessages().size(), 1U);
    Said();
    ExpectModeToBeSymmetric();
}

TEST_F(OrvKvToleranceSubOvertakenTest, PlusMinusForASizeWithoutFitsEndsInSymmetricMode) {
    MakeBuilt();
    ChangeUnseen("600");
    Choose(PlusMinus());
    EXPECT_EQ(Tolerance(), "0.1/-0.1");
    ExpectModeToBeSymmetric();
}

// The entry stops before it has changed the widgets of the fit.
TEST_F(OrvKvToleranceSubOvertakenTest,
       PlusMinusAfterAFitForASizeWithoutFitsEndsInSymmetricModeWithItsWidgets) {
    MakeFit();
    ChangeUnseen("600");
    Choose(PlusMinus());
    EXPECT_EQ(Tolerance(), "0.1/-0.1");
    ExpectModeToBeSymmetric();
    EXPECT_EQ(Said(), Texts());
}

TEST_F(OrvKvToleranceSubOvertakenTest, SymmetricForASizeWithoutFitsIsNotOvertaken) {
    MakeFit();
    ChangeUnseen("600");
    Choose(Symmetric());
    EXPECT_EQ(Fit().GetVisibility(), CATDlgHide);
    ExpectModeToBeSymmetric();
}

TEST_F(OrvKvToleranceSubOvertakenTest, WhoHearsTheParameterMayChooseAnotherMode) {
    const struct {
        const char* entered;
        const char* chosen;
        const char* heard;
    } cases[] = {{"PlusMinusRdb", "PlusMinusSymmetricalRdb", "value of D"},
                 {"PlusMinusRdb", "PlusMinusSymmetricalRdb", "value of Max"},
                 {"PlusMinusRdb", "PlusMinusSymmetricalRdb", "value of Min"},
                 {"PlusMinusRdb", "ISOFittingRdb", "value of D"},
                 {"PlusMinusSymmetricalRdb", "PlusMinusRdb", "value of D"},
                 {"PlusMinusSymmetricalRdb", "ISOFittingRdb", "value of D"},
                 {"PlusMinusSymmetricalRdb", "ISOFittingRdb", "value of Min"}};
    for (const char* before : {"", "ISOFittingRdb"})
        for (const auto& each : cases) {
            MakeBuilt();
            if (*before != '\0')
                Choose(Widget<CATDlgRadioButton>(before));
            Said();
            ParameterWatcher watcher(_parm);
            watcher.Watch(MaxLiteral());
            watcher.Watch(MinLiteral());
            bool isDone = false;
            watcher.onEvent = [&] {
                if (isDone || watcher.Take().back() != each.heard)
                    return;
                isDone = true;
                CheckByProgram(Widget<CATDlgRadioButton>(each.chosen));
            };
            Choose(Widget<CATDlgRadioButton>(each.entered));
            const std::string what =
                std::string(before) + " to " + each.entered + ", " + each.chosen + " at " + each.heard;
            SCOPED_TRACE(what);
            EXPECT_TRUE(isDone);
            for (const CATICkeParm_var& parm : {_parm, MaxLiteral(), MinLiteral()})
                watcher.Unwatch(parm);
            EXPECT_EQ(Checked(), each.chosen);
            if (each.chosen == std::string("PlusMinusRdb"))
                ExpectPlusMinus();
            else if (each.chosen == std::string("ISOFittingRdb"))
                ExpectFit();
            else
                ExpectSymmetric();
            ExpectNothingShown();
            // The mode is what was checked last.
            UncheckSilently(Widget<CATDlgRadioButton>(each.chosen));
            const std::string subscriptions = Subscriptions();
            Choose(Widget<CATDlgRadioButton>(each.chosen));
            EXPECT_EQ(Subscriptions(), subscriptions);
            TakeMessages();
            Traces().Take();
        }
    Said();
}

TEST_F(OrvKvToleranceSubOvertakenTest, FromPlusMinusWhoHearsTheMirroredMaximumMayGoBack) {
    MakePlusMinus();
    ParameterWatcher watcher(MaxLiteral());
    watcher.onEvent = [&] {
        if (watcher.Take().size() == 1U && Checked() == "PlusMinusSymmetricalRdb")
            CheckByProgram(PlusMinus());
    };
    Choose(Symmetric());
    watcher.Unwatch(MaxLiteral());
    ExpectPlusMinus();
}

TEST_F(OrvKvToleranceSubOvertakenTest, AnOvertakenEntryLeavesTheDeviationsWhereItStopped) {
    const struct {
        const char* stoppedAt;
        const char* tolerance;
    } cases[] = {{"value of Min", "none"}, {"value of Max", "0/-0.1"}};
    for (const auto& each : cases) {
        MakeBuilt();
        ParameterWatcher watcher(MaxLiteral());
        watcher.Watch(MinLiteral());
        watcher.onEvent = [&] {
            if (watcher.Take().back() == each.stoppedAt)
                CheckByProgram(Fit());
        };
        Choose(PlusMinus());
        for (const CATICkeParm_var& literal : {MaxLiteral(), MinLiteral()})
            watcher.Unwatch(literal);
        ExpectFit();
        EXPECT_EQ(Tolerance(), each.tolerance) << each.stoppedAt;
    }
    Said();
}

// Who hears that the widgets of the fit are hidden or shown may choose another mode too.
TEST_F(OrvKvToleranceSubOvertakenTest, WhoHearsTheWidgetsMayChooseAnotherMode) {
    const struct {
        const char* before;
        const char* entered;
        const char* chosen;
    } cases[] = {{"", "PlusMinusRdb", "ISOFittingRdb"},
                 {"", "PlusMinusSymmetricalRdb", "PlusMinusRdb"},
                 {"PlusMinusRdb", "ISOFittingRdb", "PlusMinusSymmetricalRdb"},
                 {"PlusMinusSymmetricalRdb", "ISOFittingRdb", "PlusMinusRdb"},
                 {"ISOFittingRdb", "PlusMinusRdb", "PlusMinusSymmetricalRdb"},
                 {"ISOFittingRdb", "PlusMinusSymmetricalRdb", "PlusMinusRdb"}};
    for (const auto& each : cases) {
        MakeBuilt();
        if (*each.before != '\0')
            Choose(Widget<CATDlgRadioButton>(each.before));
        class Hearing : public CATCommand {
          public:
            explicit Hearing(std::function<void()> iAnswer)
                : CATCommand(nullptr, "Hearing"), _answer(std::move(iAnswer)) {}
            CATNotifPropagationMode AnalyseNotification(CATCommand*,
                                                        CATNotification* iNotification) override {
                if (iNotification->IsAKindOf("OrvKvParameterEditISOFittingNotification") != 0)
                    return CATNotifDontTransmitToFather;
                const std::function<void()> answer = std::move(_answer);
                _answer = nullptr;
                if (answer)
                    answer();
                return CATNotifDontTransmitToFather;
            }

          private:
            std::function<void()> _answer;
        } command([&] { CheckByProgram(Widget<CATDlgRadioButton>(each.chosen)); });
        Widget<CATDialog>("ToleranceFieldLab").GetVisibilityNotification(); // asked for
        host::Application::SetActiveCommand(&command);
        Choose(Widget<CATDlgRadioButton>(each.entered));
        host::Application::SetActiveCommand(&Command());
        SCOPED_TRACE(std::string(each.before) + " to " + each.entered + ", " + each.chosen);
        if (each.chosen == std::string("PlusMinusRdb"))
            ExpectPlusMinus();
        else if (each.chosen == std::string("ISOFittingRdb"))
            ExpectFit();
        else
            ExpectSymmetric();
        ExpectNothingShown();
    }
    Said();
}

TEST_F(OrvKvToleranceSubOvertakenTest, OutsideOfAnEntryTheSettersLockTheEditorsWhateverTheEventDoes) {
    MakeFit();
    ChangeUnseen("600");
    SetFittingVals(0.021, 0.0);
    EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb");
    EXPECT_EQ(WidgetStates(), "fit hidden, max disabled, min disabled");
    MakePlusMinus();
    ChangeUnseen("600");
    SetValues(0.2, -0.2, 0, 0, 1);
    EXPECT_EQ(Checked(), "PlusMinusSymmetricalRdb");
    EXPECT_EQ(WidgetStates(), "fit hidden, max disabled, min disabled");
}

} // namespace
