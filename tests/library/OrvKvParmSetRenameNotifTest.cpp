// The notification of the wish to rename a parameter set: the class is the message.

#include "OrvKvParmSetRenameNotif.h"

#include "NotificationTest.h"
#include "host/LiveObjects.h"

#include <type_traits>

namespace {

using OrvKvParmSetRenameNotifTest = NotificationTest<OrvKvParmSetRenameNotif>;

TEST_F(OrvKvParmSetRenameNotifTest, IsMadeWithoutValues) {
    const OrvKvParmSetRenameNotif notification;
    EXPECT_STREQ(notification.IsA(), "OrvKvParmSetRenameNotif");
}

TEST_F(OrvKvParmSetRenameNotifTest, CannotBeCopied) {
    EXPECT_FALSE((std::is_constructible<OrvKvParmSetRenameNotif, OrvKvParmSetRenameNotif&>::value));
    EXPECT_FALSE((std::is_constructible<OrvKvParmSetRenameNotif, const OrvKvParmSetRenameNotif&>::value));
    EXPECT_FALSE((std::is_assignable<OrvKvParmSetRenameNotif&, OrvKvParmSetRenameNotif&>::value));
    EXPECT_FALSE((std::is_assignable<OrvKvParmSetRenameNotif&, const OrvKvParmSetRenameNotif&>::value));
}

} // namespace
