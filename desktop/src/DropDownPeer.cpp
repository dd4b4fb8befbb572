#include "DropDownPeer.h"

#include "CATDlgCombo.h"
#include "EnterKey.h"
#include "LineModel.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"

#include <QtGui/QWheelEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QComboBox>

#include <algorithm>

namespace desktop {

namespace {

constexpr int shortestContent = 6; // characters
constexpr int longestContent = 40;
constexpr int linesByDefault = 12;

// Asks before it opens, and leaves the wheel to what it scrolls as long as it is not in use.
class DropDownBox : public QComboBox {
  public:
    DropDownBox(QWidget* iParent, std::function<bool()> iMayOpen)
        : QComboBox(iParent), _mayOpen(std::move(iMayOpen)) {
        setFocusPolicy(Qt::StrongFocus);
        setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    }

    void showPopup() override {
        if (!_mayOpen())
            return;
        view()->setMinimumWidth(
            std::min(view()->sizeHintForColumn(0) + 2 * view()->frameWidth(), 3 * width()));
        QComboBox::showPopup();
    }

  protected:
    void wheelEvent(QWheelEvent* iEvent) override {
        if (hasFocus())
            QComboBox::wheelEvent(iEvent);
        else
            iEvent->ignore();
    }

  private:
    std::function<bool()> _mayOpen;
};

} // namespace

DropDownPeer::DropDownPeer(PeerTree& ioTree, CATDlgCombo& ioCombo, QWidget* iParent)
    : Peer(ioTree, ioCombo, new DropDownBox(iParent, [this] { return OpenList(); })), _combo(ioCombo),
      _box(static_cast<QComboBox*>(Widget())), _lines(new LineModel(ioCombo, _box)) {
    LeaveEnterToWindow(*_box);
    _box->setModel(_lines);
    connect(_box, &QComboBox::activated, this, [this](int iLine) {
        Perform([this, iLine] { return host::DialogUser::Choose(_combo, iLine); });
    });
}

void DropDownPeer::Detach() {
    _lines->Forget();
    Peer::Detach();
}

// The program may fill the list as it opens, or take the combo away.
bool DropDownPeer::OpenList() {
    return Perform([this] { return host::DialogUser::OpenList(_combo); }) && _box->isVisible() &&
           _box->isEnabled();
}

void DropDownPeer::ShowState(unsigned int iKinds) {
    if ((iKinds & host::ChangeContent) != 0)
        _lines->Reload();
    if ((iKinds & (host::ChangeContent | host::ChangeLayout)) != 0)
        ShowWidth();
    _box->setCurrentIndex(_combo.GetSelect());
    const bool isFilledAnew = (iKinds & host::ChangeContent) != 0;
    if (isFilledAnew && _box->view()->isVisible()) // and has forgotten where it was
        _box->view()->setCurrentIndex(_lines->index(_combo.GetSelect()));
}

void DropDownPeer::ShowWidth() {
    const int height = host::Inspector::VisibleTextHeight(_combo);
    _box->setMaxVisibleItems(height > 0 ? height : linesByDefault);
    const int width = host::Inspector::VisibleTextWidth(_combo);
    const QFontMetrics metrics = _box->fontMetrics();
    const int longest = _lines->WidestLine(metrics) / metrics.horizontalAdvance(QLatin1Char('X')) + 1;
    _box->setMinimumContentsLength(width > 0 ? width : std::clamp(longest, shortestContent, longestContent));
}

} // namespace desktop
