// The notification of another parameter set.

#include "OrvKvParameterSetSelectedNotification.h"

#include "NotificationTest.h"

using namespace support;

namespace {

using OrvKvParameterSetSelectedNotificationTest = NotificationTest<OrvKvParameterSetSelectedNotification>;

TEST_F(OrvKvParameterSetSelectedNotificationTest, GivesTheNameOfTheSetAndReturnsItsSuccessWithItsPlace) {
    for (const char* const name : {"Satz Ø10 / grün", "穴 M10", ""}) {
        OrvKvParameterSetSelectedNotification notification{CATUnicodeString(name)};
        CATUnicodeString given("untouched");
        EXPECT_EQ(Observe([&] { return notification.GetParameterSetName(&given); }), Success());
        EXPECT_STREQ(given.ConvertToChar(), name);
    }
}

TEST_F(OrvKvParameterSetSelectedNotificationTest, KeepsTheNameWhenTheTextItWasMadeWithChanges) {
    CATUnicodeString name("Set 1");
    OrvKvParameterSetSelectedNotification notification(name);
    name = "Set 2";
    CATUnicodeString given;
    EXPECT_EQ(notification.GetParameterSetName(&given), S_OK);
    EXPECT_STREQ(given.ConvertToChar(), "Set 1");
}

} // namespace
