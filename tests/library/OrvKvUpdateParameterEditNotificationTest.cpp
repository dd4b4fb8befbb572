// The notification of the wish to update the parameter edit panel: the class is the message.

#include "OrvKvUpdateParameterEditNotification.h"

#include "NotificationTest.h"
#include "host/LiveObjects.h"

#include <type_traits>

namespace {

using OrvKvUpdateParameterEditNotificationTest = NotificationTest<OrvKvUpdateParameterEditNotification>;

TEST_F(OrvKvUpdateParameterEditNotificationTest, IsMadeWithoutValues) {
    const OrvKvUpdateParameterEditNotification notification;
    EXPECT_STREQ(notification.IsA(), "OrvKvUpdateParameterEditNotification");
}

TEST_F(OrvKvUpdateParameterEditNotificationTest, HasCopiesThatLiveOnTheirOwn) {
    auto* const original = new OrvKvUpdateParameterEditNotification();
    original->AddRef();
    OrvKvUpdateParameterEditNotification& source = *original;
    auto* const copy = new OrvKvUpdateParameterEditNotification(source);
    EXPECT_EQ(host::LiveObjects::Count("OrvKvUpdateParameterEditNotification"), 2);
    EXPECT_EQ(copy->Release(), 0U) << "a copy starts with one reference";
    EXPECT_EQ(original->Release(), 1U);
    EXPECT_EQ(original->Release(), 0U);
}

TEST_F(OrvKvUpdateParameterEditNotificationTest, CanBeAssignedWithoutLosingItsReferences) {
    auto* const target = new OrvKvUpdateParameterEditNotification();
    target->AddRef();
    OrvKvUpdateParameterEditNotification source;
    EXPECT_EQ(&(*target = source), target);
    EXPECT_EQ(target->Release(), 1U);
    EXPECT_EQ(target->Release(), 0U);
}

TEST_F(OrvKvUpdateParameterEditNotificationTest, IsNotCopiedFromAConstant) {
    EXPECT_FALSE((std::is_constructible<OrvKvUpdateParameterEditNotification,
                                        const OrvKvUpdateParameterEditNotification&>::value));
    EXPECT_FALSE((std::is_assignable<OrvKvUpdateParameterEditNotification&,
                                     const OrvKvUpdateParameterEditNotification&>::value));
}

} // namespace
