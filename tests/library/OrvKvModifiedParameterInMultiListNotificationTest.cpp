// The notification of a changed parameter in a list.

#include "OrvKvModifiedParameterInMultiListNotification.h"

#include "NotificationTest.h"

using namespace support;

namespace {

using OrvKvModifiedParameterInMultiListNotificationTest =
    NotificationTest<OrvKvModifiedParameterInMultiListNotification>;

CATString NameOf(OrvKvModifiedParameterInMultiListNotification& iNotification) {
    CATString name("untouched");
    EXPECT_EQ(iNotification.GetParameterName(name), S_OK);
    return name;
}

TEST_F(OrvKvModifiedParameterInMultiListNotificationTest, GivesTheNameOfTheParameter) {
    OrvKvModifiedParameterInMultiListNotification notification("DIAMETER");
    EXPECT_STREQ(NameOf(notification).ConvertToChar(), "DIAMETER");
}

TEST_F(OrvKvModifiedParameterInMultiListNotificationTest, GivesAnEmptyNameForASet) {
    OrvKvModifiedParameterInMultiListNotification notification("");
    EXPECT_STREQ(NameOf(notification).ConvertToChar(), "");
}

TEST_F(OrvKvModifiedParameterInMultiListNotificationTest, KeepsTheNameWhenTheTextItWasMadeWithChanges) {
    CATString name("DIAMETER");
    OrvKvModifiedParameterInMultiListNotification notification(name);
    name = "DEPTH";
    EXPECT_STREQ(NameOf(notification).ConvertToChar(), "DIAMETER");
}

TEST_F(OrvKvModifiedParameterInMultiListNotificationTest, ReturnsAPlainSuccess) {
    OrvKvModifiedParameterInMultiListNotification notification("DIAMETER");
    CATString name;
    EXPECT_EQ(Observe([&] { return notification.GetParameterName(name); }), PlainSuccess());
}

TEST_F(OrvKvModifiedParameterInMultiListNotificationTest, IsCopiedWithItsName) {
    const OrvKvModifiedParameterInMultiListNotification original("DIAMETER");
    OrvKvModifiedParameterInMultiListNotification copy(original);
    EXPECT_STREQ(NameOf(copy).ConvertToChar(), "DIAMETER");
    OrvKvModifiedParameterInMultiListNotification other("DEPTH");
    other = original;
    EXPECT_STREQ(NameOf(other).ConvertToChar(), "DIAMETER");
}

} // namespace
