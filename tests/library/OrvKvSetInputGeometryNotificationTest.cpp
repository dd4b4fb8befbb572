// The notification of the wish to pick an input geometry.

#include "OrvKvSetInputGeometryNotification.h"

#include "NotificationTest.h"

using namespace support;

namespace {

using OrvKvSetInputGeometryNotificationTest = NotificationTest<OrvKvSetInputGeometryNotification>;

TEST_F(OrvKvSetInputGeometryNotificationTest, GivesTheNumberThatItWasMadeWith) {
    for (const int number : {1, 2, 3, 0, -1}) {
        OrvKvSetInputGeometryNotification notification(number);
        EXPECT_EQ(Observe([&] {
                      EXPECT_EQ(notification.GetInputGeometryNo(), number);
                      return S_OK;
                  }),
                  PlainSuccess());
    }
}

} // namespace
