#include "CATDlgNotify.h"

#include "CATDlgLabel.h"
#include "CATDlgPushButton.h"
#include "DialogTest.h"
#include "host/EventScope.h"
#include "host/Messages.h"

namespace {

using host::DialogUser;
using host::Message;
using host::Messages;

// What a message shows, in one text.
std::string Told(const Message& iMessage) {
    const char* const kind = iMessage.style == CATDlgNfyError ? "error" : "warning";
    return std::string(kind) + " " + iMessage.name + " '" + iMessage.title + "' '" + iMessage.text + "' -> " +
           std::to_string(iMessage.answer);
}

Texts Journal() {
    Texts texts;
    for (const Message& message : Messages::Journal())
        texts.push_back(Told(message));
    return texts;
}

// Shows messages to a person that a test plays.
class ScriptedFrontEnd : public host::MessageFrontEnd {
  public:
    ScriptedFrontEnd() : _previous(Messages::SetFrontEnd(this)) {}
    ~ScriptedFrontEnd() override { Messages::SetFrontEnd(_previous); }
    int Show(const Message& iMessage) override {
        shown.push_back(Told(iMessage));
        return onShow();
    }

    std::function<int()> onShow = [] { return static_cast<int>(CATDlgWndCANCEL); };
    Texts shown;

  private:
    MessageFrontEnd* _previous;
};

class CATDlgNotifyTest : public DialogTest {
  protected:
    CATDlgNotify& error = MakeIn<CATDlgNotify>(MainWindow(), "Error", CATDlgNfyError);
    CATDlgNotify& warning = MakeIn<CATDlgNotify>(MainWindow(), "Warning", CATDlgNfyWarning);
};

TEST_F(CATDlgNotifyTest, IsWrittenToTheJournalAndAnsweredWithOk) {
    EXPECT_EQ(error.DisplayBlocked("No such thread", "Kernel"), static_cast<int>(CATDlgWndOK));
    EXPECT_EQ(warning.DisplayBlocked("", warning.GetTitle()), static_cast<int>(CATDlgWndOK));
    EXPECT_EQ(Journal(), (Texts{"error Error 'Kernel' 'No such thread' -> 1024",
                                "warning Warning 'Warning' '' -> 1024"}));
    Messages::ClearJournal();
    EXPECT_EQ(Journal(), Texts());
}

TEST_F(CATDlgNotifyTest, TakesTheAnswersInTheOrderInWhichTheyWereQueued) {
    Messages::QueueAnswer(static_cast<int>(CATDlgWndCANCEL));
    Messages::QueueAnswer(static_cast<int>(CATDlgWndAPPLY));
    EXPECT_EQ(Messages::QueuedAnswers(), 2);
    EXPECT_EQ(error.DisplayBlocked("1", ""), static_cast<int>(CATDlgWndCANCEL));
    EXPECT_EQ(error.DisplayBlocked("2", ""), static_cast<int>(CATDlgWndAPPLY));
    EXPECT_EQ(Messages::QueuedAnswers(), 0);
    EXPECT_EQ(error.DisplayBlocked("3", ""), static_cast<int>(CATDlgWndOK));
}

TEST_F(CATDlgNotifyTest, AsksTheFrontEndUnlessAnAnswerIsQueued) {
    ScriptedFrontEnd frontEnd;
    Messages::QueueAnswer(static_cast<int>(CATDlgWndOK));
    EXPECT_EQ(error.DisplayBlocked("queued", ""), static_cast<int>(CATDlgWndOK));
    EXPECT_EQ(error.DisplayBlocked("asked", "Title"), static_cast<int>(CATDlgWndCANCEL));
    EXPECT_EQ(frontEnd.shown, Texts{"error Error 'Title' 'asked' -> 0"});
    EXPECT_EQ(Journal(), (Texts{"error Error '' 'queued' -> 1024", "error Error 'Title' 'asked' -> 2048"}));
}

TEST_F(CATDlgNotifyTest, GivesTheFrontEndBackThatWasSetBefore) {
    ScriptedFrontEnd outer;
    {
        const ScriptedFrontEnd inner;
        EXPECT_EQ(Messages::SetFrontEnd(nullptr), &inner);
        EXPECT_EQ(Messages::SetFrontEnd(&outer), nullptr);
    }
    EXPECT_EQ(Messages::SetFrontEnd(nullptr), &outer);
}

TEST_F(CATDlgNotifyTest, BlocksEverythingElseWhileItWaits) {
    CATDlgPushButton& button = Make<CATDlgPushButton>("OkPbt");
    ScriptedFrontEnd frontEnd;
    Texts tried;
    frontEnd.onShow = [this, &button, &tried] {
        EXPECT_TRUE(Messages::IsWaiting());
        tried.push_back(Result(DialogUser::Press(button)));
        tried.push_back(Result(DialogUser::PressEnter(*dialog)));
        return static_cast<int>(CATDlgWndOK);
    };
    error.DisplayBlocked("text", "");
    EXPECT_EQ(tried, (Texts{"Dlg/OkPbt is blocked by a message that waits for its answer",
                            "Dlg is blocked by a message that waits for its answer"}));
    EXPECT_FALSE(Messages::IsWaiting());
    EXPECT_EQ(Result(DialogUser::Press(button)), "done");
}

TEST_F(CATDlgNotifyTest, WaitsAgainWhenAMessageComesUpBehindAnother) {
    ScriptedFrontEnd frontEnd;
    frontEnd.onShow = [this, &frontEnd] {
        if (frontEnd.shown.size() == 1)
            warning.DisplayBlocked("inner", "");
        EXPECT_TRUE(Messages::IsWaiting());
        return static_cast<int>(CATDlgWndOK);
    };
    error.DisplayBlocked("outer", "");
    EXPECT_FALSE(Messages::IsWaiting());
    EXPECT_EQ(Journal(), (Texts{"error Error '' 'outer' -> 1024", "warning Warning '' 'inner' -> 1024"}));
}

TEST_F(CATDlgNotifyTest, WaitsNoLongerWhenItsFrontEndFails) {
    ScriptedFrontEnd frontEnd;
    frontEnd.onShow = []() -> int { throw 1; };
    EXPECT_THROW(error.DisplayBlocked("text", ""), int);
    EXPECT_FALSE(Messages::IsWaiting());
}

TEST_F(CATDlgNotifyTest, MayBeForgottenByTheJournalWhileItWaits) {
    ScriptedFrontEnd frontEnd;
    frontEnd.onShow = [] {
        Messages::ClearJournal();
        return static_cast<int>(CATDlgWndAPPLY);
    };
    EXPECT_EQ(error.DisplayBlocked("text", ""), static_cast<int>(CATDlgWndAPPLY));
    EXPECT_EQ(Journal(), Texts());
}

TEST_F(CATDlgNotifyTest, TakesNoChildren) {
    MakeIn<CATDlgLabel>(error, "Lab");
    EXPECT_EQ(TakeMisuses(), Texts{"the widget 'Lab' was made in 'Error', which takes no children"});
}

} // namespace
