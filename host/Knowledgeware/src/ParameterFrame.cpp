#include "ParameterFrame.h"

#include "CATICkeParamFrame.h"
#include "Parameter.h"
#include "host/ParameterEntry.h"

namespace host {

CATImplementClass(ParameterFrame, Implementation, ValueFrame, CATNull);

ParameterFrame::ParameterFrame(Parameter& ioParameter, CATDialog* iParent, const CATString& iName,
                               int iOptions)
    : ValueFrame(iParent, iName, CATDlgFraNoFrame | CATDlgFraNoTitle), _parameter(ioParameter),
      _kept(&ioParameter), _options(iOptions) {
    _parameter.AddFrame(*this);
}

ParameterFrame::~ParameterFrame() {
    _parameter.RemoveFrame(*this);
}

std::string ParameterFrame::ShownValue() const {
    return _parameter.Show().ConvertToChar();
}

bool ParameterFrame::IsEditable() const {
    return _parameter.GetUserAccessMode() == 3;
}

bool ParameterFrame::HasSpinner() const {
    return (_options & CATCkeWithSpinner) != 0 && _parameter.HasSteps();
}

std::string ParameterFrame::Label() const {
    return (_options & CATCkeNoLabel) != 0 ? std::string() : _parameter.Name().ConvertToChar();
}

Outcome ParameterFrame::Take(const std::string& iText) {
    return ParameterEntry::Type(_parameter, iText);
}

Outcome ParameterFrame::Step(int iSteps) {
    return ParameterEntry::Step(_parameter, iSteps, _parameter.Increment());
}

} // namespace host
