#include "workbench/PanelNotificationReader.h"

#include "CATDlgNotifications.h"
#include "OrvKvGroupChangedNotification.h"
#include "OrvKvInvertFeatureNotification.h"
#include "OrvKvModifiedParameterInMultiListNotification.h"
#include "OrvKvParameterEditISOFittingFieldSelectNotification.h"
#include "OrvKvParameterEditISOFittingGroupSelectNotification.h"
#include "OrvKvParameterEditISOFittingNotification.h"
#include "OrvKvParameterEditUpdateISOFittingValuesNotification.h"
#include "OrvKvParameterListDoubleClickedNotification.h"
#include "OrvKvParameterSetSelectedNotification.h"
#include "OrvKvRemoveInsertionPointNotification.h"
#include "OrvKvSetInputGeometryNotification.h"
#include "OrvKvThreadDiameterNotification.h"
#include "OrvKvThreadInitNotification.h"
#include "OrvKvThreadPitchNotification.h"
#include "OrvKvThreadTakeNotification.h"
#include "OrvKvThreadTypeNotification.h"
#include "OrvKvTypeSelectedNotification.h"
#include "host/Parameters.h"
#include "support/AuditedTest.h"

#include <algorithm>
#include <filesystem>

namespace command {

class PanelNotificationReaderTest : public support::AuditedTest {
  protected:
    // What the reader makes of a notification, as text.
    template<class Notification, class... Values>
    static std::string Read(Values&&... iValues) {
        auto* const notification = new Notification(std::forward<Values>(iValues)...);
        return Take(*notification);
    }
    static std::string Take(CATNotification& ioNotification) {
        std::string values = session::ToLine(workbench::PanelNotificationReader().Read(ioNotification));
        ioNotification.Release();
        return values;
    }
};

TEST_F(PanelNotificationReaderTest, ReadsEveryValueOfEveryClass) {
    CATUnicodeString group("H");
    CATUnicodeString field("7");
    EXPECT_EQ(Read<OrvKvGroupChangedNotification>(3), R"({"group":3})");
    EXPECT_EQ(Read<OrvKvModifiedParameterInMultiListNotification>(CATString("D")),
              R"({"parameterName":"D"})");
    EXPECT_EQ(Read<OrvKvParameterEditISOFittingFieldSelectNotification>(group, field, 6.5),
              R"({"fittingGroup":"H","fittingField":"7","parameterValue":6.5})");
    EXPECT_EQ(Read<OrvKvParameterEditISOFittingGroupSelectNotification>(group, 6.5),
              R"({"fittingGroup":"H","parameterValue":6.5})");
    EXPECT_EQ(Read<OrvKvParameterEditUpdateISOFittingValuesNotification>(group, field, 6.5),
              R"({"fittingGroup":"H","fittingField":"7","parameterValue":6.5})");
    EXPECT_EQ(Read<OrvKvParameterListDoubleClickedNotification>(
                  CATString("D"), -1, static_cast<unsigned char>(1), static_cast<unsigned char>(0)),
              R"({"parameterName":"D","rowIndex":-1,"editParameter":true,"editToleranceOrFitting":false})");
    EXPECT_EQ(Read<OrvKvParameterSetSelectedNotification>(CATUnicodeString("größer")),
              R"({"parameterSetName":"größer"})");
    EXPECT_EQ(Read<OrvKvRemoveInsertionPointNotification>(4), R"({"position":4})");
    EXPECT_EQ(Read<OrvKvSetInputGeometryNotification>(2), R"({"inputGeometry":2})");
    EXPECT_EQ(Read<OrvKvInvertFeatureNotification>(), "{}");
}

TEST_F(PanelNotificationReaderTest, ReadsTheParameterToEditByItsName) {
    const CATICkeParm_var parameter = host::Parameters::NewLength("D", 10.0);
    EXPECT_EQ(Read<OrvKvParameterEditISOFittingNotification>(parameter, "H", "7"),
              R"({"parameterName":"D","fittingGroup":"H","fittingField":"7"})");
    EXPECT_EQ(Read<OrvKvParameterEditISOFittingNotification>(CATICkeParm_var(), "", ""),
              R"({"parameterName":null,"fittingGroup":"","fittingField":""})");
}

TEST_F(PanelNotificationReaderTest, ReadsTheThreadNotificationsAlike) {
    const auto yes = static_cast<unsigned char>(1);
    const auto no = static_cast<unsigned char>(0);
    EXPECT_EQ(Read<OrvKvThreadDiameterNotification>(yes, "Metric", "M10"),
              R"({"initMode":true,"type":"Metric","dimension":"M10","pitch":0.0})");
    EXPECT_EQ(Read<OrvKvThreadPitchNotification>(no, "Metric", "M10", 1.25),
              R"({"initMode":false,"type":"Metric","dimension":"M10","pitch":1.25})");
    EXPECT_EQ(Read<OrvKvThreadTypeNotification>(yes, "Metric"),
              R"({"initMode":true,"type":"Metric","dimension":"","pitch":0.0})");
    EXPECT_EQ(Read<OrvKvThreadInitNotification>(yes, yes, "Metric", "M10", 1.5),
              R"({"initMode":true,"type":"Metric","dimension":"M10","pitch":1.5,"activateMode":true})");
    EXPECT_EQ(Read<OrvKvThreadTakeNotification>("M10", 1.5, 8.376, 10.0, "RH", "Metric"),
              R"({"GB":"M10","P":1.5,"DK":8.376,"DG":10.0,"SR":"RH","ThrType":"Metric"})");
}

TEST_F(PanelNotificationReaderTest, ReadsTheChosenType) {
    auto* const selected = new OrvKvTypeSelectedNotification;
    EXPECT_EQ(selected->SetFeatureInformation(2, 5, "Plate", "Platte"), S_OK);
    EXPECT_EQ(Take(*selected), R"({"group":2,"type":5,"typeIdentifier":"Plate","typeName":"Platte"})");
}

TEST_F(PanelNotificationReaderTest, MakesNothingOfANotificationThatIsNotThePanels) {
    EXPECT_EQ(Read<CATDlgPushBActivateNotification>(), "{}");
}

// A class that is added to the library and forgotten in the reader is told here.
TEST_F(PanelNotificationReaderTest, KnowsEveryNotificationClassOfTheLibrary) {
    std::vector<std::string> exported;
    for (const auto& entry : std::filesystem::directory_iterator(KELVANE_LIBRARY_HEADERS)) {
        const std::string name = entry.path().stem().string();
        if (name.ends_with("Notification") || name.ends_with("Notif"))
            exported.push_back(name);
    }
    std::sort(exported.begin(), exported.end());
    EXPECT_EQ(exported.size(), 25U);
    EXPECT_EQ(workbench::PanelNotificationReader::Classes(), exported);
}

} // namespace command
