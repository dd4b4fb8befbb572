// The notification of a thread panel that wants to be filled.

#include "OrvKvThreadInitNotification.h"

#include "ThreadNotificationTest.h"

namespace {

using OrvKvThreadInitNotificationTest = ThreadNotificationTest<OrvKvThreadInitNotification>;

void ExpectFlags(const OrvKvThreadInitNotification& iNotification, int iInitMode, int iActivateMode) {
    EXPECT_EQ(iNotification.IsInitMode(), iInitMode);
    EXPECT_EQ(iNotification.IsActivateMode(), iActivateMode);
}

TEST_F(OrvKvThreadInitNotificationTest, HasAFlagAndNothingElseWhenMadeWithOneValue) {
    const OrvKvThreadInitNotification notification(1);
    ExpectFlags(notification, 1, 0);
    ExpectThread(notification, "", "", 0.0);
}

TEST_F(OrvKvThreadInitNotificationTest, HasTwoFlagsAndNothingElseWhenMadeWithTwoValues) {
    const OrvKvThreadInitNotification notification(0, 1);
    ExpectFlags(notification, 0, 1);
    ExpectThread(notification, "", "", 0.0);
}

TEST_F(OrvKvThreadInitNotificationTest, GivesAllFiveValues) {
    const OrvKvThreadInitNotification notification(1, 0, "Metric", "M10", 1.25);
    ExpectFlags(notification, 1, 0);
    ExpectThread(notification, "Metric", "M10", 1.25);
}

TEST_F(OrvKvThreadInitNotificationTest, KeepsTheFlagsAsTheyAre) {
    ExpectFlags(OrvKvThreadInitNotification(2, 255), 2, 255);
}

TEST_F(OrvKvThreadInitNotificationTest, NamesTheFirstNullPointer) {
    ExpectNullsRefused(OrvKvThreadInitNotification(1, 1, "Metric", "M10", 1.25));
}

} // namespace
