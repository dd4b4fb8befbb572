#ifndef desktop_LineEditorPeer_H
#define desktop_LineEditorPeer_H

#include "EditorPeer.h"

namespace desktop {

class LineField;

// An editor of one line.
class LineEditorPeer : public EditorPeer {
  public:
    LineEditorPeer(PeerTree& ioTree, CATDlgEditor& ioEditor, QWidget* iParent);

    bool IsOneLine() const override { return true; }

  protected:
    QString FieldText() const override;
    void ShowFieldText(const QString& iText) override;
    void ShowSize() override;

  private:
    LineField* _field;
};

} // namespace desktop

#endif
