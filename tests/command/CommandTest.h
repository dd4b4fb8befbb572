#pragma once

#include "engineering/FeatureCatalogue.h"
#include "host/Application.h"
#include "host/Outcome.h"
#include "session/NotificationRecorder.h"
#include "support/AuditedTest.h"
#include "workbench/FeatureCommand.h"
#include "workbench/PanelNotificationReader.h"

#include <optional>

class CATDlgCombo;

namespace command {

using Texts = std::vector<std::string>;
using session::HeardNotification;
using workbench::FeatureCommand;

// The feature command with the shipped catalogue, and a person in front of its dialog.
//
//     Start();
//     ChooseType(2);
//     EXPECT_EQ(Acknowledged(0), "DIN 74 A M3");
class CommandTest : public support::AuditedTest {
  protected:
    CommandTest();
    ~CommandTest() override;

    // The catalogue that the program ships with, loaded once.
    static const engineering::FeatureCatalogue& Shipped();

    // Opens the dialog. Without a catalogue it is the shipped one.
    [[nodiscard]] bool Start(FeatureCommand::Mode iMode = FeatureCommand::Mode::Parameters,
                             const engineering::FeatureCatalogue& iCatalogue = Shipped());
    FeatureCommand& Command() { return *_command; }

    static host::Outcome ChooseGroup(int iLine);
    static host::Outcome ChooseType(int iLine);
    static host::Outcome ChooseSet(int iLine);
    static host::Outcome PressButton(CATULong iButton);

    static CATDlgCombo& Combo(const std::string& iName);
    static Texts LinesOf(const std::string& iCombo);
    // What the command has acknowledged, and one line of it.
    static std::string Acknowledgement();
    static std::string Acknowledged(int iLine);

    // What the command has heard since the last call.
    std::vector<HeardNotification> TakeHeard();

  private:
    workbench::PanelNotificationReader _reader;
    std::optional<FeatureCommand> _command;
    std::optional<session::NotificationRecorder> _recorder;
    std::optional<host::Application>
        _application; // its end destroys the dialogs, which may still reach the command
};

} // namespace command

namespace session {

void PrintTo(const HeardNotification& iHeard, std::ostream* ioStream);

} // namespace session
