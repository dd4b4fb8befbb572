#ifndef desktop_TypingPeer_H
#define desktop_TypingPeer_H

#include "Peer.h"

#include <string>

namespace desktop {

// What all fields share that are typed in: a text is typed here first and passed on when the person presses
// Enter, leaves the field or does something else; Escape drops it.
class TypingPeer : public Peer {
  public:
    using Peer::Peer;

    void CommitText() override;
    void DropText() override;

  protected:
    // The text in the field.
    virtual QString FieldText() const = 0;
    // Shows the text that the host holds.
    virtual void ShowHostText() = 0;
    // Passes a typed text on.
    virtual host::Outcome Enter(const std::string& iText) = 0;

    // Passes a text on that is being typed; false when there is none.
    bool CommitTyping();
    // The person has changed the text in the field.
    void NoteTyped();
    void EndTyping();
    // Whether the field holds a text that the host does not.
    bool IsTyping() const { return _isTyping; }

  private:
    bool _isTyping = false;
};

} // namespace desktop

#endif
