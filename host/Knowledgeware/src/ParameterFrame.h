#ifndef ParameterFrame_H
#define ParameterFrame_H

#include "CATICkeParm.h"
#include "CATMacForIUnknown.h"
#include "host/ValueFrame.h"

namespace host {

class Parameter;

// The edition frame of a parameter. It offers neither another name nor a formula, whatever the options say.
class ParameterFrame : public ValueFrame {
    CATDeclareClass;

  public:
    // iOptions are CATCke... options.
    ParameterFrame(Parameter& ioParameter, CATDialog* iParent, const CATString& iName, int iOptions);
    ~ParameterFrame() override;
    ParameterFrame(const ParameterFrame&) = delete;
    ParameterFrame& operator=(const ParameterFrame&) = delete;

    const CATICkeParm_var& EditedParameter() const { return _kept; }

    // ValueFrame
    std::string ShownValue() const override;
    bool IsEditable() const override;
    bool HasSpinner() const override;
    std::string Label() const override;

    // Called by the parameter when its value, or who may change it, has changed.
    void Follow() { NoteValue(); }

  protected:
    Outcome Take(const std::string& iText) override;
    Outcome Step(int iSteps) override;

  private:
    Parameter& _parameter;
    const CATICkeParm_var _kept; // keeps the parameter alive
    const int _options;
};

} // namespace host

#endif
