// The editor of a volatile literal whose arrows step by a twentieth, as deviations are edited: what it shows
// and what it writes has neither binary noise nor a minus zero.

#include "CATCkeGlobalFunctions.h"
#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "CATICkeParamFrame.h"
#include "CATICkeParmManipulator.h"
#include "CATIParmAsStored.h"
#include "NewParameter.h"
#include "host/DialogUser.h"
#include "host/ValueFrame.h"
#include "support/ApplicationTest.h"
#include "support/ParameterWatcher.h"

#include <cmath>
#include <random>

using host::DialogUser;
using host::ValueFrame;
using support::Events;
using support::ParameterWatcher;

namespace {

struct Kind {
    const char* magnitude;
    const char* unit;
};

void PrintTo(const Kind& iKind, std::ostream* ioStream) {
    *ioStream << iKind.magnitude;
}

class LiteralEditorTest : public support::ApplicationTest, public testing::WithParamInterface<Kind> {
  protected:
    LiteralEditorTest() {
        dialog->SetVisibility(CATDlgShow);
        CATICkeParmManipulator_var(literal)->SetIncrement(0.05);
    }

    static std::string WithUnit(const std::string& iNumber) { return iNumber + GetParam().unit; }
    static std::string WithUnit(double iNumber) {
        CATUnicodeString text;
        text.BuildFromNum(iNumber);
        return WithUnit(text.ConvertToChar());
    }
    void Store(double iValue) { ASSERT_EQ(stored->SetValue(iValue), S_OK); }
    void Spin(int iSteps) { EXPECT_TRUE(DialogUser::Spin(editor, iSteps)); }
    void ExpectValue(double iValue) {
        EXPECT_EQ(stored->GetValue(), iValue) << "to the last digit";
        EXPECT_EQ(std::signbit(stored->GetValue()), iValue < 0.0);
        EXPECT_EQ(editor.Text(), WithUnit(iValue));
    }

    const CATICkeParm_var literal = CATCkeGlobalFunctions::GetVolatileFactory()->CreateParameter(
        NewParameter(GetParam().magnitude)->Type(), "Max");
    const CATIParmAsStored_var stored{literal};
    CATDlgDialog* const dialog = new CATDlgDialog(MainWindow(), "Dlg");
    ValueFrame& editor = dynamic_cast<ValueFrame&>(*CATICkeParamFrame_var(literal)->BuildFrame(
        NULL_var, dialog, CATCkeNoLabel | CATCkeWithSpinner | CATCkeNoRename | CATCkeNoFormula, ""));
};

TEST_P(LiteralEditorTest, StepsDownFromATenthThroughZero) {
    Store(0.1);
    for (const double value : {0.05, 0.0, -0.05, -0.1, -0.15, -0.2, -0.25, -0.3, -0.35}) {
        Spin(-1);
        ExpectValue(value);
    }
}

TEST_P(LiteralEditorTest, StepsUpFromATenthAndFromBelowZero) {
    Store(0.1);
    for (const double value : {0.15, 0.2, 0.25, 0.3, 0.35, 0.4, 0.45, 0.5, 0.55, 0.6, 0.65, 0.7}) {
        Spin(1);
        ExpectValue(value);
    }
    Store(-0.1);
    for (const double value : {-0.05, 0.0, 0.05}) {
        Spin(1);
        ExpectValue(value);
    }
}

TEST_P(LiteralEditorTest, ShowsZeroWithoutASignFromEitherSide) {
    Store(-0.05);
    Spin(1);
    EXPECT_EQ(editor.Text(), WithUnit("0"));
    Store(0.15);
    Spin(-3);
    EXPECT_EQ(editor.Text(), WithUnit("0"));
    EXPECT_FALSE(std::signbit(stored->GetValue()));
}

// The value that whole twentieths give, whatever the way to it.
TEST_P(LiteralEditorTest, IsAlwaysTheNearestNumberToAWholeNumberOfSteps) {
    std::mt19937 random(20);
    int twentieths = 0;
    for (int turn = 0; turn < 500; ++turn) {
        int steps = static_cast<int>(random() % 41) - 20;
        steps += steps == 0 ? 1 : 0;
        twentieths += steps;
        Spin(steps);
        ExpectValue(twentieths / 20.0);
    }
}

TEST_P(LiteralEditorTest, StepsFromAValueThatIsNoWholeNumberOfSteps) {
    Store(0.0123);
    for (const double value : {0.0623, 0.1123, 0.1623}) {
        Spin(1);
        ExpectValue(value);
    }
    Store(-0.021);
    Spin(1);
    ExpectValue(0.029);
}

TEST_P(LiteralEditorTest, TakesTypedDeviationsAsAPersonReadsThem) {
    const std::pair<const char*, double> typed[] = {
        {"0.05", 0.05},   {"-0,05", -0.05}, {"+.1", 0.1},           {"0.1+0.2", 0.3}, {"0.05-0.1", -0.05},
        {"3*0.05", 0.15}, {"-0", 0.0},      {"0.15-0.1-0.05", 0.0}, {"-0.05*0", 0.0}};
    for (const auto& [text, value] : typed) {
        SCOPED_TRACE(text);
        EXPECT_TRUE(DialogUser::Type(editor, text));
        EXPECT_EQ(editor.Problem(), "");
        ExpectValue(value);
    }
}

TEST_P(LiteralEditorTest, TellsItsSubscribersOnceForEachStepOrText) {
    ParameterWatcher watcher(literal);
    Spin(2);
    EXPECT_TRUE(DialogUser::Type(editor, "0.2"));
    Store(0.3);
    EXPECT_EQ(watcher.Take(), Events({"value of Max", "value of Max"}))
        << "and not for what a program stores";
}

TEST_P(LiteralEditorTest, ATextThatIsNoNumberChangesAndTellsNothing) {
    Store(0.1);
    ParameterWatcher watcher(literal);
    EXPECT_TRUE(DialogUser::Type(editor, "wide"));
    EXPECT_EQ(editor.Problem(), "'wide' is not a number");
    EXPECT_EQ(stored->GetValue(), 0.1);
    EXPECT_EQ(watcher.Take(), Events());
    Spin(-1);
    ExpectValue(0.05);
    EXPECT_EQ(editor.Problem(), "");
}

INSTANTIATE_TEST_SUITE_P(Of, LiteralEditorTest, testing::Values(Kind{"LENGTH", "mm"}, Kind{"ANGLE", "deg"}),
                         [](const testing::TestParamInfo<Kind>& iKind) { return iKind.param.magnitude; });

} // namespace
