#ifndef desktop_LabelPeer_H
#define desktop_LabelPeer_H

#include "Peer.h"

class CATDlgLabel;
class QLabel;

namespace desktop {

// A text, or an icon alone.
class LabelPeer : public Peer {
  public:
    LabelPeer(PeerTree& ioTree, CATDlgLabel& ioLabel, QWidget* iParent);

    // The field that the label stands for; its mnemonic moves there. Null for none.
    void SetField(QWidget* iField);
    bool HasField() const;

    QString Caption() const override;
    void ShowCaption(int iMnemonic) override;
    bool TakesMnemonic() const override { return HasField(); }
    QWidget* Named() const override { return Widget(); }
    bool IsOneLine() const override;

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    void ShowIcon();
    void ShowIconHelp();
    QLabel& Label() const;

    CATDlgLabel& _label;
    bool _hasIcon = false;
};

} // namespace desktop

#endif
