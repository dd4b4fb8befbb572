// The notification of the change to an ISO fit.

#include "OrvKvParameterEditISOFittingNotification.h"

#include "NotificationTest.h"
#include "host/LiveObjects.h"
#include "host/Parameters.h"

using namespace support;

namespace {

using Fitting = OrvKvParameterEditISOFittingNotification;
using OrvKvParameterEditISOFittingNotificationTest = NotificationTest<Fitting>;

CATICkeParm_var NewParameter(const char* iName) {
    return host::Parameters::NewLength(iName, 10.0);
}

TEST_F(OrvKvParameterEditISOFittingNotificationTest, GivesParameterGroupAndField) {
    const CATICkeParm_var diameter = NewParameter("DIAMETER");
    Fitting notification(diameter, "H", "H7");
    CATICkeParm_var parameter;
    CATString group;
    CATString field;
    EXPECT_EQ(Observe([&] { return notification.GetFittingInfo(&parameter, &group, &field); }), Success());
    EXPECT_TRUE(parameter == diameter);
    EXPECT_STREQ(group.ConvertToChar(), "H");
    EXPECT_STREQ(field.ConvertToChar(), "H7");
}

TEST_F(OrvKvParameterEditISOFittingNotificationTest, GivesEmptyTextsAndNoParameterWhereItHasNone) {
    Fitting notification(CATICkeParm_var(), "", "");
    CATICkeParm_var parameter = NewParameter("DIAMETER");
    CATString group("untouched");
    CATString field("untouched");
    EXPECT_EQ(Observe([&] { return notification.GetFittingInfo(&parameter, &group, &field); }), Success());
    EXPECT_TRUE(!parameter);
    EXPECT_STREQ(group.ConvertToChar(), "");
    EXPECT_STREQ(field.ConvertToChar(), "");
}

TEST_F(OrvKvParameterEditISOFittingNotificationTest, FailsWithOneMessageWhicheverPointerIsNull) {
    Fitting notification(NewParameter("DIAMETER"), "H", "H7");
    ForEachChoiceOfNulls(3, [&](const auto& iIsNull) {
        const CATICkeParm_var other = NewParameter("DEPTH");
        CATICkeParm_var parameter = other;
        CATString group("untouched");
        CATString field("untouched");
        EXPECT_EQ(Observe([&] {
                      return notification.GetFittingInfo(Unless(iIsNull(0), parameter),
                                                         Unless(iIsNull(1), group),
                                                         Unless(iIsNull(2), field));
                  }),
                  Failure("NULL == pParmToEdit"));
        EXPECT_TRUE(parameter == other);
        EXPECT_STREQ(group.ConvertToChar(), "untouched");
        EXPECT_STREQ(field.ConvertToChar(), "untouched");
    });
}

TEST_F(OrvKvParameterEditISOFittingNotificationTest, HoldsTheParameterAsLongAsItLives) {
    auto* const notification = new Fitting(NewParameter("DIAMETER"), "H", "H7");
    EXPECT_EQ(host::LiveObjects::Count("Parameter"), 1);
    notification->Release();
    EXPECT_EQ(host::LiveObjects::Count("Parameter"), 0);
}

} // namespace
