#include "Names.h"

#include "CATDialog.h"
#include "Texts.h"
#include "host/Inspector.h"

namespace desktop {

QString GivenText(const CATDialog& iWidget, const QString& iText) {
    const QString text = iText.trimmed();
    return text == ToQt(iWidget.GetName()).trimmed() ? QString() : text;
}

QString GivenTitle(const CATDialog& iWidget) {
    return GivenText(iWidget, ToQt(iWidget.GetTitle()));
}

QString TitleAround(const CATDialog& iWidget) {
    const CATDialog* box = host::Inspector::Parent(iWidget);
    for (; box != nullptr && !host::Inspector::IsWindow(*box); box = host::Inspector::Parent(*box)) {
        QString title = GivenTitle(*box);
        if (!title.isEmpty())
            return title;
    }
    return QString();
}

} // namespace desktop
