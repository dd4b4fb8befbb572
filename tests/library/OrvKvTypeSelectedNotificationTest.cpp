// The notification of another feature type: made empty, filled once, read by the command.

#include "OrvKvTypeSelectedNotification.h"

#include "NotificationTest.h"

using namespace support;

namespace {

using TypeSelected = OrvKvTypeSelectedNotification;

const char message[] = "Error in method SetFeatureInformation.";

struct Values {
    int group;
    int type;
    std::string identifier;
    std::string name;

    bool operator==(const Values&) const = default;
};

class OrvKvTypeSelectedNotificationTest : public NotificationTest<TypeSelected> {
  protected:
    static Values ValuesOf(TypeSelected& iNotification) {
        int group = -7;
        int type = -7;
        CATString identifier("untouched");
        CATUnicodeString name("untouched");
        EXPECT_EQ(
            Observe([&] { return iNotification.GetFeatureInformation(&group, &type, &identifier, &name); }),
            Success());
        return {group, type, identifier.ConvertToChar(), name.ConvertToChar()};
    }

    TypeSelected _notification;
};

TEST_F(OrvKvTypeSelectedNotificationTest, IsEmptyWhenItIsMade) {
    EXPECT_EQ(ValuesOf(_notification), (Values{0, 0, "", ""}));
}

TEST_F(OrvKvTypeSelectedNotificationTest, GivesWhatItWasFilledWith) {
    EXPECT_EQ(Observe([&] { return _notification.SetFeatureInformation(2, 5, "CBORE", "Senkung Ø"); }),
              Success());
    EXPECT_EQ(ValuesOf(_notification), (Values{2, 5, "CBORE", "Senkung Ø"}));
}

TEST_F(OrvKvTypeSelectedNotificationTest, TakesZeroForGroupAndType) {
    EXPECT_EQ(Observe([&] { return _notification.SetFeatureInformation(0, 0, "", ""); }), Success());
    EXPECT_EQ(ValuesOf(_notification), (Values{0, 0, "", ""}));
}

TEST_F(OrvKvTypeSelectedNotificationTest, RefusesNegativeNumbersAndKeepsWhatItHad) {
    EXPECT_EQ(_notification.SetFeatureInformation(2, 5, "CBORE", "Counterbore"), S_OK);
    const int refused[][2] = {{-1, 2}, {2, -1}, {-1, -1}};
    for (const auto& [group, type] : refused) {
        EXPECT_EQ(Observe([&, g = group, t = type] {
                      return _notification.SetFeatureInformation(g, t, "CSINK", "Countersink");
                  }),
                  Failure(message));
        EXPECT_EQ(ValuesOf(_notification), (Values{2, 5, "CBORE", "Counterbore"}));
    }
}

TEST_F(OrvKvTypeSelectedNotificationTest, FailsWithTheMessageOfTheSetterWhicheverPointerIsNull) {
    EXPECT_EQ(_notification.SetFeatureInformation(2, 5, "CBORE", "Counterbore"), S_OK);
    ForEachChoiceOfNulls(4, [&](const auto& iIsNull) {
        int group = -7;
        int type = -7;
        CATString identifier("untouched");
        CATUnicodeString name("untouched");
        EXPECT_EQ(Observe([&] {
                      return _notification.GetFeatureInformation(
                          Unless(iIsNull(0), group), Unless(iIsNull(1), type), Unless(iIsNull(2), identifier),
                          Unless(iIsNull(3), name));
                  }),
                  Failure(message));
        EXPECT_EQ(group, -7);
        EXPECT_EQ(type, -7);
        EXPECT_STREQ(identifier.ConvertToChar(), "untouched");
        EXPECT_STREQ(name.ConvertToChar(), "untouched");
    });
}

TEST_F(OrvKvTypeSelectedNotificationTest, CopiesAllFourValues) {
    EXPECT_EQ(_notification.SetFeatureInformation(2, 5, "CBORE", "Counterbore"), S_OK);
    const TypeSelected& original = _notification;
    TypeSelected copy(original);
    EXPECT_EQ(ValuesOf(copy), (Values{2, 5, "CBORE", "Counterbore"}));
}

TEST_F(OrvKvTypeSelectedNotificationTest, AssignsAllFourValues) {
    EXPECT_EQ(_notification.SetFeatureInformation(2, 5, "CBORE", "Counterbore"), S_OK);
    const TypeSelected& original = _notification;
    TypeSelected other;
    EXPECT_EQ(&(other = original), &other);
    EXPECT_EQ(ValuesOf(other), (Values{2, 5, "CBORE", "Counterbore"}));
}

} // namespace
