// The notification of another tolerance group.

#include "OrvKvParameterEditISOFittingGroupSelectNotification.h"

#include "NotificationTest.h"

using namespace support;

namespace {

using GroupSelect = OrvKvParameterEditISOFittingGroupSelectNotification;

class OrvKvParameterEditISOFittingGroupSelectNotificationTest : public NotificationTest<GroupSelect> {
  protected:
    CATUnicodeString _group{"JS"};
    GroupSelect _notification{_group, 25.5};
};

TEST_F(OrvKvParameterEditISOFittingGroupSelectNotificationTest, GivesGroupAndValueWithAPlainSuccess) {
    _group = "changed";
    CATUnicodeString group;
    double value = 0.0;
    EXPECT_EQ(Observe([&] { return _notification.GetSelectedToleranceGroup(&group, &value); }),
              PlainSuccess());
    EXPECT_STREQ(group.ConvertToChar(), "JS");
    EXPECT_EQ(value, 25.5);
}

TEST_F(OrvKvParameterEditISOFittingGroupSelectNotificationTest, FailsWithoutTraceAndErrorWhenAPointerIsNull) {
    ForEachChoiceOfNulls(2, [&](const auto& iIsNull) {
        CATUnicodeString group("untouched");
        double value = -7.0;
        EXPECT_EQ(Observe([&] {
                      return _notification.GetSelectedToleranceGroup(Unless(iIsNull(0), group),
                                                                     Unless(iIsNull(1), value));
                  }),
                  PlainFailure());
        EXPECT_STREQ(group.ConvertToChar(), "untouched");
        EXPECT_EQ(value, -7.0);
    });
}

TEST_F(OrvKvParameterEditISOFittingGroupSelectNotificationTest, FailsWithTheValueOfThePlatform) {
    double value = 0.0;
    const long result = _notification.GetSelectedToleranceGroup(nullptr, &value);
    EXPECT_EQ(static_cast<int>(result), static_cast<int>(0x80004005U));
}

TEST_F(OrvKvParameterEditISOFittingGroupSelectNotificationTest, TakesItsTextFromAModifiableOneAlone) {
    EXPECT_TRUE((std::is_constructible<GroupSelect, CATUnicodeString&, double>::value));
    EXPECT_FALSE((std::is_constructible<GroupSelect, const CATUnicodeString&, double>::value));
}

} // namespace
