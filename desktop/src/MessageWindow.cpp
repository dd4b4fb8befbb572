#include "MessageWindow.h"

#include "CATDlgDialog.h"
#include "CATDlgNotify.h"
#include "StandardButtons.h"
#include "Texts.h"

#include <QtCore/QPointer>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace desktop {

namespace {

QMessageBox::Icon IconFor(CATDlgStyle iStyle) {
    if ((iStyle & CATDlgNfyError) != 0)
        return QMessageBox::Critical;
    return (iStyle & CATDlgNfyWarning) != 0 ? QMessageBox::Warning : QMessageBox::Information;
}

} // namespace

// The box goes with its parent, should the program destroy that while the box waits.
int AskInWindow(const host::Message& iMessage, QWidget* iParent) {
    const QPointer<QMessageBox> box(new QMessageBox(iParent));
    box->setObjectName(ToQt(iMessage.name));
    box->setWindowModality(Qt::ApplicationModal);
    box->setIcon(IconFor(iMessage.style));
    box->setWindowTitle(ToQt(iMessage.title));
    box->setTextFormat(Qt::PlainText);
    box->setText(ToQt(iMessage.text));
    box->setTextInteractionFlags(Qt::TextSelectableByMouse);
    box->addButton(QMessageBox::Ok)->setText(StandardButtons::TextOf(CATDlgWndOK));
    box->exec();
    delete box;
    return static_cast<int>(CATDlgWndOK);
}

} // namespace desktop
