// The notification of another thread type.

#include "OrvKvThreadTypeNotification.h"

#include "ThreadNotificationTest.h"

using namespace support;

namespace {

using OrvKvThreadTypeNotificationTest = ThreadNotificationTest<OrvKvThreadTypeNotification>;

TEST_F(OrvKvThreadTypeNotificationTest, GivesTheTypeAndNothingElseWhenMadeWithTwoValues) {
    const OrvKvThreadTypeNotification notification(1, "Metric");
    EXPECT_EQ(notification.IsInitMode(), 1);
    ExpectThread(notification, "Metric", "", 0.0);
}

TEST_F(OrvKvThreadTypeNotificationTest, GivesAllFourValues) {
    const OrvKvThreadTypeNotification notification(0, "Metric", "M10", 1.5);
    EXPECT_EQ(notification.IsInitMode(), 0);
    ExpectThread(notification, "Metric", "M10", 1.5);
}

TEST_F(OrvKvThreadTypeNotificationTest, GivesTheTypeAlone) {
    for (const char* const name : {"Metric", ""}) {
        const OrvKvThreadTypeNotification notification(1, name);
        CATUnicodeString type("untouched");
        EXPECT_EQ(Observe([&] { return notification.GetThreadInfo(&type); }), Success());
        EXPECT_STREQ(type.ConvertToChar(), name);
    }
}

TEST_F(OrvKvThreadTypeNotificationTest, FailsWhenTheOnlyPointerIsNull) {
    const OrvKvThreadTypeNotification notification(1, "Metric");
    EXPECT_EQ(Observe([&] { return notification.GetThreadInfo(nullptr); }), Failure("NULL == pType"));
}

TEST_F(OrvKvThreadTypeNotificationTest, NamesTheFirstNullPointerOfThree) {
    ExpectNullsRefused(OrvKvThreadTypeNotification(1, "Metric", "M10", 1.5));
}

} // namespace
