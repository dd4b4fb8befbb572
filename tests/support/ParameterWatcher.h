#pragma once

#include "CATCallbackManager.h"
#include "CATICkeParm.h"
#include "CATMacForIUnknown.h"

#include <functional>
#include <string>
#include <vector>

namespace support {

// Hears what parameters tell their subscribers. It holds no reference to any of them.
//
//     ParameterWatcher watcher(diameter);
//     diameter->Valuate(0.012);
//     EXPECT_EQ(watcher.Take(), Events({"value of D"}));
class ParameterWatcher : public CATEventSubscriber {
    CATDeclareClass;

  public:
    ParameterWatcher() = default;
    explicit ParameterWatcher(const CATBaseUnknown_var& iParameter) { Watch(iParameter); }

    void Watch(const CATBaseUnknown_var& iParameter);
    void Unwatch(const CATBaseUnknown_var& iParameter);

    // "value of NAME" and "tolerance of NAME" in the order in which they came since the last call.
    std::vector<std::string> Take();

    // Runs after each event is noted.
    std::function<void()> onEvent;

  private:
    void OnValue(CATCallbackEvent iEvent, void* iPublisher, CATNotification* iNotification,
                 CATSubscriberData iData, CATCallback iId);
    void OnTolerance(CATCallbackEvent iEvent, void* iPublisher, CATNotification* iNotification,
                     CATSubscriberData iData, CATCallback iId);
    void Note(const char* iWhat, void* iPublisher);

    std::vector<std::string> _events;
};

using Events = std::vector<std::string>;

} // namespace support
