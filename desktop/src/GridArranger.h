#ifndef desktop_GridArranger_H
#define desktop_GridArranger_H

#include "host/LayoutPlan.h"

class QGridLayout;
class QWidget;

namespace desktop {

class PeerTree;

// Places the shown children of a container as the host plans it. Texts, fields and buttons that stand in one
// row get one height, so that their texts line up.
class GridArranger {
  public:
    enum Edge { NoMargins, Margins };

    GridArranger(const PeerTree& iTree, const CATDialog& iContainer, QWidget& ioInside);
    void Arrange(Edge iEdge);

  private:
    void Place(const host::Cell& iCell, QGridLayout& ioGrid) const;
    bool IsBoxAcross(const host::Cell& iCell) const;
    bool IsSpacer(const host::Cell& iCell) const;
    int LastRowInUse() const;
    bool IsRowOfLines(int iRow) const;
    bool IsBareRow() const;
    bool StandsBesideField(const host::Cell& iCell) const;

    const PeerTree& _tree;
    QWidget& _inside;
    bool _isWindow;
    host::LayoutPlan _plan;
    int _fieldHeight;
};

} // namespace desktop

#endif
