// The notification of another thread pitch.

#include "OrvKvThreadPitchNotification.h"

#include "ThreadNotificationTest.h"

namespace {

using OrvKvThreadPitchNotificationTest = ThreadNotificationTest<OrvKvThreadPitchNotification>;

TEST_F(OrvKvThreadPitchNotificationTest, GivesAllFourValues) {
    const OrvKvThreadPitchNotification notification(1, "Metric fine", "M10x1.25", 1.25);
    EXPECT_EQ(notification.IsInitMode(), 1);
    ExpectThread(notification, "Metric fine", "M10x1.25", 1.25);
    EXPECT_EQ(OrvKvThreadPitchNotification(0, "", "", 0.0).IsInitMode(), 0);
}

TEST_F(OrvKvThreadPitchNotificationTest, NamesTheFirstNullPointer) {
    ExpectNullsRefused(OrvKvThreadPitchNotification(1, "Metric fine", "M10x1.25", 1.25));
}

} // namespace
