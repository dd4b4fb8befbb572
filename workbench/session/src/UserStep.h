#pragma once

// The steps that every host can do.

#include "host/Outcome.h"
#include "session/Json.h"

namespace session {

/// Does one of the built-in steps through host::DialogUser. Refused with a reason when there is no such
/// widget, when it is of another kind or when a person could not do it.
host::Outcome DoAsUser(const Json& step);

} // namespace session
