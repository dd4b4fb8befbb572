// The notification of another feature group.

#include "OrvKvGroupChangedNotification.h"

#include "NotificationTest.h"

using namespace support;

namespace {

using OrvKvGroupChangedNotificationTest = NotificationTest<OrvKvGroupChangedNotification>;

int GroupOf(OrvKvGroupChangedNotification& iNotification) {
    int group = -7;
    EXPECT_EQ(iNotification.GetGroup(&group), S_OK);
    return group;
}

TEST_F(OrvKvGroupChangedNotificationTest, GivesTheGroupThatItWasMadeWith) {
    for (const int group : {1, 2, 100000, 0, -3}) {
        OrvKvGroupChangedNotification notification(group);
        EXPECT_EQ(GroupOf(notification), group);
    }
}

TEST_F(OrvKvGroupChangedNotificationTest, ReturnsItsSuccessWithItsPlace) {
    OrvKvGroupChangedNotification notification(3);
    int group = 0;
    EXPECT_EQ(Observe([&] { return notification.GetGroup(&group); }), Success());
}

TEST_F(OrvKvGroupChangedNotificationTest, CopiesTheGroup) {
    const OrvKvGroupChangedNotification original(4);
    OrvKvGroupChangedNotification copy(original);
    EXPECT_EQ(GroupOf(copy), 4);
}

TEST_F(OrvKvGroupChangedNotificationTest, AssignsTheGroup) {
    const OrvKvGroupChangedNotification original(4);
    OrvKvGroupChangedNotification other(9);
    EXPECT_EQ(&(other = original), &other);
    EXPECT_EQ(GroupOf(other), 4);
}

TEST_F(OrvKvGroupChangedNotificationTest, HasCopiesWithOneReferenceOfTheirOwn) {
    auto* const original = new OrvKvGroupChangedNotification(4);
    original->AddRef();
    auto* const copy = new OrvKvGroupChangedNotification(*original);
    EXPECT_EQ(copy->Release(), 0U);
    EXPECT_EQ(original->Release(), 1U);
    EXPECT_EQ(original->Release(), 0U);
}

} // namespace
