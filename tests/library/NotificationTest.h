#pragma once

#include "CATString.h"
#include "CATUnicodeString.h"
#include "support/AuditedTest.h"
#include "support/Report.h"

#include <functional>
#include <string>

// Base of the tests of one notification class.
//
//     using OrvKvGroupChangedNotificationTest = NotificationTest<OrvKvGroupChangedNotification>;
template<class Notification>
class NotificationTest : public support::AuditedTest {
  protected:
    static std::string Source() {
        return std::string("OrvKv9Notifications.m/src/") + Notification::ClassName();
    }
    // What the getters tell when they succeed and when they fail.
    static support::Report Success() { return support::SuccessIn(Source()); }
    static support::Report Failure(const std::string& iMessage) {
        return support::FailureIn(Source(), iMessage);
    }
};

// Runs iCheck for every choice of null pointers among iCount, except the one without any. iIsNull(i) tells
// whether pointer i, from 0, is null.
inline void ForEachChoiceOfNulls(unsigned iCount,
                                 const std::function<void(const std::function<bool(unsigned)>&)>& iCheck) {
    for (unsigned choice = 1; choice < 1U << iCount; ++choice) {
        SCOPED_TRACE("null pointers as the bits of " + std::to_string(choice));
        iCheck([choice](unsigned iPointer) { return (choice >> iPointer & 1U) != 0; });
    }
}

// iPointer, or null.
template<class Value>
Value* Unless(bool iIsNull, Value& iPointer) {
    return iIsNull ? nullptr : &iPointer;
}
