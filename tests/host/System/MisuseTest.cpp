// Misuse that the host survived, and operations that do not exist.

#include "host/Misuse.h"

#include "support/AuditedTest.h"

namespace {

class MisuseTest : public support::AuditedTest {};
class NotImplementedDeathTest : public support::AuditedTest {};

} // namespace

TEST_F(MisuseTest, WhatIsRecordedIsListedInOrderUntilCleared) {
    EXPECT_TRUE(host::Misuse::Recorded().empty());
    host::Misuse::Record("a widget has no parent");
    host::Misuse::Record("a widget has no name");
    EXPECT_EQ((std::vector<std::string>{"a widget has no parent", "a widget has no name"}),
              host::Misuse::Recorded());
    host::Misuse::Clear();
    EXPECT_TRUE(host::Misuse::Recorded().empty());
}

TEST_F(NotImplementedDeathTest, AMissingOperationStopsWithItsName) {
    EXPECT_DEATH(host::NotImplemented("CATDlgFile::Open"),
                 "CATDlgFile::Open is declared but not implemented");
}
