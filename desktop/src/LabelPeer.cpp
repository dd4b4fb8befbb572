#include "LabelPeer.h"

#include "CATDlgLabel.h"
#include "Icons.h"
#include "PeerTree.h"
#include "Texts.h"

#include <QtWidgets/QLabel>
#include <QtWidgets/QStyle>

namespace desktop {

LabelPeer::LabelPeer(PeerTree& ioTree, CATDlgLabel& ioLabel, QWidget* iParent)
    : Peer(ioTree, ioLabel, new QLabel(iParent)), _label(ioLabel) {
    Label().setTextFormat(Qt::PlainText);
}

void LabelPeer::SetField(QWidget* iField) {
    Label().setBuddy(iField);
}

bool LabelPeer::HasField() const {
    return Label().buddy() != nullptr;
}

QString LabelPeer::Caption() const {
    return _hasIcon ? QString() : ToQt(_label.GetTitle());
}

// Without a field a label knows no mnemonics and draws every '&' as it is.
void LabelPeer::ShowCaption(int iMnemonic) {
    if (_hasIcon)
        return;
    const QString text = HasField() ? WithMnemonic(Caption(), iMnemonic) : Caption();
    if (Label().text() != text)
        Label().setText(text);
}

bool LabelPeer::IsOneLine() const {
    return !_hasIcon && !Caption().contains(QLatin1Char('\n'));
}

void LabelPeer::ShowState(unsigned int iKinds) {
    if ((iKinds & host::ChangeIcon) != 0)
        ShowIcon();
}

// A picture alone says nothing to who cannot see it: its title, or else its icon's name, is its accessible
// text.
void LabelPeer::ShowIcon() {
    const QIcon icon = IconOf(Tree(), _label);
    _hasIcon = !icon.isNull();
    if (!_hasIcon) {
        Label().setPixmap(QPixmap());
        return;
    }
    const int side = Label().style()->pixelMetric(QStyle::PM_SmallIconSize);
    const QList<QSize> sizes = icon.availableSizes();
    Label().setPixmap(
        icon.pixmap(sizes.isEmpty() ? QSize(side, side) : sizes.first(), Label().devicePixelRatioF()));
}

QLabel& LabelPeer::Label() const {
    return static_cast<QLabel&>(*Widget());
}

} // namespace desktop
