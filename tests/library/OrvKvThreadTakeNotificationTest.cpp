// The notification of a thread that the feature is to take.

#include "OrvKvThreadTakeNotification.h"

#include "NotificationTest.h"

using namespace support;

namespace {

class OrvKvThreadTakeNotificationTest : public NotificationTest<OrvKvThreadTakeNotification> {
  protected:
    OrvKvThreadTakeNotification _notification{"M10", 1.5, 8.376, 10.0, "LH", "Metric"};
    CATUnicodeString _GB{"untouched"};
    double _P = -1.0;
    double _DK = -2.0;
    double _DG = -3.0;
    CATUnicodeString _SR{"untouched"};
    CATUnicodeString _thrType{"untouched"};

    void ExpectUntouched() const {
        EXPECT_STREQ(_GB.ConvertToChar(), "untouched");
        EXPECT_EQ(_P, -1.0);
        EXPECT_EQ(_DK, -2.0);
        EXPECT_EQ(_DG, -3.0);
        EXPECT_STREQ(_SR.ConvertToChar(), "untouched");
        EXPECT_STREQ(_thrType.ConvertToChar(), "untouched");
    }
};

TEST_F(OrvKvThreadTakeNotificationTest, GivesAllSixValues) {
    EXPECT_EQ(Observe([&] { return _notification.GetThreadInfo(&_GB, &_P, &_DK, &_DG, &_SR, &_thrType); }),
              Success());
    EXPECT_STREQ(_GB.ConvertToChar(), "M10");
    EXPECT_EQ(_P, 1.5);
    EXPECT_EQ(_DK, 8.376);
    EXPECT_EQ(_DG, 10.0);
    EXPECT_STREQ(_SR.ConvertToChar(), "LH");
    EXPECT_STREQ(_thrType.ConvertToChar(), "Metric");
}

TEST_F(OrvKvThreadTakeNotificationTest, NamesTheFirstNullPointerAndWritesNothing) {
    const char* const messages[] = {"NULL == pGB", "NULL == pP",  "NULL == pDK",
                                    "NULL == pDG", "NULL == pSR", "NULL == pThrType"};
    ForEachChoiceOfNulls(6, [&](const auto& iIsNull) {
        unsigned first = 0;
        while (!iIsNull(first))
            ++first;
        EXPECT_EQ(Observe([&] {
                      return _notification.GetThreadInfo(
                          Unless(iIsNull(0), _GB), Unless(iIsNull(1), _P), Unless(iIsNull(2), _DK),
                          Unless(iIsNull(3), _DG), Unless(iIsNull(4), _SR), Unless(iIsNull(5), _thrType));
                  }),
                  Failure(messages[first]));
        ExpectUntouched();
    });
}

TEST_F(OrvKvThreadTakeNotificationTest, NamesThePitchAloneWhenPitchAndDirectionAreNull) {
    EXPECT_EQ(
        Observe([&] { return _notification.GetThreadInfo(&_GB, nullptr, &_DK, &_DG, nullptr, &_thrType); }),
        Failure("NULL == pP"));
    ExpectUntouched();
}

} // namespace
