#include "LabelPeer.h"

#include "CATDlgLabel.h"
#include "Icons.h"
#include "Names.h"
#include "PeerTree.h"
#include "Texts.h"
#include "host/Inspector.h"

#include <QtWidgets/QLabel>

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
    if ((iKinds & (host::ChangeIcon | host::ChangeTitle | host::ChangeHelp)) != 0)
        ShowIconHelp();
}

void LabelPeer::ShowIcon() {
    const QIcon icon = IconOf(Tree(), _label);
    _hasIcon = !icon.isNull();
    if (!_hasIcon) {
        Label().setPixmap(QPixmap());
        return;
    }
    Label().setPixmap(icon.pixmap(NaturalSizeOfIcon(_label), Label().devicePixelRatioF()));
}

// A picture alone says nothing to those who cannot see it, and little to those who cannot tell its colours:
// the title, or else the icon's name, is its balloon, and the icon's name tells which of several is shown.
void LabelPeer::ShowIconHelp() {
    const QString icon = _hasIcon ? ToQt(host::Inspector::Icons(_label).normal) : QString();
    const QString title = GivenTitle(_label);
    QString help = ToQt(_label.GetShortHelp());
    if (help.isEmpty() && _hasIcon)
        help = title.isEmpty() ? icon : title;
    Label().setToolTip(AsPlainHelp(help));
    Label().setAccessibleDescription(icon);
}

QLabel& LabelPeer::Label() const {
    return static_cast<QLabel&>(*Widget());
}

} // namespace desktop
