#ifndef desktop_ValueFramePeer_H
#define desktop_ValueFramePeer_H

#include "TypingPeer.h"

class QLabel;

namespace host {
class ValueFrame;
}

namespace desktop {

class NumberField;
class ProblemLine;

// A value that a person edits: its label if it has one, the number field, and below it why the text in it is
// not taken.
//
// A value that the program changes is shown at once, except while the person is typing: then the typed text
// stays until it is passed on or dropped, and only after that the field shows what the host holds.
class ValueFramePeer : public TypingPeer {
  public:
    ValueFramePeer(PeerTree& ioTree, host::ValueFrame& ioFrame, QWidget* iParent);

    QWidget* Field() const override;
    QString Caption() const override;
    void ShowCaption(int iMnemonic) override;
    bool TakeNeedsRoom() override;
    bool HoldsRefusedText() const override;

  protected:
    void ShowState(unsigned int iKinds) override;
    QString FieldText() const override;
    void ShowHostText() override;
    host::Outcome Enter(const std::string& iText) override;

  private:
    bool Restore();
    void Step(int iSteps);

    host::ValueFrame& _frame;
    QLabel* _label;
    NumberField* _field;
    ProblemLine* _problem;
    bool _needsRoom = false; // more or less than the window gave it
};

} // namespace desktop

#endif
