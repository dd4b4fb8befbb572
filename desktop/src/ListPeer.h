#ifndef desktop_ListPeer_H
#define desktop_ListPeer_H

#include "Peer.h"

class CATDlgCombo;

namespace desktop {

class LineModel;
class LineView;

// A combo whose list is always visible.
class ListPeer : public Peer {
  public:
    ListPeer(PeerTree& ioTree, CATDlgCombo& ioCombo, QWidget* iParent);

    void Detach() override;
    QWidget* Field() const override { return Widget(); }

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    void Choose(int iLine);
    void ShowSelection();
    int TextWidth() const; // in pixels

    CATDlgCombo& _combo;
    LineView* _view;
    LineModel* _lines;
};

} // namespace desktop

#endif
