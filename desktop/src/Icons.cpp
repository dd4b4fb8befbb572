#include "Icons.h"

#include "PeerTree.h"
#include "Texts.h"
#include "host/Inspector.h"

#include <QtGui/QImageReader>

namespace desktop {

namespace {

void AddState(PeerTree& ioTree, QIcon& ioIcon, const std::string& iName, QIcon::Mode iMode) {
    if (iName.empty())
        return;
    const std::string file = host::Inspector::IconFile(iName);
    if (file.empty()) {
        ioTree.WarnOnce(QStringLiteral("The icon \"%1\" was not found; the title is shown in its place.")
                            .arg(ToQt(iName)));
        return;
    }
    ioIcon.addFile(ToQt(file), QSize(), iMode);
}

} // namespace

QIcon IconOf(PeerTree& ioTree, const CATDialog& iWidget) {
    const host::IconNames names = host::Inspector::Icons(iWidget);
    QIcon icon;
    AddState(ioTree, icon, names.normal, QIcon::Normal);
    AddState(ioTree, icon, names.selected, QIcon::Selected);
    AddState(ioTree, icon, names.focus, QIcon::Active);
    AddState(ioTree, icon, names.disabled, QIcon::Disabled);
    return icon;
}

QSize NaturalSizeOfIcon(const CATDialog& iWidget) {
    const std::string name = host::Inspector::Icons(iWidget).normal;
    return QImageReader(ToQt(host::Inspector::IconFile(name))).size();
}

} // namespace desktop
