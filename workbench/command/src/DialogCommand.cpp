#include "workbench/DialogCommand.h"

#include <functional>

namespace workbench {

DialogCommand::~DialogCommand() = default;

// An answer may end the listening, and itself with it.
void DialogCommand::OnHeard(CATCommand*, CATNotification*, CATCommandClientData answer) {
    const std::function<void()> lasting = *static_cast<const std::function<void()>*>(answer);
    lasting();
}

} // namespace workbench
