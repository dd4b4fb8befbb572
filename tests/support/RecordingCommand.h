#pragma once

#include "CATCommand.h"

#include <string>
#include <vector>

namespace support {

// One notification that a command heard.
struct HeardNotification {
    std::string className;
    CATNotification* notification = nullptr; // kept with a reference by the command that heard it
    CATCommand* from = nullptr;              // the command that passed it on
    CATCommand* sender = nullptr;            // the command that sent it
};

// A father that keeps every notification it hears and ends its climb.
//
//     RecordingCommand command;
//     ... a panel below it is used ...
//     EXPECT_EQ(command.TakeClasses(), Classes({"OrvKvTypeSelectedNotification"}));
class RecordingCommand : public CATCommand {
    CATDeclareClass;

  public:
    explicit RecordingCommand(CATCommand* iFather = nullptr);
    ~RecordingCommand() override;
    RecordingCommand(const RecordingCommand&) = delete;
    RecordingCommand& operator=(const RecordingCommand&) = delete;

    const std::vector<HeardNotification>& Heard() const { return _heard; }
    // Class names in the order in which they were heard.
    std::vector<std::string> Classes() const;
    // The same, and forgets what was heard.
    std::vector<std::string> TakeClasses();
    void Forget();

    // The last notification of a class that was heard, without a reference; null when there was none.
    template<class Notification>
    Notification* Last() const {
        return static_cast<Notification*>(LastOf(Notification::ClassName()));
    }

    CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom, CATNotification* iNotification) override;

  private:
    CATNotification* LastOf(const char* iClassName) const;

    std::vector<HeardNotification> _heard;
};

using Classes = std::vector<std::string>;

} // namespace support
