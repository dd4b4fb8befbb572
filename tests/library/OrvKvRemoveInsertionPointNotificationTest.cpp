// The notification of an insertion point that is taken out of the list.

#include "OrvKvRemoveInsertionPointNotification.h"

#include "NotificationTest.h"

using namespace support;

namespace {

using OrvKvRemoveInsertionPointNotificationTest = NotificationTest<OrvKvRemoveInsertionPointNotification>;

TEST_F(OrvKvRemoveInsertionPointNotificationTest, GivesThePositionThatItWasMadeWith) {
    for (const int position : {1, 2, 1000, 0, -1}) {
        OrvKvRemoveInsertionPointNotification notification(position);
        EXPECT_EQ(Observe([&] {
                      EXPECT_EQ(notification.GetPointCountToRemove(), position);
                      return S_OK;
                  }),
                  PlainSuccess());
    }
}

// The position belongs to the list as it was when the point was picked.
TEST_F(OrvKvRemoveInsertionPointNotificationTest, LosesThePositionInACopy) {
    OrvKvRemoveInsertionPointNotification original(5);
    OrvKvRemoveInsertionPointNotification copy(original);
    EXPECT_EQ(copy.GetPointCountToRemove(), 0);
    EXPECT_EQ(original.GetPointCountToRemove(), 5);
}

TEST_F(OrvKvRemoveInsertionPointNotificationTest, KeepsItsOwnPositionWhenAnotherIsAssigned) {
    OrvKvRemoveInsertionPointNotification original(5);
    OrvKvRemoveInsertionPointNotification other(7);
    EXPECT_EQ(&(other = original), &other);
    EXPECT_EQ(other.GetPointCountToRemove(), 7);
    EXPECT_EQ(original.GetPointCountToRemove(), 5);
}

} // namespace
