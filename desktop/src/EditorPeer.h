#ifndef desktop_EditorPeer_H
#define desktop_EditorPeer_H

#include "TypingPeer.h"

class CATDlgEditor;

namespace desktop {

// What editors of one and of several lines share. A text that the program sets takes the place of what is
// being typed.
class EditorPeer : public TypingPeer {
  public:
    EditorPeer(PeerTree& ioTree, CATDlgEditor& ioEditor, QWidget* iWidget);

    QWidget* Field() const override { return Widget(); }

  protected:
    void ShowState(unsigned int iKinds) override;
    void ShowHostText() override;
    host::Outcome Enter(const std::string& iText) override;
    virtual void ShowFieldText(const QString& iText) = 0;
    // Visible size and longest text.
    virtual void ShowSize() = 0;

    CATDlgEditor& Editor() const { return _editor; }
    bool IsReadOnly() const;
    void NoteLeft();

  private:
    CATDlgEditor& _editor;
};

} // namespace desktop

#endif
