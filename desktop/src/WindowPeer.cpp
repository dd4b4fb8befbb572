#include "WindowPeer.h"

#include "CATDlgDialog.h"
#include "DialogWindow.h"
#include "FocusOrder.h"
#include "GridArranger.h"
#include "Icons.h"
#include "PeerTree.h"
#include "StandardButtons.h"
#include "Texts.h"
#include "host/DelayedDestruction.h"
#include "host/DialogUser.h"
#include "host/Inspector.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtCore/QScopedValueRollback>
#include <QtGui/QGuiApplication>
#include <QtGui/QScreen>
#include <QtGui/QWindow>
#include <QtWidgets/QAbstractScrollArea>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QVBoxLayout>

#include <algorithm>

namespace desktop {

namespace {

// The widgets inside a window, without other windows.
std::vector<QWidget*> ChildrenOf(const QWidget& iWidget) {
    std::vector<QWidget*> children;
    for (QObject* child : iWidget.children())
        if (child->isWidgetType() && !static_cast<QWidget*>(child)->isWindow())
            children.push_back(static_cast<QWidget*>(child));
    return children;
}

// Lets every layout measure its widgets anew, the innermost first.
void MeasureAnew(QWidget& ioWidget) {
    for (QWidget* child : ChildrenOf(ioWidget))
        MeasureAnew(*child);
    if (ioWidget.layout() == nullptr)
        return;
    ioWidget.layout()->invalidate();
    ioWidget.updateGeometry();
}

// Lets every layout place its widgets, the outermost first.
void PlaceAnew(QWidget& ioWidget) {
    if (ioWidget.layout() != nullptr)
        ioWidget.layout()->activate();
    for (QWidget* child : ChildrenOf(ioWidget))
        PlaceAnew(*child);
}

// How far a point lies from an area; 0 inside.
int DistanceTo(const QRect& iArea, const QPoint& iPoint) {
    const int x = std::clamp(iPoint.x(), iArea.left(), iArea.right());
    const int y = std::clamp(iPoint.y(), iArea.top(), iArea.bottom());
    return (iPoint - QPoint(x, y)).manhattanLength();
}

// The area for windows of the screen that is nearest to a point.
QRect AreaNearestTo(const QPoint& iPoint) {
    const QList<QScreen*> screens = QGuiApplication::screens();
    const auto nearest =
        std::min_element(screens.begin(), screens.end(), [&iPoint](const QScreen* a, const QScreen* b) {
            return DistanceTo(a->geometry(), iPoint) < DistanceTo(b->geometry(), iPoint);
        });
    return nearest == screens.end() ? QRect() : (*nearest)->availableGeometry();
}

// Where a window of that extent is wholly in sight, as near as can be; of one that is too large, the upper
// left corner.
QPoint IntoSight(const QRect& iFrame) {
    const QRect area = AreaNearestTo(iFrame.center());
    if (area.isNull())
        return iFrame.topLeft();
    return QPoint(std::max(area.left(), std::min(iFrame.x(), area.x() + area.width() - iFrame.width())),
                  std::max(area.top(), std::min(iFrame.y(), area.y() + area.height() - iFrame.height())));
}

constexpr int endOfDrag = 150; // milliseconds without a further step

} // namespace

WindowPeer::WindowPeer(PeerTree& ioTree, CATDlgWindow& ioWindow, const Peer* iParent)
    : Peer(ioTree, ioWindow, new DialogWindow(iParent == nullptr ? nullptr : iParent->Widget()->window())),
      _window(ioWindow), _frame(static_cast<DialogWindow*>(Widget())) {
    auto* const rows = new QVBoxLayout(_frame);
    _inside = new QWidget(_frame);
    rows->addWidget(_inside, 1);
    const CATDlgDialog* const dialog = AsDialog();
    _buttons = new StandardButtons(
        _frame, dialog == nullptr ? std::vector<CATULong>() : host::Inspector::StandardButtons(*dialog),
        [this](CATULong iButton) { PressStandardButton(iButton); });
    rows->addWidget(_buttons);
    rows->setSpacing(2 * _frame->style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    if (host::Inspector::IsModal(ioWindow))
        _frame->setWindowModality(Qt::ApplicationModal);
    _reportPlace.setSingleShot(true);
    connect(&_reportPlace, &QTimer::timeout, this, [this] { ReportPlace(); });
    _frame->SetPeer(this);
}

WindowPeer::~WindowPeer() {
    if (Widget() != nullptr)
        _frame->SetPeer(nullptr);
}

void WindowPeer::Arrange() {
    GridArranger(Tree(), _window, *_inside).Arrange(GridArranger::NoMargins);
}

void WindowPeer::FitToContent() {
    MeasureAnew(*_frame);
    if (_frame->isHidden())
        return;
    PlaceAnew(*_frame); // which sets the least size of the window anew
    Place();
}

void WindowPeer::ShowOrHide() {
    const bool isShown =
        host::Inspector::IsShownWithParents(_window) && !host::DelayedDestruction::IsDoomed(_window);
    if (isShown != _frame->isHidden())
        return;
    if (!isShown) {
        _frame->hide();
        return;
    }
    _isDraggedThere = false;
    Place();
    if (QWidget* const first = FocusOrder(Tree(), *this).First())
        first->setFocus();
    _frame->show();
    if (_isPlacedByHost)
        MoveIntoSight(_frame->pos()); // the borders of the window are known now
    _frame->raise();
    _frame->activateWindow();
    KeepPlace();
}

QImage WindowPeer::Picture() {
    if (_frame->isHidden()) {
        MeasureAnew(*_frame);
        Place();
    }
    _frame->grab(); // lets the widgets take their places
    for (QAbstractScrollArea* area : _frame->findChildren<QAbstractScrollArea*>())
        QCoreApplication::sendPostedEvents(area, QEvent::MetaCall); // and the scroll bars come and go
    return _frame->grab().toImage();
}

// A text that is not taken has to be mended first, with the reason in sight.
void WindowPeer::PressEnter() {
    CATDlgDialog* const dialog = AsDialog();
    if (dialog == nullptr || host::Inspector::DefaultButton(*dialog) == 0)
        return;
    Tree().CommitText(nullptr);
    if (Dialog() == nullptr)
        return;
    if (const Peer* const refused = Tree().FirstRefused(*dialog)) {
        refused->Field()->setFocus(Qt::TabFocusReason);
        QApplication::beep();
        return;
    }
    Perform([dialog] { return host::DialogUser::PressEnter(*dialog); });
}

void WindowPeer::PressEscape() {
    Peer* const typing = Tree().Typing();
    if (typing != nullptr && typing->Widget()->window() == _frame) {
        typing->DropText();
        return;
    }
    if (CATDlgDialog* const dialog = AsDialog())
        Perform([dialog] { return host::DialogUser::PressEscape(*dialog); });
    else
        Close();
}

bool WindowPeer::MoveFocus(bool iBehind) {
    QWidget* const field =
        Dialog() == nullptr ? nullptr : FocusOrder(Tree(), *this).Beside(_frame->focusWidget(), iBehind);
    if (field == nullptr)
        return false;
    field->setFocus(iBehind ? Qt::TabFocusReason : Qt::BacktabFocusReason);
    return true;
}

void WindowPeer::Close() {
    if (Dialog() != nullptr)
        Perform([this] { return host::DialogUser::Close(_window); });
}

// Windows are placed by the window system before they are on the screen; from then on it is the person.
void WindowPeer::NoteNewPlace(bool iByWindowSystem) {
    const QWindow* const handle = _frame->windowHandle();
    const bool isOnScreen = handle != nullptr && handle->isExposed();
    if (_isPlacing || !iByWindowSystem || !isOnScreen || Tree().IsApplying()) {
        KeepPlace();
        return;
    }
    _isDragged = true;
    _reportPlace.start(endOfDrag);
}

void WindowPeer::ShowState(unsigned int iKinds) {
    if ((iKinds & host::ChangeTitle) != 0)
        _frame->setWindowTitle(
            ToQt(_window.GetTitle()).replace(QLatin1String("[*]"), QLatin1String("[*][*]")));
    if ((iKinds & host::ChangeIcon) != 0)
        _frame->setWindowIcon(IconOf(Tree(), _window));
    if (const CATDlgDialog* const dialog = AsDialog())
        _buttons->ShowDefault(host::Inspector::DefaultButton(*dialog));
    if ((iKinds & host::ChangeGeometry) != 0 && !_frame->isHidden())
        Place();
}

void WindowPeer::PressStandardButton(CATULong iButton) {
    if (CATDlgDialog* const dialog = AsDialog())
        Perform([dialog, iButton] { return host::DialogUser::PressStandardButton(*dialog, iButton); });
}

// Where the program gave no size, it is that of the content; where it gave no rectangle at all, the window
// system chooses the place.
void WindowPeer::Place() {
    if (_isDragged)
        return;
    const QScopedValueRollback<bool> placing(_isPlacing, true);
    int x = 0;
    int y = 0;
    int height = 0;
    int width = 0;
    _window.GetRectDimensions(&x, &y, &height, &width);
    NoteHostPlace(QRect(x, y, width, height));
    const QSize natural = NaturalSize();
    _frame->resize(width > 0 ? width : natural.width(), height > 0 ? height : natural.height());
    const QPoint place(x, y);
    const bool isWhereDragged = _isDraggedThere && _frame->pos() == place;
    if (_isPlacedByHost && !isWhereDragged)
        MoveIntoSight(place);
    KeepPlace();
}

// As near to the place as the whole window can be seen.
void WindowPeer::MoveIntoSight(const QPoint& iPlace) {
    const QScopedValueRollback<bool> placing(_isPlacing, true);
    const QPoint place = IntoSight(QRect(iPlace, _frame->frameGeometry().size()));
    if (_frame->isHidden() || place != _frame->pos())
        _frame->move(place);
}

// A new size by hand gives no place to a window that never had one.
void WindowPeer::NoteHostPlace(const QRect& iRectangle) {
    if (iRectangle == _hostRectangle)
        return;
    _hostRectangle = iRectangle;
    _isPlacedByHost = _isPlacedByHost || !_isReporting || !iRectangle.topLeft().isNull();
    _isDraggedThere = _isReporting;
}

// That of the content, and room for the title and the signs beside it.
QSize WindowPeer::NaturalSize() const {
    const QFontMetrics metrics = _frame->fontMetrics();
    const int title = metrics.horizontalAdvance(_frame->windowTitle()) + 8 * metrics.height();
    return _frame->sizeHint().expandedTo(QSize(title, 0));
}

void WindowPeer::KeepPlace() {
    _place = _frame->pos();
    _size = _frame->size();
}

void WindowPeer::ReportPlace() {
    if (!_isDragged)
        return;
    _isDragged = false;
    const QScopedValueRollback<bool> reporting(_isReporting, true);
    const QPoint place = _frame->pos();
    const QSize size = _frame->size();
    const bool isMoved = place != _place;
    const bool isResized = size != _size;
    KeepPlace();
    if (isMoved && Dialog() != nullptr)
        Perform([this, place] { return host::DialogUser::Move(_window, place.x(), place.y()); });
    if (isResized && Dialog() != nullptr)
        Perform([this, size] { return host::DialogUser::Resize(_window, size.height(), size.width()); });
}

CATDlgDialog* WindowPeer::AsDialog() const {
    return dynamic_cast<CATDlgDialog*>(Dialog());
}

} // namespace desktop
