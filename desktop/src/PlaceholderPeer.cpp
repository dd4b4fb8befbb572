#include "PlaceholderPeer.h"

#include "CATDialog.h"
#include "PeerTree.h"
#include "Texts.h"

#include <QtWidgets/QLabel>

namespace desktop {

namespace {

QLabel* NewLabel(const QString& iClass, const CATDialog& iDialog, QWidget* iParent) {
    auto* const label = new QLabel(iParent);
    label->setTextFormat(Qt::PlainText);
    label->setText(
        QStringLiteral("\u26A0 %1 \u201C%2\u201D is not shown").arg(iClass, ToQt(iDialog.GetName())));
    label->setFrameStyle(QFrame::Box | QFrame::Plain);
    label->setMargin(label->fontMetrics().height() / 2);
    return label;
}

} // namespace

PlaceholderPeer::PlaceholderPeer(PeerTree& ioTree, CATDialog& ioDialog, QWidget* iParent)
    : Peer(ioTree, ioDialog, NewLabel(QString::fromUtf8(ioDialog.IsA()), ioDialog, iParent)) {
    ioTree.WarnOnce(
        QStringLiteral("The desktop has no window part for %1; a placeholder stands in its place.")
            .arg(QString::fromUtf8(ioDialog.IsA())));
}

void PlaceholderPeer::ShowState(unsigned int) {}

} // namespace desktop
