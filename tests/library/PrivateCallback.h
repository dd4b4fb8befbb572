#pragma once

#include "CATCommand.h"

// A private callback of a panel in the hands of a test: for senders that no user can bring about, since the
// panel listens to its own widgets alone. An explicit instantiation may name what is private.
//
//     static PrivateCallback<OrvKvTypeSub> onSelect = nullptr;
//     template struct OpenCallback<onSelect, &OrvKvTypeSub::OnTypeComboSelNotification>;
//     (panel.*onSelect)(nullptr, nullptr, nullptr);
//
// Both lines stand outside of any namespace.
template<class Panel>
using PrivateCallback = void (Panel::*)(CATCommand*, CATNotification*, void*);

template<auto& Opened, auto Callback>
struct OpenCallback {
    static inline const bool isOpen = (Opened = Callback) != nullptr;
};
