#pragma once

#include "CATDlgDialog.h"
#include "CATDlgDocument.h"
#include "Reaction.h"
#include "desktop/Desktop.h"
#include "support/ApplicationTest.h"

#include <QtCore/QPoint>
#include <QtCore/QRect>
#include <QtCore/QString>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

#include <functional>
#include <stdexcept>
#include <string>

class QPushButton;

namespace desktop_test {

using support::Classes;

// An application with real windows, and a dialog that a test fills, opens and uses with mouse and keyboard.
//
//     auto* const button = new CATDlgPushButton(&Dialog(), "NewPbt");
//     Open();
//     QTest::mouseClick(&Shown(*button), Qt::LeftButton);
class DesktopTest : public support::ApplicationTest {
  protected:
    explicit DesktopTest(CATDlgStyle iDialogStyle = CATDlgWndOK | CATDlgWndCANCEL);
    ~DesktopTest() override;

    CATDlgDialog& Dialog() { return *_dialog; }
    desktop::Desktop& Windows() { return _desktop; }

    // Shows the dialog, brings its window to the front and forgets what was heard.
    void Open();
    // Lets everything that waits for the event loop happen.
    static void Settle();

    // The Qt widget of a host widget; the test fails when there is none, or one of another kind.
    QWidget& Shown(const CATDialog& iWidget) const;
    template<class QtWidget>
    QtWidget& ShownAs(const CATDialog& iWidget) const {
        auto* const widget = dynamic_cast<QtWidget*>(&Shown(iWidget));
        if (widget == nullptr)
            throw std::runtime_error(std::string(iWidget.IsA()) + " is shown by another kind of widget");
        return *widget;
    }
    QWidget& Window() const { return Shown(*_dialog); }
    // The standard button of the dialog with that text; the test fails when there is none.
    QPushButton& StandardButton(const std::string& iText) const;

    // Does something in the next turn of an event loop, that of a message included.
    void DoSoon(std::function<void()> iAction);

    // Where a widget lies in its window.
    QRect PlaceOf(const CATDialog& iWidget) const;
    // The reason of a refusal that is on the screen; empty for none.
    static std::string ShownReason();

  private:
    CATDlgDialog* _dialog; // belongs to the main window
    desktop::Desktop _desktop;
    QTimer _soon;
    std::function<void()> _soonAction;
};

// What a widget of the host holds and Qt shows, as plain text.
std::string Utf8(const QString& iText);

} // namespace desktop_test
