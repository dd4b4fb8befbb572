#ifndef desktop_Mnemonics_H
#define desktop_Mnemonics_H

#include <QtCore/QSet>
#include <QtCore/QString>

namespace desktop {

// Gives each caption of a window a letter of its own, for Alt and that letter.
class Mnemonics {
  public:
    // Position in iCaption of the letter it gets: the first letter of a word if one is free, else any letter
    // or digit; -1 when none is free.
    int Take(const QString& iCaption);

  private:
    bool TakeLetter(QChar iLetter);

    QSet<QChar> _taken;
};

} // namespace desktop

#endif
