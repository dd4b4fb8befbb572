// The notification of the limiting sketch: the class is the message.

#include "OrvKvLimitingSketchProvidedNotification.h"

#include "NotificationTest.h"
#include "host/LiveObjects.h"

#include <type_traits>

namespace {

using OrvKvLimitingSketchProvidedNotificationTest = NotificationTest<OrvKvLimitingSketchProvidedNotification>;

TEST_F(OrvKvLimitingSketchProvidedNotificationTest, IsMadeWithoutValues) {
    const OrvKvLimitingSketchProvidedNotification notification;
    EXPECT_STREQ(notification.IsA(), "OrvKvLimitingSketchProvidedNotification");
}

TEST_F(OrvKvLimitingSketchProvidedNotificationTest, HasCopiesThatLiveOnTheirOwn) {
    auto* const original = new OrvKvLimitingSketchProvidedNotification();
    original->AddRef();
    const OrvKvLimitingSketchProvidedNotification& source = *original;
    auto* const copy = new OrvKvLimitingSketchProvidedNotification(source);
    EXPECT_EQ(host::LiveObjects::Count("OrvKvLimitingSketchProvidedNotification"), 2);
    EXPECT_EQ(copy->Release(), 0U) << "a copy starts with one reference";
    EXPECT_EQ(original->Release(), 1U);
    EXPECT_EQ(original->Release(), 0U);
}

TEST_F(OrvKvLimitingSketchProvidedNotificationTest, CanBeAssignedWithoutLosingItsReferences) {
    auto* const target = new OrvKvLimitingSketchProvidedNotification();
    target->AddRef();
    const OrvKvLimitingSketchProvidedNotification source;
    EXPECT_EQ(&(*target = source), target);
    EXPECT_EQ(target->Release(), 1U);
    EXPECT_EQ(target->Release(), 0U);
}

} // namespace
