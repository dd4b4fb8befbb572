#pragma once

// The standard buttons of dialogs and messages by the names that sessions give them.

#include "CATDataType.h"

#include <string>
#include <string_view>

namespace session {

/// The style bit of OK, Cancel, Apply, Close or Help, in any case of letters; 0 for another name.
CATULong ButtonNamed(std::string_view name);

/// The name of a style bit, or its number.
std::string NameOfButton(CATULong button);

} // namespace session
