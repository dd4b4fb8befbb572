#ifndef desktop_OwnTexts_H
#define desktop_OwnTexts_H

#include <QtCore/QString>

namespace desktop {

// The texts that no dialog brings along.
enum class OwnText { Ok, Cancel, Apply, Close, Help, Copy };

// In the language of the host's messages; in English where there is none.
QString InCurrentLanguage(OwnText iText);

} // namespace desktop

#endif
