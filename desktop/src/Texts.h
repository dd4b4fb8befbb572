#ifndef desktop_Texts_H
#define desktop_Texts_H

#include "CATUnicodeString.h"

#include <QtCore/QString>

#include <string>

namespace desktop {

// Texts between the host, which keeps UTF-8, and Qt.
QString ToQt(const CATUnicodeString& iText);
QString ToQt(const CATString& iText);
QString ToQt(const std::string& iText);
std::string ToHost(const QString& iText);

// A text for one line: line breaks show as a return sign, other control characters as blanks. One of more
// than iLongest characters is cut, with an ellipsis.
QString OnOneLine(const QString& iText, qsizetype iLongest);
// The first iCount characters, with an ellipsis where any follow.
QString Shortened(const QString& iText, qsizetype iCount);

// A text for a tooltip or a What's This window that shows every character as it is, '<' included.
QString AsPlainHelp(const QString& iText);

// The same for a long text, which wraps where the window would be too wide.
QString AsWrappedHelp(const QString& iText);

// A caption in which every '&' is shown as it is.
QString WithoutMnemonic(const QString& iText);
// The same with the character at iPosition as its mnemonic; -1 for none.
QString WithMnemonic(const QString& iText, int iPosition);

} // namespace desktop

#endif
