// The prompt shows errors and warnings, or traces why it cannot.

#include "OrvKvPrompt.h"

#include "CATDlgDocument.h"
#include "CATInputError.h"
#include "CATMfErrUpdate.h"
#include "host/DelayedDestruction.h"
#include "host/ErrorInspection.h"
#include "host/FaultPoints.h"
#include "host/Inspector.h"
#include "host/LiveObjects.h"
#include "support/ApplicationTest.h"
#include "support/ResourceFolder.h"

#include <type_traits>

using namespace support;

namespace {

const CATDlgStyle errorStyle = 0x10000000;
const CATDlgStyle warningStyle = 0x8000000;
const int okButton = 0x400;

static_assert(std::is_empty<OrvKvPrompt>::value, "static operations only: an assignment copies nothing");
static_assert(std::is_copy_assignable<OrvKvPrompt>::value, "and can be made");

// Answers a message, and looks at its window while it waits.
class LookingFrontEnd : public host::MessageFrontEnd {
  public:
    LookingFrontEnd() { host::Messages::SetFrontEnd(this); }
    ~LookingFrontEnd() override { host::Messages::SetFrontEnd(nullptr); }

    int Show(const host::Message&) override {
        for (const CATDlgWindow* window : host::Inspector::Windows())
            if (window->IsAKindOf("CATDlgNotify") != 0)
                _parents.push_back(host::Inspector::Parent(*window));
        _livingErrors = host::LiveObjects::Count("CATInputError");
        return okButton;
    }

    std::vector<CATDialog*> _parents; // of the message windows that were there
    int _livingErrors = -1;
};

class OrvKvPromptTest : public ApplicationTest {
  protected:
    OrvKvPromptTest() {
        _texts.Write("Drill.CATNls", "Deep.Request = \"Cannot drill.\";\n"
                                     "Deep.Diagnostic = \"The hole /p1 is too deep.\";\n"
                                     "Deep.Advice = \"Use a longer drill.\";\n"
                                     "Deep.Source = \"Drilling\";\n");
    }

    template<class Error>
    static Error* NewError() {
        auto* const error = new Error("Deep", "Drill");
        CATUnicodeString hole("H1");
        error->SetNLSParameters(1, &hole);
        return error;
    }
    // A failing result with an error object behind it.
    template<class Error>
    static long Fail() {
        return CATError::GetReturn(CATReturnKindError, NewError<Error>(), nullptr, "Panel", 5);
    }

    static ShownMessages WholeMessage() {
        return {{errorStyle, "Error", "Cannot drill.\nThe hole H1 is too deep.\nUse a longer drill.",
                 "Drilling", okButton}};
    }
    // Ends the event in which a message was shown; its window is gone afterwards.
    static void EndEvent(int iWindows) {
        EXPECT_EQ(host::DelayedDestruction::Pending(), iWindows);
        EXPECT_EQ(host::LiveObjects::Count("CATDlgNotify"), iWindows);
        RunIdle();
        EXPECT_EQ(host::LiveObjects::Count("CATDlgNotify"), 0);
    }

