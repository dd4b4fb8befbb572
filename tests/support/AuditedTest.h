#pragma once

#include "Audit.h"

#include <gtest/gtest.h>

namespace support {

// Base of the fixtures: the audit looks at what each test leaves behind. Overrides of TearDown call this one
// last.
class AuditedTest : public testing::Test {
  protected:
    ~AuditedTest() override;
    void TearDown() override;

    // Lets one kind of leftover pass in this test; the reason stands in the test.
    void Allow(Leftover iLeftover, const std::string& iReason) { _audit.Allow(iLeftover, iReason); }

  private:
    Audit _audit; // the first member of every fixture: it sees all others come and go
};

} // namespace support
