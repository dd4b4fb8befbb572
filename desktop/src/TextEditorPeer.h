#ifndef desktop_TextEditorPeer_H
#define desktop_TextEditorPeer_H

#include "EditorPeer.h"

namespace desktop {

class TextField;

// An editor of several lines.
class TextEditorPeer : public EditorPeer {
  public:
    TextEditorPeer(PeerTree& ioTree, CATDlgEditor& ioEditor, QWidget* iParent);

  protected:
    QString FieldText() const override;
    void ShowFieldText(const QString& iText) override;
    void ShowSize() override;

  private:
    TextField* _field;
};

} // namespace desktop

#endif
