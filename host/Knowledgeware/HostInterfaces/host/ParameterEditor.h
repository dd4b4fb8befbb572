#ifndef host_ParameterEditor_H
#define host_ParameterEditor_H

#include "CATICkeParm.h"

class CATDialog;

namespace host {

// The editors that CATICkeParamFrame builds.
class ParameterEditor {
  public:
    // The parameter that a widget edits; a null handle for any other widget.
    static CATICkeParm_var ParameterOf(const CATDialog& iWidget);
};

} // namespace host

#endif
