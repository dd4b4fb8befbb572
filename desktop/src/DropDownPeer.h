#ifndef desktop_DropDownPeer_H
#define desktop_DropDownPeer_H

#include "Peer.h"

class CATDlgCombo;
class QComboBox;

namespace desktop {

class LineModel;

// A combo whose list opens on demand.
class DropDownPeer : public Peer {
  public:
    DropDownPeer(PeerTree& ioTree, CATDlgCombo& ioCombo, QWidget* iParent);

    void Detach() override;
    QWidget* Field() const override { return Widget(); }
    bool IsOneLine() const override { return true; }

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    bool OpenList();
    void ShowWidth();

    CATDlgCombo& _combo;
    QComboBox* _box;
    LineModel* _lines;
};

} // namespace desktop

#endif
