#ifndef desktop_EditorPeer_H
#define desktop_EditorPeer_H

#include "Peer.h"

class CATDlgEditor;

namespace desktop {

// What editors of one and of several lines share: a text is typed here first and passed on when the person
// presses Enter, leaves the field or does something else; Escape drops it.
class EditorPeer : public Peer {
  public:
    EditorPeer(PeerTree& ioTree, CATDlgEditor& ioEditor, QWidget* iWidget);

    QWidget* Field() const override { return Widget(); }
    void CommitText() override;
    void DropText() override;

  protected:
    void ShowState(unsigned int iKinds) override;
    // The text in the field.
    virtual QString FieldText() const = 0;
    virtual void ShowFieldText(const QString& iText) = 0;
    // Visible size and longest text.
    virtual void ShowSize() = 0;

    CATDlgEditor& Editor() const { return _editor; }
    bool IsReadOnly() const;
    void NoteTyped();
    void NoteLeft();

  private:
    void EndTyping();
    void ShowHostText();

    CATDlgEditor& _editor;
    bool _isTyping = false; // the field holds a text that the host does not
};

} // namespace desktop

#endif
