// The notification of the insertion sketch: the class is the message.

#include "OrvKvInsertionSketchProvidedNotification.h"

#include "NotificationTest.h"
#include "host/LiveObjects.h"

#include <type_traits>

namespace {

using OrvKvInsertionSketchProvidedNotificationTest =
    NotificationTest<OrvKvInsertionSketchProvidedNotification>;

TEST_F(OrvKvInsertionSketchProvidedNotificationTest, IsMadeWithoutValues) {
    const OrvKvInsertionSketchProvidedNotification notification;
    EXPECT_STREQ(notification.IsA(), "OrvKvInsertionSketchProvidedNotification");
}

TEST_F(OrvKvInsertionSketchProvidedNotificationTest, HasCopiesThatLiveOnTheirOwn) {
    auto* const original = new OrvKvInsertionSketchProvidedNotification();
    original->AddRef();
    const OrvKvInsertionSketchProvidedNotification& source = *original;
    auto* const copy = new OrvKvInsertionSketchProvidedNotification(source);
    EXPECT_EQ(host::LiveObjects::Count("OrvKvInsertionSketchProvidedNotification"), 2);
    EXPECT_EQ(copy->Release(), 0U) << "a copy starts with one reference";
    EXPECT_EQ(original->Release(), 1U);
    EXPECT_EQ(original->Release(), 0U);
}

TEST_F(OrvKvInsertionSketchProvidedNotificationTest, CanBeAssignedWithoutLosingItsReferences) {
    auto* const target = new OrvKvInsertionSketchProvidedNotification();
    target->AddRef();
    const OrvKvInsertionSketchProvidedNotification source;
    EXPECT_EQ(&(*target = source), target);
    EXPECT_EQ(target->Release(), 1U);
    EXPECT_EQ(target->Release(), 0U);
}

} // namespace
