#ifndef ParameterEdition_H
#define ParameterEdition_H

#include "ParameterFrameBuilder.h"
#include "ParameterManipulator.h"

#include <vector>

namespace host {

class ParameterFrame;

// What a parameter has for its edition. Few parameters are ever edited, so it is made when it is asked for.
struct ParameterEdition {
    explicit ParameterEdition(Parameter& ioOwner) : frameBuilder(ioOwner), manipulator(ioOwner) {}

    ParameterFrameBuilder frameBuilder;
    ParameterManipulator manipulator;
    std::vector<ParameterFrame*> frames; // not owned; each takes itself off the list
};

} // namespace host

#endif
