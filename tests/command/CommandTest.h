#pragma once

#include "engineering/FeatureCatalogue.h"
#include "engineering/Part.h"
#include "host/Application.h"
#include "host/Outcome.h"
#include "session/NotificationRecorder.h"
#include "support/AuditedTest.h"
#include "workbench/FeatureCommand.h"
#include "workbench/PanelNotificationReader.h"

#include <optional>

class CATDlgCombo;
class CATDlgMultiList;

namespace host {
class ValueFrame;
}

namespace command {

using Texts = std::vector<std::string>;
using session::HeardNotification;
using workbench::FeatureCommand;

// The feature command with the shipped catalogue, and a person in front of its dialog.
//
//     Start();
//     ChooseType(2);
//     EXPECT_EQ(Row("ParameterMul", 0), "|FORM|(A)||Form according to the standard");
class CommandTest : public support::AuditedTest {
  protected:
    CommandTest();
    ~CommandTest() override;

    // The catalogue that the program ships with, loaded once.
    static const engineering::FeatureCatalogue& Shipped();
    // The part that the program ships with.
    static const engineering::Part& SamplePart();

    // Opens the dialog. Without a catalogue it is the shipped one.
    [[nodiscard]] bool Start(FeatureCommand::Mode iMode = FeatureCommand::Mode::Parameters,
                             const engineering::FeatureCatalogue& iCatalogue = Shipped());
    // The same in two steps, for what is to hear everything from the start on.
    void Prepare(FeatureCommand::Mode iMode, const engineering::FeatureCatalogue& iCatalogue = Shipped());
    [[nodiscard]] bool StartPrepared();
    // The end of the command while its dialogs go on.
    void EndCommand();
    session::NotificationRecorder& Recorder() { return *_recorder; }
    FeatureCommand& Command() { return *_command; }

    static host::Outcome ChooseGroup(int iLine);
    static host::Outcome ChooseType(int iLine);
    // A line of the selector's combo, which only mode Parameters shows.
    static host::Outcome ChooseSet(int iLine);
    // A line of any combo by its text.
    static host::Outcome ChooseText(const std::string& iCombo, const std::string& iText);
    // A row of the table of sets, which only mode Sets has.
    static host::Outcome SelectSet(int iRow);
    static host::Outcome PressPushButton(const std::string& iName);
    static host::Outcome PressButton(CATULong iButton);

    static CATDlgCombo& Combo(const std::string& iName);
    static Texts LinesOf(const std::string& iCombo);
    static CATDlgMultiList& List(const std::string& iName);
    // The cells of all rows or of one row, with a bar between them; and the titles of the columns.
    static Texts Rows(const std::string& iList);
    static std::string Row(const std::string& iList, int iRow);
    static std::string Columns(const std::string& iList);
    // The row of a parameter in the parameter list; empty when it has none.
    static std::string RowOf(const std::string& iParameter);
    // What input 1, 2 or 3 shows; "hidden" when it is.
    static std::string Input(int iNumber);

    // Brings a page of the lower part to the front.
    static host::Outcome ShowPage(const std::string& iPage);
    // The field of a value, named by the frame that it is in.
    static host::ValueFrame& Field(const std::string& iFrame);
    // What the thread page shows: type, diameter, internal diameter, length, pitch and direction, with a bar
    // between them.
    static std::string Thread();
    // The messages of the rules, and the icon of the traffic light.
    static Texts RuleMessages();
    static std::string Light();

    // Texts of the messages shown since the last call.
    static Texts TakeMessages();
    // What the command has heard since the last call.
    std::vector<HeardNotification> TakeHeard();
    // The classes of what it has heard, without "OrvKv" and "Notification".
    Texts TakeHeardClasses();

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
