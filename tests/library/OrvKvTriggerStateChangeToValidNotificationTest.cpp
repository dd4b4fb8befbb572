// The notification of the change to the valid state: the class is the message.

#include "OrvKvTriggerStateChangeToValidNotification.h"

#include "NotificationTest.h"
#include "host/LiveObjects.h"

#include <type_traits>

namespace {

using OrvKvTriggerStateChangeToValidNotificationTest =
    NotificationTest<OrvKvTriggerStateChangeToValidNotification>;

TEST_F(OrvKvTriggerStateChangeToValidNotificationTest, IsMadeWithoutValues) {
    const OrvKvTriggerStateChangeToValidNotification notification;
    EXPECT_STREQ(notification.IsA(), "OrvKvTriggerStateChangeToValidNotification");
}

TEST_F(OrvKvTriggerStateChangeToValidNotificationTest, CannotBeCopied) {
    EXPECT_FALSE((std::is_constructible<OrvKvTriggerStateChangeToValidNotification,
                                        OrvKvTriggerStateChangeToValidNotification&>::value));
    EXPECT_FALSE((std::is_constructible<OrvKvTriggerStateChangeToValidNotification,
                                        const OrvKvTriggerStateChangeToValidNotification&>::value));
    EXPECT_FALSE((std::is_assignable<OrvKvTriggerStateChangeToValidNotification&,
                                     OrvKvTriggerStateChangeToValidNotification&>::value));
    EXPECT_FALSE((std::is_assignable<OrvKvTriggerStateChangeToValidNotification&,
                                     const OrvKvTriggerStateChangeToValidNotification&>::value));
}

} // namespace
