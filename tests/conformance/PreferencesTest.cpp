// The preferences service of the add-in.

#include "OrvIKvPreferencesSettings.h"

#include "Samples.h"

namespace {

// What was stored before a test is stored again after it, where something was.
class Preferences : public PlatformTest {
  protected:
    Preferences() { _hadPlace = SUCCEEDED(service->GetPanelRectangle(_left, _top, _third, _fourth)); }
    ~Preferences() override {
        if (_hadPlace) {
            EXPECT_EQ(S_OK, service->SetPanelRectangle(_left, _top, _third, _fourth));
        }
    }

    static OrvIKvPreferencesSettings* Get() {
        void* found = nullptr;
        EXPECT_EQ(S_OK, OrvKvGetOrvKvPreferencesSettings(IID_OrvIKvPreferencesSettings, &found));
        return static_cast<OrvIKvPreferencesSettings*>(found);
    }

    const Owned<OrvIKvPreferencesSettings> service = Owned<OrvIKvPreferencesSettings>(Get());

  private:
    int _left = 0;
    int _top = 0;
    int _third = 0;
    int _fourth = 0;
    bool _hadPlace = false;
};

} // namespace

CERTAIN(Preferences, TheFunctionGivesTheInterfaceThatIsAskedFor) {
    EXPECT_NE(nullptr, service.get());
}

ASSUMED(Preferences, TheFunctionFailsWithANullPointerForAnotherInterface, "open: the caller tests both") {
    void* found = this;
    EXPECT_TRUE(FAILED(OrvKvGetOrvKvPreferencesSettings(IID_SampleInterface, &found)));
    EXPECT_EQ(nullptr, found);
}

CERTAIN(Preferences, FourNumbersAreStoredAndReadBack) {
    for (const int sign : {1, -1}) {
        ASSERT_EQ(S_OK, service->SetPanelRectangle(sign * 120, sign * 80, 640, 670));
        int left = 0;
        int top = 0;
        int third = 0;
        int fourth = 0;
        ASSERT_EQ(S_OK, service->GetPanelRectangle(left, top, third, fourth));
        EXPECT_EQ(sign * 120, left);
        EXPECT_EQ(sign * 80, top);
        EXPECT_EQ(640, third);
        EXPECT_EQ(670, fourth);
    }
}

CERTAIN(Preferences, WhatIsStoredOutlivesTheInterfaceThatStoredIt) {
    ASSERT_EQ(S_OK, Owned<OrvIKvPreferencesSettings>(Get())->SetPanelRectangle(7, 8, 9, 10));
    int left = 0;
    int other = 0;
    EXPECT_EQ(S_OK, Owned<OrvIKvPreferencesSettings>(Get())->GetPanelRectangle(left, other, other, other));
    EXPECT_EQ(7, left);
}
