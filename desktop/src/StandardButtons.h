#ifndef desktop_StandardButtons_H
#define desktop_StandardButtons_H

#include "CATDlgDefine.h"

#include <QtCore/QString>
#include <QtWidgets/QWidget>

#include <functional>
#include <utility>
#include <vector>

class QPushButton;

namespace desktop {

class Mnemonics;

// The row of standard buttons at the foot of a dialog, in the order in which the host lists them.
class StandardButtons : public QWidget {
  public:
    // iOnPressed gets the style bit of the button.
    StandardButtons(QWidget* iParent, const std::vector<CATULong>& iButtons,
                    const std::function<void(CATULong)>& iOnPressed);

    // The text of a standard button in the language of the host.
    static QString TextOf(CATULong iButton);

    // Marks the button that Enter presses; 0 for none.
    void ShowDefault(CATULong iButton);
    // OK and Cancel have keys of their own, Enter and Escape, and take no mnemonic.
    void ShowCaptions(Mnemonics& ioMnemonics);
    std::vector<QPushButton*> All() const;

  private:
    std::vector<std::pair<CATULong, QPushButton*>> _buttons;
};

} // namespace desktop

#endif
