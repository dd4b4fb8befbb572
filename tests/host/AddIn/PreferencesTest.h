#pragma once

// What the tests of the preferences share.

#include "support/AuditedTest.h"

#include "OrvIKvPreferencesSettings.h"
#include "host/Preferences.h"

#include <array>
#include <optional>

using Rectangle = std::array<int, 4>;

// Asks the service as a panel does. The preferences are kept in memory again afterwards.
class PreferencesTest : public support::AuditedTest {
  protected:
    void TearDown() override;

    // The service, or null.
    static OrvIKvPreferencesSettings_var Service();
    // What is stored; none when the service fails, which then has written nothing.
    static std::optional<Rectangle> Stored();
    static bool Store(const Rectangle& iRectangle);
};
