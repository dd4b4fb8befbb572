// The notification of the change to the invalid state: the class is the message.

#include "OrvKvTriggerStateChangeToInvalidNotification.h"

#include "NotificationTest.h"
#include "host/LiveObjects.h"

#include <type_traits>

namespace {

using OrvKvTriggerStateChangeToInvalidNotificationTest =
    NotificationTest<OrvKvTriggerStateChangeToInvalidNotification>;

TEST_F(OrvKvTriggerStateChangeToInvalidNotificationTest, IsMadeWithoutValues) {
    const OrvKvTriggerStateChangeToInvalidNotification notification;
    EXPECT_STREQ(notification.IsA(), "OrvKvTriggerStateChangeToInvalidNotification");
}

TEST_F(OrvKvTriggerStateChangeToInvalidNotificationTest, HasCopiesThatLiveOnTheirOwn) {
    auto* const original = new OrvKvTriggerStateChangeToInvalidNotification();
    original->AddRef();
    OrvKvTriggerStateChangeToInvalidNotification& source = *original;
    auto* const copy = new OrvKvTriggerStateChangeToInvalidNotification(source);
    EXPECT_EQ(host::LiveObjects::Count("OrvKvTriggerStateChangeToInvalidNotification"), 2);
    EXPECT_EQ(copy->Release(), 0U) << "a copy starts with one reference";
    EXPECT_EQ(original->Release(), 1U);
    EXPECT_EQ(original->Release(), 0U);
}

TEST_F(OrvKvTriggerStateChangeToInvalidNotificationTest, CanBeAssignedWithoutLosingItsReferences) {
    auto* const target = new OrvKvTriggerStateChangeToInvalidNotification();
    target->AddRef();
    OrvKvTriggerStateChangeToInvalidNotification source;
    EXPECT_EQ(&(*target = source), target);
    EXPECT_EQ(target->Release(), 1U);
    EXPECT_EQ(target->Release(), 0U);
}

TEST_F(OrvKvTriggerStateChangeToInvalidNotificationTest, IsNotCopiedFromAConstant) {
    EXPECT_FALSE((std::is_constructible<OrvKvTriggerStateChangeToInvalidNotification,
                                        const OrvKvTriggerStateChangeToInvalidNotification&>::value));
    EXPECT_FALSE((std::is_assignable<OrvKvTriggerStateChangeToInvalidNotification&,
                                     const OrvKvTriggerStateChangeToInvalidNotification&>::value));
}

} // namespace
