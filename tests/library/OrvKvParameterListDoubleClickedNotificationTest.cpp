// The notification of a double click on a parameter.

#include "OrvKvParameterListDoubleClickedNotification.h"

#include "NotificationTest.h"

using namespace support;

namespace {

using DoubleClicked = OrvKvParameterListDoubleClickedNotification;
using OrvKvParameterListDoubleClickedNotificationTest = NotificationTest<DoubleClicked>;

struct Values {
    std::string name;
    int row;
    int editParameter;
    int editToleranceOrFitting;

    bool operator==(const Values&) const = default;
};

Values ValuesOf(DoubleClicked& iNotification) {
    CATString name("untouched");
    int row = -7;
    unsigned char editParameter = 7;
    unsigned char editToleranceOrFitting = 7;
    EXPECT_EQ(iNotification.GetParameterName(&name, &row), S_OK);
    EXPECT_EQ(iNotification.GetEditParameterFlag(editParameter), S_OK);
    EXPECT_EQ(iNotification.GetEditToleranceOrFittingFlag(editToleranceOrFitting), S_OK);
    return {name.ConvertToChar(), row, editParameter, editToleranceOrFitting};
}

TEST_F(OrvKvParameterListDoubleClickedNotificationTest, GivesEachValueThatItWasMadeWith) {
    DoubleClicked value("DIAMETER", 3, 1, 0);
    EXPECT_EQ(ValuesOf(value), (Values{"DIAMETER", 3, 1, 0}));
    DoubleClicked tolerance("DEPTH", -1, 0, 1);
    EXPECT_EQ(ValuesOf(tolerance), (Values{"DEPTH", -1, 0, 1}));
    DoubleClicked flags("", 0, 255, 2);
    EXPECT_EQ(ValuesOf(flags), (Values{"", 0, 255, 2}));
}

TEST_F(OrvKvParameterListDoubleClickedNotificationTest, KeepsItsValuesWhenThoseItWasMadeWithChange) {
    CATString name("DIAMETER");
    int row = 3;
    unsigned char flag = 1;
    DoubleClicked notification(name, row, flag, flag);
    const auto change = [&] {
        name = "DEPTH";
        row = 4;
        flag = 0;
    };
    change();
    EXPECT_EQ(ValuesOf(notification), (Values{"DIAMETER", 3, 1, 1}));
}

TEST_F(OrvKvParameterListDoubleClickedNotificationTest, ReturnsItsSuccessesWithTheirPlace) {
    DoubleClicked notification("DIAMETER", 3, 1, 0);
    CATString name;
    int row = 0;
    unsigned char flag = 0;
    EXPECT_EQ(Observe([&] { return notification.GetParameterName(&name, &row); }), Success());
    EXPECT_EQ(Observe([&] { return notification.GetEditParameterFlag(flag); }), Success());
    EXPECT_EQ(Observe([&] { return notification.GetEditToleranceOrFittingFlag(flag); }), Success());
}

TEST_F(OrvKvParameterListDoubleClickedNotificationTest, FailsWithOneMessageWhicheverPointerIsNull) {
    DoubleClicked notification("DIAMETER", 3, 1, 0);
    ForEachChoiceOfNulls(2, [&](const auto& iIsNull) {
        CATString name("untouched");
        int row = -7;
        EXPECT_EQ(Observe([&] {
                      return notification.GetParameterName(Unless(iIsNull(0), name), Unless(iIsNull(1), row));
                  }),
                  Failure("oParameterName == NULL\n or oRowIndex == NULL"));
        EXPECT_STREQ(name.ConvertToChar(), "untouched");
        EXPECT_EQ(row, -7);
    });
}

TEST_F(OrvKvParameterListDoubleClickedNotificationTest, CopiesAllFourValues) {
    const DoubleClicked original("DIAMETER", 3, 1, 2);
    DoubleClicked copy(original);
    EXPECT_EQ(ValuesOf(copy), (Values{"DIAMETER", 3, 1, 2}));
}

TEST_F(OrvKvParameterListDoubleClickedNotificationTest, AssignsAllFourValues) {
    const DoubleClicked original("DIAMETER", 3, 1, 2);
    DoubleClicked other("DEPTH", 9, 0, 0);
    EXPECT_EQ(&(other = original), &other);
    EXPECT_EQ(ValuesOf(other), (Values{"DIAMETER", 3, 1, 2}));
}

} // namespace
