#include "host/Messages.h"

#include "CATDlgDialog.h"
#include "host/EventScope.h"

#include <deque>

namespace host {

namespace {

struct State {
    std::vector<Message> journal;
    std::deque<int> answers;
    MessageFrontEnd* frontEnd = nullptr;
};

// A message that waits for its answer.
class Waiting {
  public:
    Waiting() { ++_count; }
    ~Waiting() { --_count; }
    Waiting(const Waiting&) = delete;
    Waiting& operator=(const Waiting&) = delete;
    static bool IsAny() { return _count > 0; }

  private:
    static int _count;
};

int Waiting::_count = 0;

State& Current() {
    static auto* state = new State;
    return *state;
}

int AnswerFor(const Message& iMessage) {
    State& state = Current();
    if (!state.answers.empty()) {
        const int answer = state.answers.front();
        state.answers.pop_front();
        return answer;
    }
    if (state.frontEnd == nullptr)
        return static_cast<int>(CATDlgWndOK);
    EventScope::Flush();
    const Waiting waiting;
    return state.frontEnd->Show(iMessage);
}

} // namespace

const std::vector<Message>& Messages::Journal() {
    return Current().journal;
}

void Messages::ClearJournal() {
    Current().journal.clear();
}

void Messages::QueueAnswer(int iButton) {
    Current().answers.push_back(iButton);
}

int Messages::QueuedAnswers() {
    return static_cast<int>(Current().answers.size());
}

MessageFrontEnd* Messages::SetFrontEnd(MessageFrontEnd* iFrontEnd) {
    MessageFrontEnd* const previous = Current().frontEnd;
    Current().frontEnd = iFrontEnd;
    return previous;
}

bool Messages::IsWaiting() {
    return Waiting::IsAny();
}

int Messages::Ask(const Message& iMessage) {
    const std::size_t number = Current().journal.size();
    Current().journal.push_back(iMessage);
    const int answer = AnswerFor(iMessage);
    if (number < Current().journal.size())
        Current().journal[number].answer = answer;
    return answer;
}

void Messages::Reset() {
    MessageFrontEnd* const frontEnd = Current().frontEnd;
    Current() = State();
    Current().frontEnd = frontEnd;
}

} // namespace host
