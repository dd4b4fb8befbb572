#include "CATDlgCombo.h"
#include "CATDlgDialog.h"
#include "CATError.h"
#include "CommandTest.h"
#include "host/FaultPoints.h"
#include "host/MessageCatalogs.h"
#include "host/Messages.h"

namespace command {

// The same session with each call of the platform failing once: the command starts or says that it cannot,
// and whatever it shows, it can be used and closed.
class FailingCallsTest : public CommandTest {
  protected:
    // A group, a type and a set are chosen, then the dialog is accepted. False when the dialog did not open.
    bool PlayThrough() {
        if (!Start())
            return false;
        for (const auto& step : {ChooseGroup(2), ChooseType(1), ChooseSet(3)})
            static_cast<void>(step);
        EXPECT_TRUE(PressButton(CATDlgWndOK)) << "the dialog can always be accepted";
        EXPECT_EQ(Command().CurrentState(), FeatureCommand::State::Accepted);
        return true;
    }
};

TEST_F(FailingCallsTest, EachLeavesADialogThatCanBeClosedOrNone) {
    Allow(support::Leftover::LastError, "the failures that are asked for leave errors behind");
    host::FaultPoints::StartCounting();
    ASSERT_TRUE(PlayThrough());
    const int calls = host::FaultPoints::Passed();
    ASSERT_GT(calls, 50);
    int unopened = 0;
    for (int call = 1; call <= calls; ++call) {
        SCOPED_TRACE("call " + std::to_string(call));
        host::MessageCatalogs::SetLanguage("none");
        host::MessageCatalogs::SetLanguage("");
        host::FaultPoints::FailCall(call);
        unopened += PlayThrough() ? 0 : 1;
        host::Messages::ClearJournal();
    }
    host::FaultPoints::Stop();
    EXPECT_GT(unopened, 0) << "some call is needed by the dialog";
    EXPECT_LT(unopened, calls);
}

} // namespace command
