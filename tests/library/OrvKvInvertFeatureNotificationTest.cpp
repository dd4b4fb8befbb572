// The notification of the wish to invert the feature: the class is the message.

#include "OrvKvInvertFeatureNotification.h"

#include "NotificationTest.h"
#include "host/LiveObjects.h"

#include <type_traits>

namespace {

using OrvKvInvertFeatureNotificationTest = NotificationTest<OrvKvInvertFeatureNotification>;

TEST_F(OrvKvInvertFeatureNotificationTest, IsMadeWithoutValues) {
    const OrvKvInvertFeatureNotification notification;
    EXPECT_STREQ(notification.IsA(), "OrvKvInvertFeatureNotification");
}

TEST_F(OrvKvInvertFeatureNotificationTest, CannotBeCopied) {
    EXPECT_FALSE(
        (std::is_constructible<OrvKvInvertFeatureNotification, OrvKvInvertFeatureNotification&>::value));
    EXPECT_FALSE((
        std::is_constructible<OrvKvInvertFeatureNotification, const OrvKvInvertFeatureNotification&>::value));
    EXPECT_FALSE(
        (std::is_assignable<OrvKvInvertFeatureNotification&, OrvKvInvertFeatureNotification&>::value));
    EXPECT_FALSE(
        (std::is_assignable<OrvKvInvertFeatureNotification&, const OrvKvInvertFeatureNotification&>::value));
}

} // namespace
