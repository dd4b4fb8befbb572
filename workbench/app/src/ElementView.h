#pragma once

// A tree in which an element, an item below a branch, is picked by a click or by Enter.

#include <QtWidgets/QTreeWidget>

#include <functional>

namespace app {

class ElementView : public QTreeWidget {
  public:
    /// Role of column 0: true for an item that is shown greyed, though it can still be reached.
    static constexpr int greyedRole = Qt::UserRole;

    /// `onPicked` is called once for a click and once for a double click.
    ElementView(QWidget* parent, std::function<void(QTreeWidgetItem&)> onPicked);

    /// Takes the keyboard, on the first element that is shown unless an element is current already.
    void Enter();

  protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QTreeWidgetItem* FirstShownElement() const;

    std::function<void(QTreeWidgetItem&)> _onPicked;
    QTreeWidgetItem* _pressed = nullptr; ///< where the left button went down; null for nowhere
};

} // namespace app
