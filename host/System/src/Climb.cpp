#include "Climb.h"

#include "ActiveCommand.h"
#include "AnalyseTable.h"

namespace host {

Climb* Climb::_innermost = nullptr;

namespace {
int undelivered = 0;
}

void Climb::Run(CATCommand& iTarget, CATNotification& ioNotification) {
    _next = &iTarget;
    _hasMetActive = _sender == ActiveCommand::Get();
    if (AnalyseTable::Run(*_sender, _sender, ioNotification))
        return;
    while (_next != nullptr) {
        _here = _next;
        _next = _here->_father;
        _hasMetActive = _hasMetActive || _here == ActiveCommand::Get();
        if (Visit(*_here, ioNotification))
            return;
        _from = _here;
        if (_next == nullptr && !_isSelectorAsked)
            AskSelector();
    }
    ++undelivered;
}

// At the top the active command has its turn, unless it has had it on the way.
void Climb::AskSelector() {
    _isSelectorAsked = true;
    CATCommand* const active = ActiveCommand::Get();
    if (active != nullptr && !_hasMetActive)
        _next = active;
}

// True when ioCommand ends the climb.
bool Climb::Visit(CATCommand& ioCommand, CATNotification& ioNotification) {
    if (&ioCommand != _sender && AnalyseTable::Run(ioCommand, _sender, ioNotification))
        return true;
    if (_here == nullptr)
        return false;
    return ioCommand.AnalyseNotification(_from, &ioNotification) == CATNotifDontTransmitToFather;
}

void Climb::Forget(const CATCommand& iCommand) {
    for (Climb* climb = _innermost; climb != nullptr; climb = climb->_outer) {
        if (climb->_sender == &iCommand)
            climb->_sender = nullptr;
        if (climb->_from == &iCommand)
            climb->_from = nullptr;
        if (climb->_here == &iCommand)
            climb->_here = nullptr;
        if (climb->_next == &iCommand)
            climb->_next = iCommand._father;
    }
}

int Climb::Undelivered() {
    return undelivered;
}

void Climb::ResetUndelivered() {
    undelivered = 0;
}

} // namespace host
