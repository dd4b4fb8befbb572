#ifndef desktop_FocusOrder_H
#define desktop_FocusOrder_H

#include <vector>

class CATDialog;
class QWidget;

namespace desktop {

class PeerTree;
class WindowPeer;

// The fields of a window as they are read, row by row and each from left to right, with the standard buttons
// at the end: the order in which Tab goes through them. It is that of the moment at which it is made, so that
// it is made anew for each key.
class FocusOrder {
  public:
    FocusOrder(const PeerTree& iTree, const WindowPeer& iWindow);

    // The first field that can be used, null for none.
    QWidget* First() const;
    // The nearest field that can be used behind the one that has the focus, or before it, round the ends of
    // the window; the first where the focus is on none. Null where none can be used.
    QWidget* Beside(const QWidget* iFocused, bool iBehind) const;

  private:
    void Add(const CATDialog& iContainer);
    bool IsReachable(const QWidget* iField) const;

    const PeerTree& _tree;
    const QWidget& _frame;
    std::vector<QWidget*> _fields; // usable or not
};

} // namespace desktop

#endif
