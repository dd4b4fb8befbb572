#include "PowerInput.h"

namespace host {

namespace {
const CATDlgDialog* owner = nullptr;
}

const CATDlgDialog* PowerInput::Owner() {
    return owner;
}

void PowerInput::Take(const CATDlgDialog& iDialog) {
    owner = &iDialog;
}

void PowerInput::Release(const CATDlgDialog& iDialog) {
    if (owner == &iDialog)
        owner = nullptr;
}

} // namespace host
