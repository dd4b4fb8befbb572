#ifndef desktop_Names_H
#define desktop_Names_H

#include <QtCore/QString>

class CATDialog;

namespace desktop {

// iText, if somebody gave it to the widget; empty for the identifier that it shows without.
QString GivenText(const CATDialog& iWidget, const QString& iText);
// The title that somebody gave a widget; empty for none.
QString GivenTitle(const CATDialog& iWidget);
// The title of the nearest box around a widget that has one, within its window; empty for none.
QString TitleAround(const CATDialog& iWidget);

} // namespace desktop

#endif
