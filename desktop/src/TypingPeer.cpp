#include "TypingPeer.h"

#include "PeerTree.h"
#include "Texts.h"
#include "host/Messages.h"

namespace desktop {

// While a message waits, or a window is being brought up to date, the text stays where it is.
void TypingPeer::CommitText() {
    if (!_isTyping || Dialog() == nullptr || Tree().IsApplying() || host::Messages::IsWaiting())
        return;
    EndTyping();
    const std::string text = ToHost(FieldText());
    if (Perform([this, &text] { return Enter(text); }))
        ShowHostText(); // which may be written in another way
}

void TypingPeer::DropText() {
    if (Dialog() == nullptr)
        return;
    EndTyping();
    ShowHostText();
}

bool TypingPeer::CommitTyping() {
    const bool wasTyping = _isTyping;
    CommitText();
    return wasTyping;
}

void TypingPeer::NoteTyped() {
    _isTyping = true;
    Tree().NoteTyping(*this);
}

void TypingPeer::EndTyping() {
    _isTyping = false;
    Tree().NoteTypingEnded(*this);
}

} // namespace desktop
