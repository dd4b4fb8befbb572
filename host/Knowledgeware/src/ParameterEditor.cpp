#include "host/ParameterEditor.h"

#include "ParameterFrame.h"

namespace host {

CATICkeParm_var ParameterEditor::ParameterOf(const CATDialog& iWidget) {
    const auto* const frame = dynamic_cast<const ParameterFrame*>(&iWidget);
    return frame == nullptr ? CATICkeParm_var() : frame->EditedParameter();
}

} // namespace host
