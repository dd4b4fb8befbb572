#pragma once

#include "session/StepHandler.h"

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <deque>
#include <functional>
#include <string>

class CATDialog;

namespace app {
class PartTree;
}
namespace desktop {
class Desktop;
}
namespace session {
class Player;
}

namespace desktop_test {

// Does the steps of a session with mouse and keyboard, in the windows of the desktop, where the player itself
// would act on the host. It presses OK in every message that comes up.
//
//     Hand hand(desktop, partTree);
//     hand.TakeOver(player);
class Hand {
  public:
    // Both are not owned.
    Hand(const desktop::Desktop& iDesktop, const app::PartTree& iPart);

    void TakeOver(session::Player& ioPlayer);

  private:
    using Action = std::function<host::Outcome(const session::Json&)>;

    class Step : public session::StepHandler {
      public:
        Step(session::Form iForm, Action iAction) : _form(std::move(iForm)), _action(std::move(iAction)) {}
        session::Form Describe() const override { return _form; }
        host::Outcome Do(const session::Json& iStep) override { return _action(iStep); }

      private:
        session::Form _form;
        Action _action;
    };

    host::Outcome Press(const session::Json& iStep) const;
    host::Outcome Choose(const session::Json& iStep) const;
    host::Outcome Check(const session::Json& iStep) const;
    host::Outcome Type(const session::Json& iStep) const;
    host::Outcome Spin(const session::Json& iStep) const;
    host::Outcome Escape(const session::Json& iStep) const;
    host::Outcome ShowPage(const session::Json& iStep) const;
    host::Outcome Move(const session::Json& iStep) const;
    host::Outcome Select(const session::Json& iStep) const;
    host::Outcome Activate(const session::Json& iStep) const;
    host::Outcome Pick(const session::Json& iStep) const;

    QWidget* Find(const session::Json& iStep) const;
    // Presses OK in a message that waits.
    static void AnswerMessage();

    const desktop::Desktop& _desktop;
    const app::PartTree& _part;
    std::deque<Step> _steps;
    QTimer _answer;
};

} // namespace desktop_test
