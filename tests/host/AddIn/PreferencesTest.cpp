// The preferences service over the store in memory.

#include "PreferencesTest.h"

#include "host/Application.h"
#include "host/Component.h"
#include "host/FaultPoints.h"
#include "host/LiveObjects.h"

#include <limits>

namespace {

constexpr Rectangle untouched = {-7, -8, -9, -10};

} // namespace

void PreferencesTest::TearDown() {
    host::Preferences::KeepInMemory();
    AuditedTest::TearDown();
}

OrvIKvPreferencesSettings_var PreferencesTest::Service() {
    void* found = nullptr;
    if (FAILED(OrvKvGetOrvKvPreferencesSettings(IID_OrvIKvPreferencesSettings, &found)))
        return OrvIKvPreferencesSettings_var();
    return host::Adopt(static_cast<OrvIKvPreferencesSettings*>(found));
}

std::optional<Rectangle> PreferencesTest::Stored() {
    Rectangle read = untouched;
    const OrvIKvPreferencesSettings_var service = Service();
    if (!service)
        return std::nullopt;
    const HRESULT result = service->GetPanelRectangle(read[0], read[1], read[2], read[3]);
    if (result == S_OK)
        return read;
    EXPECT_EQ(result, E_FAIL);
    EXPECT_EQ(read, untouched) << "a failing call writes nothing";
    return std::nullopt;
}

bool PreferencesTest::Store(const Rectangle& iRectangle) {
    const OrvIKvPreferencesSettings_var service = Service();
    if (!service)
        return false;
    const HRESULT result =
        service->SetPanelRectangle(iRectangle[0], iRectangle[1], iRectangle[2], iRectangle[3]);
    EXPECT_TRUE(result == S_OK || result == E_FAIL);
    return result == S_OK;
}

namespace {

class MemoryPreferencesTest : public PreferencesTest {};

TEST_F(MemoryPreferencesTest, HoldNothingAtFirst) {
    EXPECT_EQ(host::Preferences::Place(), "memory");
    EXPECT_EQ(Stored(), std::nullopt);
    EXPECT_EQ(host::Preferences::Problem(), "");
}

TEST_F(MemoryPreferencesTest, GiveBackWhatWasStoredLast) {
    const int most = std::numeric_limits<int>::max();
    const int least = std::numeric_limits<int>::min();
    for (const Rectangle& rectangle :
         {Rectangle{120, 80, 640, 670}, Rectangle{0, 0, 0, 0}, Rectangle{most, least, -1, 1}}) {
        EXPECT_TRUE(Store(rectangle));
        EXPECT_EQ(Stored(), rectangle);
    }
}

TEST_F(MemoryPreferencesTest, StartEmptyAgainWhenTheyAreAskedFor) {
    Store({1, 2, 3, 4});
    host::Preferences::KeepInMemory();
    EXPECT_EQ(Stored(), std::nullopt);
}

TEST_F(MemoryPreferencesTest, OutliveAnApplication) {
    Store({1, 2, 3, 4});
    { const host::Application application; }
    EXPECT_EQ(Stored(), (Rectangle{1, 2, 3, 4}));
}

TEST_F(MemoryPreferencesTest, HaveNoServiceOnceTheyAreWithdrawn) {
    const OrvIKvPreferencesSettings_var before = Service();
    host::Preferences::Withdraw();
    EXPECT_EQ(host::Preferences::Place(), "");
    EXPECT_EQ(host::Preferences::Problem(), "");
    void* found = this;
    EXPECT_EQ(OrvKvGetOrvKvPreferencesSettings(IID_OrvIKvPreferencesSettings, &found), E_FAIL);
    EXPECT_EQ(found, nullptr);
    Rectangle read = untouched;
    EXPECT_EQ(before->GetPanelRectangle(read[0], read[1], read[2], read[3]), E_FAIL);
    EXPECT_EQ(before->SetPanelRectangle(1, 2, 3, 4), E_FAIL);
    EXPECT_EQ(read, untouched);
    host::Preferences::KeepInMemory();
    EXPECT_TRUE(Store({1, 2, 3, 4}));
    EXPECT_EQ(before->GetPanelRectangle(read[0], read[1], read[2], read[3]), S_OK)
        << "it asks the store in use";
}

TEST_F(MemoryPreferencesTest, GiveTheServiceUnderItsInterfacesAloneWithAReferenceToRelease) {
    const int living = host::LiveObjects::Count("PreferencesSettings");
    for (const IID& interface : {IID_OrvIKvPreferencesSettings, IID_CATBaseUnknown}) {
        void* found = nullptr;
        ASSERT_EQ(OrvKvGetOrvKvPreferencesSettings(interface, &found), S_OK);
        EXPECT_EQ(host::LiveObjects::Count("PreferencesSettings"), living + 1);
        static_cast<CATBaseUnknown*>(found)->Release();
        EXPECT_EQ(host::LiveObjects::Count("PreferencesSettings"), living);
    }
    void* found = this;
    EXPECT_EQ(OrvKvGetOrvKvPreferencesSettings(CATIidFromName("CATIAlias"), &found), E_NOINTERFACE);
    EXPECT_EQ(found, nullptr);
    EXPECT_EQ(OrvKvGetOrvKvPreferencesSettings(IID_OrvIKvPreferencesSettings, nullptr), E_FAIL);
    EXPECT_EQ(host::LiveObjects::Count("PreferencesSettings"), living);
}

TEST_F(MemoryPreferencesTest, PassTheirFaultPointWhenTheServiceIsAskedForReadAndWritten) {
    ASSERT_TRUE(Store({1, 2, 3, 4}));
    host::FaultPoints::StartCounting();
    Stored();
    Store({1, 2, 3, 4});
    EXPECT_EQ(host::FaultPoints::PassedByName()["preferences"], 4);
    for (const int call : {1, 2}) {
        host::FaultPoints::FailCall(call, "preferences");
        EXPECT_EQ(Stored(), std::nullopt) << call;
        host::FaultPoints::FailCall(call, "preferences");
        EXPECT_FALSE(Store({5, 6, 7, 8})) << call;
    }
    host::FaultPoints::FailCall(1, "preferences");
    void* found = this;
    EXPECT_EQ(OrvKvGetOrvKvPreferencesSettings(IID_OrvIKvPreferencesSettings, &found), E_FAIL);
    EXPECT_EQ(found, nullptr);
    host::FaultPoints::Stop();
    EXPECT_EQ(Stored(), (Rectangle{1, 2, 3, 4}));
}

} // namespace
