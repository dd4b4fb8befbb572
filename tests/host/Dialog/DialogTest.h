#ifndef DialogTest_H
#define DialogTest_H

#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "host/Application.h"
#include "host/DialogUser.h"

#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

// What the tests of the dialogs share: an application with one shown dialog that writes down what it hears,
// and the comparison of everything alive with the start.

typedef std::vector<std::string> Texts;

// "done", or the reason of the refusal.
std::string Result(const host::Outcome& iOutcome);
// A notification in short: "PushBActivate OkPbt" for the activate notification of the button OkPbt.
std::string InShort(const CATNotification& iNotification);

// A dialog that hears its own widgets.
class ListeningDialog : public CATDlgDialog {
  public:
    using CATDlgDialog::CATDlgDialog;

    void Hear(CATCommand& ioPublisher, CATNotification* iNotification);
    void HearClass(CATCommand& ioPublisher, const char* iClass);
    void Ignore(CATCommand& ioPublisher, CATNotification* iNotification);
    // What was heard since the last call, in order.
    Texts TakeHeard();

    // Runs with each notification; what it returns is written behind the notification.
    std::function<std::string()> onHeard;

  private:
    void OnNotified(CATCommand* iFrom, CATNotification* iNotification, CATCommandClientData iData);

    std::shared_ptr<Texts> _heard =
        std::make_shared<Texts>(); // outlives a dialog that is destroyed meanwhile
};

// The command above all dialogs. It hears what no dialog has answered.
class TopCommand : public CATCommand {
  public:
    TopCommand() : CATCommand(nullptr, "Command") {}
    CATNotifPropagationMode AnalyseNotification(CATCommand* iFrom, CATNotification* iNotification) override;
    Texts TakeHeard();

  private:
    Texts _heard;
};

// Remembers how things stand and, at its end, expects them to stand so again: whatever a test makes is gone.
class LeftoverCheck {
  public:
    LeftoverCheck();
    LeftoverCheck(const LeftoverCheck&) = delete;
    LeftoverCheck& operator=(const LeftoverCheck&) = delete;
    ~LeftoverCheck();

  private:
    std::map<std::string, int> _liveObjects;
    int _subscriptions;
    int _analyseCallbacks;
};

class DialogTest : public testing::Test {
  protected:
    DialogTest();
    void TearDown() override;

    CATDlgDocument& MainWindow() { return application->MainWindow(); }

    // A widget in the dialog.
    template<class Widget>
    Widget& Make(const char* iName, CATDlgStyle iStyle = 0) {
        return *new Widget(dialog, iName, iStyle);
    }
    template<class Widget>
    Widget& MakeIn(CATDialog& ioParent, const char* iName, CATDlgStyle iStyle = 0) {
        return *new Widget(&ioParent, iName, iStyle);
    }
    // Shown, below the main window.
    ListeningDialog& MakeDialog(const char* iName, CATDlgStyle iStyle = 0);

    // The misuses that were recorded since the last call. Those that nobody takes fail the test.
    static Texts TakeMisuses();

  private:
    LeftoverCheck _leftovers; // first, so that it sees everything else come and go

  protected:
    TopCommand command;
    std::unique_ptr<host::Application> application;
    ListeningDialog* dialog; // "Dlg", with OK, Apply and Cancel
};

#endif
