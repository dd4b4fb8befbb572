#pragma once

#include "CATDlgDialog.h"
#include "CATICkeParm.h"
#include "session/NotificationReader.h"
#include "session/Player.h"
#include "support/ApplicationTest.h"

#include <memory>
#include <sstream>

class CATDlgCheckButton;
class CATDlgCombo;
class CATDlgEditor;
class CATDlgMultiList;
class CATDlgPushButton;
class CATDlgRadioButton;
class CATDlgSpinner;

namespace sessions {

using Texts = std::vector<std::string>;

// A dialog with one widget of each kind. Its push button writes a trace and shows a message.
class Panel : public CATDlgDialog {
  public:
    explicit Panel(CATDialog* iParent);
    ~Panel() override;

    CATDlgCombo* type;
    CATDlgEditor* name;
    CATDlgEditor* information; // read-only
    CATDlgCheckButton* flag;
    CATDlgRadioButton* one;
    CATDlgRadioButton* two;
    CATDlgSpinner* count;
    const CATICkeParm_var depth; // 12.5 mm, edited in the frame "DepthFrm" with arrows
    CATDlgMultiList* rows;       // two columns, several rows can be selected
    CATDlgPushButton* go;

  private:
    void OnGo(CATCommand*, CATNotification*, CATCommandClientData);
};

// Gives every notification its class in lower case and a number.
class CountingReader : public session::NotificationReader {
  public:
    session::Json Read(CATNotification& iNotification) const override;

  private:
    mutable int _number = 0;
};

// Plays sessions on the panel.
//
//     EXPECT_EQ(Play(R"({"do":"press","at":"GoPbt"})"), Held());
class PlayerTest : public support::ApplicationTest {
  protected:
    PlayerTest();
    ~PlayerTest() override;

    // Plays the lines of a session and gives what failed, as the program prints it for a file called "s".
    Texts Play(const std::string& iSession);
    static Texts Held() { return {}; }
    // The one failure "s:LINE: what" with both values.
    static Texts Failed(const std::string& iWhere, const std::string& iExpected, const std::string& iActual);

    Panel& ThePanel() { return *_panel; }
    session::NotificationRecorder& Recorder() { return _recorder; }
    session::Player& ThePlayer() { return _player; }

  private:
    CountingReader _reader;
    session::NotificationRecorder _recorder;
    session::Player _player;
    Panel* _panel; // child of the main window
};

} // namespace sessions
