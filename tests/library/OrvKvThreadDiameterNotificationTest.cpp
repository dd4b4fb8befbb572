// The notification of another thread diameter.

#include "OrvKvThreadDiameterNotification.h"

#include "ThreadNotificationTest.h"

using namespace support;

namespace {

using OrvKvThreadDiameterNotificationTest = ThreadNotificationTest<OrvKvThreadDiameterNotification>;

TEST_F(OrvKvThreadDiameterNotificationTest, GivesTypeAndDimensionAndNoPitchWhenMadeWithThreeValues) {
    const OrvKvThreadDiameterNotification notification(1, "Metric", "M10");
    EXPECT_EQ(notification.IsInitMode(), 1);
    ExpectThread(notification, "Metric", "M10", 0.0);
}

TEST_F(OrvKvThreadDiameterNotificationTest, GivesThePitchToo) {
    const OrvKvThreadDiameterNotification notification(0, "Metric", "M10", 1.25);
    EXPECT_EQ(notification.IsInitMode(), 0);
    ExpectThread(notification, "Metric", "M10", 1.25);
}

TEST_F(OrvKvThreadDiameterNotificationTest, KeepsTheFlagAsItIs) {
    EXPECT_EQ(OrvKvThreadDiameterNotification(255, "", "").IsInitMode(), 255);
}

TEST_F(OrvKvThreadDiameterNotificationTest, NamesTheFirstNullPointerOfThree) {
    ExpectNullsRefused(OrvKvThreadDiameterNotification(1, "Metric", "M10", 1.25));
}

TEST_F(OrvKvThreadDiameterNotificationTest, GivesTypeAndDimensionAlone) {
    const OrvKvThreadDiameterNotification notification(1, "Metric", "M10", 1.25);
    CATUnicodeString type;
    CATUnicodeString dimension;
    EXPECT_EQ(Observe([&] { return notification.GetThreadInfo(&type, &dimension); }), Success());
    EXPECT_STREQ(type.ConvertToChar(), "Metric");
    EXPECT_STREQ(dimension.ConvertToChar(), "M10");
}

TEST_F(OrvKvThreadDiameterNotificationTest, NamesTheFirstNullPointerOfTwo) {
    const OrvKvThreadDiameterNotification notification(1, "Metric", "M10", 1.25);
    ForEachChoiceOfNulls(2, [&](const auto& iIsNull) {
        CATUnicodeString type("untouched");
        CATUnicodeString dimension("untouched");
        EXPECT_EQ(Observe([&] {
                      return notification.GetThreadInfo(Unless(iIsNull(0), type),
                                                        Unless(iIsNull(1), dimension));
                  }),
                  Failure(iIsNull(0) ? "NULL == pType" : "NULL == pDim"));
        EXPECT_STREQ(type.ConvertToChar(), "untouched");
        EXPECT_STREQ(dimension.ConvertToChar(), "untouched");
    });
}

} // namespace
