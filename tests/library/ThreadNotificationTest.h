#pragma once

#include "NotificationTest.h"

// Base of the tests of the four thread notifications that the command reads in one way: the getter of type,
// dimension and pitch.
template<class Notification>
class ThreadNotificationTest : public NotificationTest<Notification> {
  protected:
    static void ExpectThread(const Notification& iNotification, const char* iType, const char* iDimension,
                             double iPitch) {
        CATUnicodeString type("untouched");
        CATUnicodeString dimension("untouched");
        double pitch = -7.0;
        EXPECT_EQ(support::Observe([&] { return iNotification.GetThreadInfo(&type, &dimension, &pitch); }),
                  ThreadNotificationTest::Success());
        EXPECT_STREQ(type.ConvertToChar(), iType);
        EXPECT_STREQ(dimension.ConvertToChar(), iDimension);
        EXPECT_EQ(pitch, iPitch);
    }

    // The pointers are checked in order; the first null one is named, and nothing is written.
    static void ExpectNullsRefused(const Notification& iNotification) {
        ForEachChoiceOfNulls(3, [&](const auto& iIsNull) {
            CATUnicodeString type("untouched");
            CATUnicodeString dimension("untouched");
            double pitch = -7.0;
            const char* const message = iIsNull(0)   ? "NULL == pType"
                                        : iIsNull(1) ? "NULL == pDim"
                                                     : "NULL == pPitch";
            EXPECT_EQ(support::Observe([&] {
                          return iNotification.GetThreadInfo(Unless(iIsNull(0), type),
                                                             Unless(iIsNull(1), dimension),
                                                             Unless(iIsNull(2), pitch));
                      }),
                      ThreadNotificationTest::Failure(message));
            EXPECT_STREQ(type.ConvertToChar(), "untouched");
            EXPECT_STREQ(dimension.ConvertToChar(), "untouched");
            EXPECT_EQ(pitch, -7.0);
        });
    }
};
