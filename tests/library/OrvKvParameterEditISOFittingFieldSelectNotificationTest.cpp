// The notification of another tolerance field.

#include "OrvKvParameterEditISOFittingFieldSelectNotification.h"

#include "NotificationTest.h"

using namespace support;

namespace {

using FieldSelect = OrvKvParameterEditISOFittingFieldSelectNotification;

class OrvKvParameterEditISOFittingFieldSelectNotificationTest : public NotificationTest<FieldSelect> {
  protected:
    CATUnicodeString _group{"H"};
    CATUnicodeString _field{"H7"};
    FieldSelect _notification{_group, _field, 25.5};
};

TEST_F(OrvKvParameterEditISOFittingFieldSelectNotificationTest, GivesGroupFieldAndValue) {
    _group = "changed";
    _field = "changed";
    CATUnicodeString group;
    CATUnicodeString field;
    double value = 0.0;
    EXPECT_EQ(Observe([&] { return _notification.GetSelectedFittingValues(&group, &field, &value); }),
              Success());
    EXPECT_STREQ(group.ConvertToChar(), "H");
    EXPECT_STREQ(field.ConvertToChar(), "H7");
    EXPECT_EQ(value, 25.5);
}

TEST_F(OrvKvParameterEditISOFittingFieldSelectNotificationTest, FailsWithOneMessageWhicheverPointerIsNull) {
    ForEachChoiceOfNulls(3, [&](const auto& iIsNull) {
        CATUnicodeString group("untouched");
        CATUnicodeString field("untouched");
        double value = -7.0;
        EXPECT_EQ(Observe([&] {
                      return _notification.GetSelectedFittingValues(
                          Unless(iIsNull(0), group), Unless(iIsNull(1), field), Unless(iIsNull(2), value));
                  }),
                  Failure("NULL == pTolGroup \n NULL == pTolField \n NULL == pParmValue"));
        EXPECT_STREQ(group.ConvertToChar(), "untouched");
        EXPECT_STREQ(field.ConvertToChar(), "untouched");
        EXPECT_EQ(value, -7.0);
    });
}

TEST_F(OrvKvParameterEditISOFittingFieldSelectNotificationTest, TakesItsTextsFromModifiableOnesAlone) {
    EXPECT_TRUE((std::is_constructible<FieldSelect, CATUnicodeString&, CATUnicodeString&, double>::value));
    EXPECT_FALSE(
        (std::is_constructible<FieldSelect, const CATUnicodeString&, CATUnicodeString&, double>::value));
    EXPECT_FALSE(
        (std::is_constructible<FieldSelect, CATUnicodeString&, const CATUnicodeString&, double>::value));
}

} // namespace
