// The notification of the wish to delete a parameter set: the class is the message.

#include "OrvKvDeleteParameterSetNotification.h"

#include "NotificationTest.h"
#include "host/LiveObjects.h"

#include <type_traits>

namespace {

using OrvKvDeleteParameterSetNotificationTest = NotificationTest<OrvKvDeleteParameterSetNotification>;

TEST_F(OrvKvDeleteParameterSetNotificationTest, IsMadeWithoutValues) {
    const OrvKvDeleteParameterSetNotification notification;
    EXPECT_STREQ(notification.IsA(), "OrvKvDeleteParameterSetNotification");
}

TEST_F(OrvKvDeleteParameterSetNotificationTest, CannotBeCopied) {
    EXPECT_FALSE((std::is_constructible<OrvKvDeleteParameterSetNotification,
                                        OrvKvDeleteParameterSetNotification&>::value));
    EXPECT_FALSE((std::is_constructible<OrvKvDeleteParameterSetNotification,
                                        const OrvKvDeleteParameterSetNotification&>::value));
    EXPECT_FALSE((std::is_assignable<OrvKvDeleteParameterSetNotification&,
                                     OrvKvDeleteParameterSetNotification&>::value));
    EXPECT_FALSE((std::is_assignable<OrvKvDeleteParameterSetNotification&,
                                     const OrvKvDeleteParameterSetNotification&>::value));
}

} // namespace
