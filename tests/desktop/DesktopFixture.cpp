#include "DesktopFixture.h"

#include <QtCore/QCoreApplication>
#include <QtCore/QEvent>
#include <QtTest/QTest>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolTip>

namespace desktop_test {

DesktopTest::DesktopTest(CATDlgStyle iDialogStyle)
    : _dialog(new CATDlgDialog(MainWindow(), "TestDlg", iDialogStyle)) {
    _dialog->SetTitle("Test dialog");
    _soon.setSingleShot(true);
    QObject::connect(&_soon, &QTimer::timeout, &_soon, [this] { _soonAction(); });
}

DesktopTest::~DesktopTest() {
    QToolTip::hideText();
    Settle();
}

void DesktopTest::Open() {
    _dialog->SetVisibility(CATDlgShow);
    Settle();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&Window()));
    Command().Forget();
}

void DesktopTest::Settle() {
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QWidget& DesktopTest::Shown(const CATDialog& iWidget) const {
    QWidget* const widget = _desktop.WidgetOf(iWidget);
    if (widget == nullptr)
        throw std::runtime_error(std::string(iWidget.GetName().ConvertToChar()) + " is not shown");
    return *widget;
}

QPushButton& DesktopTest::StandardButton(const std::string& iText) const {
    for (QPushButton* button : Window().findChildren<QPushButton*>())
        if (Utf8(button->text()).find(iText) != std::string::npos || Utf8(button->accessibleName()) == iText)
            return *button;
    throw std::runtime_error("there is no button " + iText);
}

void DesktopTest::DoSoon(std::function<void()> iAction) {
    _soonAction = std::move(iAction);
    _soon.start(0);
}

QRect DesktopTest::PlaceOf(const CATDialog& iWidget) const {
    const QWidget& widget = Shown(iWidget);
    return QRect(widget.mapTo(&Window(), QPoint(0, 0)), widget.size());
}

std::string DesktopTest::ShownReason() {
    return QToolTip::isVisible() ? Utf8(QToolTip::text()) : std::string();
}

std::string Utf8(const QString& iText) {
    return iText.toStdString();
}

} // namespace desktop_test
