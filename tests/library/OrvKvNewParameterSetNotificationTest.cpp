// The notification of the wish for a new parameter set: the class is the message.

#include "OrvKvNewParameterSetNotification.h"

#include "NotificationTest.h"
#include "host/LiveObjects.h"

#include <type_traits>

namespace {

using OrvKvNewParameterSetNotificationTest = NotificationTest<OrvKvNewParameterSetNotification>;

TEST_F(OrvKvNewParameterSetNotificationTest, IsMadeWithoutValues) {
    const OrvKvNewParameterSetNotification notification;
    EXPECT_STREQ(notification.IsA(), "OrvKvNewParameterSetNotification");
}

TEST_F(OrvKvNewParameterSetNotificationTest, CannotBeCopied) {
    EXPECT_FALSE(
        (std::is_constructible<OrvKvNewParameterSetNotification, OrvKvNewParameterSetNotification&>::value));
    EXPECT_FALSE((std::is_constructible<OrvKvNewParameterSetNotification,
                                        const OrvKvNewParameterSetNotification&>::value));
    EXPECT_FALSE(
        (std::is_assignable<OrvKvNewParameterSetNotification&, OrvKvNewParameterSetNotification&>::value));
    EXPECT_FALSE((std::is_assignable<OrvKvNewParameterSetNotification&,
                                     const OrvKvNewParameterSetNotification&>::value));
}

} // namespace