    const ResourceFolder _texts;
};

// ---- an error object

TEST_F(OrvKvPromptTest, ShowsTheWholeMessageOfAnErrorUnderItsSource) {
    OrvKvPrompt::Error(NewError<CATInputError>());
    EXPECT_EQ(TakeMessages(), WholeMessage());
    EXPECT_EQ(Traces().Take(), TraceLines());
    EndEvent(1);
}

TEST_F(OrvKvPromptTest, ShowsTheDiagnosticAloneOfAnUpdateError) {
    OrvKvPrompt::Error(NewError<CATMfErrUpdate>());
    EXPECT_EQ(TakeMessages(),
              ShownMessages({{errorStyle, "Error", "The hole H1 is too deep.", "Drilling", okButton}}));
    EndEvent(1);
}

TEST_F(OrvKvPromptTest, TakesTheReferenceOfTheErrorOver) {
    CATError* const error = NewError<CATInputError>();
    error->AddRef();
    OrvKvPrompt::Error(error);
    EXPECT_EQ(error->Release(), 0U);
    EXPECT_EQ(TakeMessages(), WholeMessage());
    EndEvent(1);
}

TEST_F(OrvKvPromptTest, LeavesTheLastErrorAloneWhenAnObjectIsShown) {
    const long result = Fail<CATInputError>();
    OrvKvPrompt::Error(CATError::CATGetLastError(result));
    EXPECT_EQ(TakeMessages(), WholeMessage());
    EXPECT_NE(host::ErrorInspection::LastError(), nullptr);
    CATError::CATCleanLastError();
    EXPECT_EQ(host::LiveObjects::Count("CATInputError"), 0);
    EndEvent(1);
}

TEST_F(OrvKvPromptTest, TracesThatThereIsNoErrorToShow) {
    OrvKvPrompt::Error(nullptr);
    EXPECT_EQ(Traces().Take(), TraceLines({{"OrvKv9ViewBase", 3, "Error in displaying error"}}));
    EXPECT_EQ(TakeMessages(), ShownMessages());
    EndEvent(0);
}

TEST_F(OrvKvPromptTest, PutsTheMessageWindowUnderTheMainWindowAndKeepsTheErrorWhileItWaits) {
    LookingFrontEnd frontEnd;
    OrvKvPrompt::Error(NewError<CATInputError>());
    EXPECT_EQ(frontEnd._parents, std::vector<CATDialog*>({MainWindow()}));
    EXPECT_EQ(frontEnd._livingErrors, 1);
    EXPECT_EQ(TakeMessages(), WholeMessage());
    EndEvent(1);
}

TEST_F(OrvKvPromptTest, ReleasesTheErrorWhenMemoryForTheWindowIsShort) {
    host::FaultPoints::FailCall(1, "widget allocation");
    OrvKvPrompt::Error(NewError<CATInputError>());
    host::FaultPoints::Stop();
    EXPECT_EQ(TakeMessages(), ShownMessages());
    EXPECT_EQ(host::LiveObjects::Count("CATInputError"), 0);
    EndEvent(0);
}

// ---- a failing result

TEST_F(OrvKvPromptTest, ShowsTheErrorBehindAFailingResultAndForgetsIt) {
    OrvKvPrompt::Error(Fail<CATInputError>());
    EXPECT_EQ(TakeMessages(), WholeMessage());
    EXPECT_EQ(Traces().Take(), TraceLines());
    EXPECT_EQ(host::ErrorInspection::LastError(), nullptr);
    EXPECT_EQ(host::LiveObjects::Count("CATInputError"), 0);
    EndEvent(1);
}

TEST_F(OrvKvPromptTest, ShowsTheWholeMessageOfAnUpdateErrorBehindAResult) {
    OrvKvPrompt::Error(Fail<CATMfErrUpdate>());
    EXPECT_EQ(TakeMessages(), WholeMessage());
    EndEvent(1);
}

TEST_F(OrvKvPromptTest, ShowsNothingForAResultWithoutAnError) {
    OrvKvPrompt::Error(0L);
    OrvKvPrompt::Error(E_FAIL);
    EXPECT_EQ(TakeMessages(), ShownMessages());
    EXPECT_EQ(Traces().Take(), TraceLines());
    EndEvent(0);
}

TEST_F(OrvKvPromptTest, ShowsNothingForASuccessWhateverAnOlderFailureLeft) {
    Fail<CATInputError>();
    OrvKvPrompt::Error(S_OK);
    OrvKvPrompt::Error(S_FALSE);
    EXPECT_EQ(TakeMessages(), ShownMessages());
    EXPECT_NE(host::ErrorInspection::LastError(), nullptr);
    CATError::CATCleanLastError();
    EndEvent(0);
}

TEST_F(OrvKvPromptTest, ForgetsTheErrorBehindAResultWhenMemoryForTheWindowIsShort) {
    const long result = Fail<CATInputError>();
    host::FaultPoints::FailCall(1, "widget allocation");
    OrvKvPrompt::Error(result);
    host::FaultPoints::Stop();
    EXPECT_EQ(TakeMessages(), ShownMessages());
    EXPECT_EQ(host::ErrorInspection::LastError(), nullptr);
    EXPECT_EQ(host::LiveObjects::Count("CATInputError"), 0);
    EndEvent(0);
}

// ---- a warning

TEST_F(OrvKvPromptTest, ShowsAWarningUnderTheWindowsOwnTitle) {
    OrvKvPrompt::Warning("The set exists already.");
    EXPECT_EQ(TakeMessages(),
              ShownMessages({{warningStyle, "Warning", "The set exists already.", "Warning", okButton}}));
    EXPECT_EQ(Traces().Take(), TraceLines());
    EndEvent(1);
}

TEST_F(OrvKvPromptTest, CountsABlankAsAText) {
    OrvKvPrompt::Warning(" ");
    EXPECT_EQ(TakeMessages(), ShownMessages({{warningStyle, "Warning", " ", "Warning", okButton}}));
    EndEvent(1);
}

TEST_F(OrvKvPromptTest, TracesThatAWarningIsEmpty) {
    OrvKvPrompt::Warning("");
    EXPECT_EQ(Traces().Take(), TraceLines({{"OrvKv9ViewBase", 3, "Error in getting message containt"}}));
    EXPECT_EQ(TakeMessages(), ShownMessages());
    EndEvent(0);
}

TEST_F(OrvKvPromptTest, SurvivesAWarningWhenMemoryForTheWindowIsShort) {
    host::FaultPoints::FailCall(1, "widget allocation");
    OrvKvPrompt::Warning("The set exists already.");
    host::FaultPoints::Stop();
    EXPECT_EQ(TakeMessages(), ShownMessages());
    EndEvent(0);
}

} // namespace
