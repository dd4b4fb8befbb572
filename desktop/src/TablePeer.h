#ifndef desktop_TablePeer_H
#define desktop_TablePeer_H

#include "Peer.h"

#include <vector>

class CATDlgMultiList;

namespace desktop {

class TableModel;
class TableView;

// A list with columns.
class TablePeer : public Peer {
  public:
    TablePeer(PeerTree& ioTree, CATDlgMultiList& ioList, QWidget* iParent);

    void Detach() override;
    QWidget* Field() const override { return Widget(); }

  protected:
    void ShowState(unsigned int iKinds) override;

  private:
    // True when no row is shown as selected any more.
    bool ShowRows();
    void ShowExtent();
    void ShowSelection();
    void Select(const std::vector<int>& iRows);
    void Activate(int iRow, int iColumn);

    CATDlgMultiList& _list;
    TableView* _view;
    TableModel* _rows;
    int _clearings; // of the list when its rows were last shown
};

} // namespace desktop

#endif
