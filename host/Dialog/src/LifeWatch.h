#ifndef LifeWatch_H
#define LifeWatch_H

class CATDialog;

namespace host {

// Tells whether a widget has survived a callback:
//
//     LifeWatch watch(*this);
//     SendEvent(event);
//     if (watch.IsAlive()) ...
class LifeWatch {
  public:
    explicit LifeWatch(const CATDialog& iWidget) : _widget(&iWidget), _outer(_innermost) {
        _innermost = this;
    }
    ~LifeWatch() { _innermost = _outer; }
    LifeWatch(const LifeWatch&) = delete;
    LifeWatch& operator=(const LifeWatch&) = delete;

    bool IsAlive() const { return _widget != nullptr; }

    // Called by the destructor of every widget.
    static void NoteEnd(const CATDialog& iWidget) {
        for (LifeWatch* watch = _innermost; watch != nullptr; watch = watch->_outer)
            if (watch->_widget == &iWidget)
                watch->_widget = nullptr;
    }

  private:
    const CATDialog* _widget;
    LifeWatch* _outer;
    static LifeWatch* _innermost;
};

} // namespace host

#endif
