// The recording command keeps what it hears, in order, and lets go of it again.

#include "support/RecordingCommand.h"

#include "support/AuditedTest.h"

using namespace support;

namespace {

class RecordingCommandTest : public AuditedTest {
  protected:
    RecordingCommand _command;
    CATCommand _panel{&_command, "Panel"};
    CATCommand _widget{&_panel, "Widget"};
};

TEST_F(RecordingCommandTest, KeepsEachNotificationWithItsSenderAndTheCommandThatPassedItOn) {
    auto* const notification = new CATNotification();
    _widget.SendNotification(_widget.GetFather(), notification);
    ASSERT_EQ(_command.Classes(), Classes({"CATNotification"}));
    EXPECT_EQ(_command.Heard()[0].notification, notification);
    EXPECT_EQ(_command.Heard()[0].from, &_panel);
    EXPECT_EQ(_command.Heard()[0].sender, &_widget);
    EXPECT_EQ(_command.Last<CATNotification>(), notification);
}

TEST_F(RecordingCommandTest, EndsTheClimb) {
    RecordingCommand below(&_command);
    below.SendNotification(&below, new CATNotification());
    EXPECT_EQ(below.TakeClasses(), Classes({"CATNotification"}));
    EXPECT_EQ(_command.TakeClasses(), Classes());
}

TEST_F(RecordingCommandTest, ForgetsWhatWasTaken) {
    _widget.SendNotification(&_panel, new CATNotification());
    EXPECT_EQ(_command.TakeClasses(), Classes({"CATNotification"}));
    EXPECT_EQ(_command.TakeClasses(), Classes());
    EXPECT_EQ(_command.Last<CATNotification>(), nullptr);
}

} // namespace
