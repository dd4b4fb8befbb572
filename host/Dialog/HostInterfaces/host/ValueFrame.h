#ifndef host_ValueFrame_H
#define host_ValueFrame_H

#include "CATDlgFrame.h"
#include "host/Outcome.h"

#include <string>

namespace host {

// A frame with a field in which a person edits one value: number, unit and, where the style asks for it,
// arrows. Other frameworks derive their editors from it; DialogUser types and spins, viewers show it.
//
// A text that is no value stays in the field with the reason beside it, and the value that was there stays in
// force, until the next text, the next stored value or Restore. The frame has no widgets of its own in it.
class ValueFrame : public CATDlgFrame {
    CATDeclareClass;

  public:
    ValueFrame(CATDialog* iParent, const CATString& iName, CATDlgStyle iStyle = 0);

    // What the field shows: the refused text while there is one, else the value.
    std::string Text() const;
    // Whether the field shows a text that is not taken.
    bool IsRefused() const { return !_problem.empty(); }
    // Why the text in the field is not taken; empty when it is.
    const std::string& Problem() const { return _problem; }

    // The value with its unit, as a person reads it: "12.5mm".
    virtual std::string ShownValue() const = 0;
    // Whether a person may change the value.
    virtual bool IsEditable() const = 0;
    virtual bool HasSpinner() const = 0;
    // The text before the field; empty for none.
    virtual std::string Label() const = 0;

  protected:
    // Gives the value what a person has typed. Refused with the reason, which is not empty, when it is no
    // such value. The frame may be gone afterwards, here and behind Step.
    virtual Outcome Take(const std::string& iText) = 0;
    // Steps the value, down for a negative number. Refused where it has no steps.
    virtual Outcome Step(int iSteps) = 0;
    // For derived classes: the value, or whether it may be edited, has changed. A refused text is forgotten.
    void NoteValue();

  private:
    friend class DialogUser;

    // Takes the text, or keeps it with the reason. The value that is shown already is not taken again.
    void Enter(const std::string& iText);
    void Keep(const std::string& iText, const std::string& iProblem);
    // Forgets a refused text.
    void Restore();

    std::string _refused; // with _problem, empty while the field shows the value
    std::string _problem;
};

} // namespace host

#endif
