#include "CATCommand.h"

#include "ActiveCommand.h"
#include "AnalyseTable.h"
#include "Climb.h"
#include "InternedNames.h"
#include "host/DelayedDestruction.h"

#include <memory>

CATImplementClass(CATCommand, Implementation, CATEventSubscriber, CATNull);

namespace {

host::AnalyseTable::Entry MakeEntry(CATCommand* iPublisher, CATNotification* iNotification,
                                    const char* iClass, CATCommandMethod iMethod,
                                    CATCommandClientData iData) {
    host::AnalyseTable::Entry entry;
    entry.publisher = iPublisher;
    entry.notification = iNotification;
    entry.notificationClass = iClass == nullptr ? nullptr : host::Intern(iClass);
    entry.method = iMethod;
    entry.data = iData;
    return entry;
}

// The reference that a sent notification hands over; released when its climb ends, by an error as well.
struct NotificationReleaser {
    void operator()(CATNotification* iNotification) const { iNotification->Release(); }
};
typedef std::unique_ptr<CATNotification, NotificationReleaser> SentNotification;

} // namespace

CATCommand::CATCommand(CATCommand* iFather, const CATString& iName) : _name(iName), _father(iFather) {}

CATCommand::CATCommand(const CATCommand& iOther)
    : CATEventSubscriber(iOther), _name(iOther._name), _father(iOther._father) {}

CATCommand& CATCommand::operator=(const CATCommand&) {
    return *this;
}

CATCommand::~CATCommand() {
    if (host::Climb::Innermost() != nullptr)
        host::Climb::Forget(*this);
    if (_analyseTable != nullptr)
        host::AnalyseTable::End(*this);
    if (host::ActiveCommand::Get() == this)
        host::ActiveCommand::Set(nullptr);
    host::DelayedDestruction::Forget(*this);
}

void CATCommand::SendNotification(CATCommand* iToCommand, CATNotification* iNotification) {
    if (iNotification == nullptr)
        return;
    const SentNotification sent(iNotification);
    if (iToCommand == nullptr || _isDoomed)
        return;
    host::Climb climb(*this);
    climb.Run(*iToCommand, *iNotification);
}

CATNotifPropagationMode CATCommand::AnalyseNotification(CATCommand*, CATNotification*) {
    return CATNotifTransmitToFather;
}

void CATCommand::AddAnalyseNotificationCB(CATCommand* iPublisher, CATNotification* iNotification,
                                          CATCommandMethod iMethod, CATCommandClientData iData) {
    if (iMethod != nullptr)
        host::AnalyseTable::Add(*this, MakeEntry(iPublisher, iNotification, nullptr, iMethod, iData));
}

void CATCommand::AddAnalyseNotificationCB(CATCommand* iPublisher, const char* iNotificationClass,
                                          CATCommandMethod iMethod, CATCommandClientData iData) {
    if (iMethod != nullptr)
        host::AnalyseTable::Add(*this, MakeEntry(iPublisher, nullptr, iNotificationClass, iMethod, iData));
}

void CATCommand::RemoveAnalyseNotificationCB(CATCommand* iPublisher, CATNotification* iNotification,
                                             CATCommandClientData iData) {
    if (iPublisher != nullptr)
        host::AnalyseTable::Remove(*this, MakeEntry(iPublisher, iNotification, nullptr, nullptr, iData));
}

void CATCommand::RemoveAnalyseNotificationCB(CATCommand* iPublisher, const char* iNotificationClass,
                                             CATCommandClientData iData) {
    if (iPublisher != nullptr)
        host::AnalyseTable::Remove(*this, MakeEntry(iPublisher, nullptr, iNotificationClass, nullptr, iData));
}

void CATCommand::RequestDelayedDestruction() {
    host::DelayedDestruction::Queue(*this);
}
