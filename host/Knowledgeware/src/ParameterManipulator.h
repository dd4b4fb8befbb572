#ifndef ParameterManipulator_H
#define ParameterManipulator_H

#include "CATICkeParmManipulator.h"
#include "CATMacForIUnknown.h"
#include "Facet.h"

namespace host {

class Parameter;

class ParameterManipulator : public Facet<CATICkeParmManipulator, Parameter> {
    CATDeclareClass;

  public:
    using Facet::Facet;
    void SetIncrement(double iIncrement) override;

    double Increment() const { return _increment; }

  private:
    double _increment = 1.0; // finite and positive
};

} // namespace host

#endif
