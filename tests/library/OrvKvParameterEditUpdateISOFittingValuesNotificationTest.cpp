// The notification of a new value under an ISO fit.

#include "OrvKvParameterEditUpdateISOFittingValuesNotification.h"

#include "NotificationTest.h"

using namespace support;

namespace {

using UpdateFitting = OrvKvParameterEditUpdateISOFittingValuesNotification;

class OrvKvParameterEditUpdateISOFittingValuesNotificationTest : public NotificationTest<UpdateFitting> {
  protected:
    CATUnicodeString _group{"H"};
    CATUnicodeString _field{"H7"};
    UpdateFitting _notification{_group, _field, 25.5};
};

TEST_F(OrvKvParameterEditUpdateISOFittingValuesNotificationTest, GivesGroupFieldAndValue) {
    _group = "changed";
    _field = "changed";
    CATUnicodeString group;
    CATUnicodeString field;
    double value = 0.0;
    EXPECT_EQ(Observe([&] { return _notification.GetFittingInfo(&group, &field, &value); }), Success());
    EXPECT_STREQ(group.ConvertToChar(), "H");
    EXPECT_STREQ(field.ConvertToChar(), "H7");
    EXPECT_EQ(value, 25.5);
}

TEST_F(OrvKvParameterEditUpdateISOFittingValuesNotificationTest, FailsWithOneMessageWhicheverPointerIsNull) {
    ForEachChoiceOfNulls(3, [&](const auto& iIsNull) {
        CATUnicodeString group("untouched");
        CATUnicodeString field("untouched");
        double value = -7.0;
        EXPECT_EQ(Observe([&] {
                      return _notification.GetFittingInfo(
                          Unless(iIsNull(0), group), Unless(iIsNull(1), field), Unless(iIsNull(2), value));
                  }),
                  Failure("The method GetFittingInfo failed."));
        EXPECT_STREQ(group.ConvertToChar(), "untouched");
        EXPECT_STREQ(field.ConvertToChar(), "untouched");
        EXPECT_EQ(value, -7.0);
    });
}

TEST_F(OrvKvParameterEditUpdateISOFittingValuesNotificationTest, TakesItsTextsFromModifiableOnesAlone) {
    EXPECT_TRUE((std::is_constructible<UpdateFitting, CATUnicodeString&, CATUnicodeString&, double>::value));
    EXPECT_FALSE(
        (std::is_constructible<UpdateFitting, const CATUnicodeString&, CATUnicodeString&, double>::value));
    EXPECT_FALSE(
        (std::is_constructible<UpdateFitting, CATUnicodeString&, const CATUnicodeString&, double>::value));
}

} // namespace
