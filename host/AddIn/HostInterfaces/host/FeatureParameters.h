#ifndef host_FeatureParameters_H
#define host_FeatureParameters_H

#include "OrvIKvFeatureParameters.h"

namespace host {

// A feature without any temporary modification.
OrvIKvFeatureParameters_var NewFeatureParameters();

} // namespace host

#endif
