#ifndef desktop_SpinnerPeer_H
#define desktop_SpinnerPeer_H

#include "TypingPeer.h"

class CATDlgSpinner;

namespace desktop {

class NumberField;

// A number within a range, with arrows; typed in only where its style says so. A typed number that is refused
// gives way to the one before, and so does one that is still being typed when the program sets another.
class SpinnerPeer : public TypingPeer {
  public:
    SpinnerPeer(PeerTree& ioTree, CATDlgSpinner& ioSpinner, QWidget* iParent);

    QWidget* Field() const override { return Widget(); }
    bool IsOneLine() const override { return true; }

  protected:
    void ShowState(unsigned int iKinds) override;
    QString FieldText() const override;
    void ShowHostText() override;
    host::Outcome Enter(const std::string& iText) override;

  private:
    void ShowRange();
    bool Restore();
    void Step(int iSteps);

    CATDlgSpinner& _spinner;
    NumberField* _field;
};

} // namespace desktop

#endif
