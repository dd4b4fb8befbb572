#include "Mnemonics.h"

namespace desktop {

namespace {

// Only scripts whose letters are typed with one key.
bool IsTypeable(QChar iLetter) {
    return iLetter.isLetterOrNumber() && iLetter.unicode() < 0x2000;
}

bool BeginsWord(const QString& iText, int iPosition) {
    return iPosition == 0 || !iText.at(iPosition - 1).isLetterOrNumber();
}

} // namespace

int Mnemonics::Take(const QString& iCaption) {
    const int length = static_cast<int>(iCaption.size());
    for (int i = 0; i < length; ++i)
        if (BeginsWord(iCaption, i) && TakeLetter(iCaption.at(i)))
            return i;
    for (int i = 0; i < length; ++i)
        if (TakeLetter(iCaption.at(i)))
            return i;
    return -1;
}

bool Mnemonics::TakeLetter(QChar iLetter) {
    const QChar letter = iLetter.toUpper();
    if (!IsTypeable(letter) || _taken.contains(letter))
        return false;
    _taken.insert(letter);
    return true;
}

} // namespace desktop
