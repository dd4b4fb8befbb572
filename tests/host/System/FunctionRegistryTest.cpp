// Functions that are found by library and entry.

#include "host/FunctionRegistry.h"

#include "support/AuditedTest.h"

namespace {

void One() {}
int two = 0;
void Two() {
    ++two;
}

class FunctionRegistryTest : public support::AuditedTest {
  protected:
    void TearDown() override {
        host::FunctionRegistry::Clear();
        AuditedTest::TearDown();
    }
    CATFunctionAddress Find(const char* iLibrary, const char* iEntry) {
        return CATGetFunctionAddress(iLibrary, iEntry, nullptr, 1, 1, 0, &library);
    }

    CATLibraryHandle library;
};

} // namespace

TEST_F(FunctionRegistryTest, AFunctionIsFoundByBothNames) {
    host::FunctionRegistry::Register("Thread", "Edit", &One);
    host::FunctionRegistry::Register("Hole", "Edit", &Two);
    EXPECT_EQ(&One, Find("Thread", "Edit"));
    const CATFunctionAddress found = Find("Hole", "Edit");
    ASSERT_EQ(&Two, found);
    const int before = two;
    found();
    EXPECT_EQ(before + 1, two);
}

TEST_F(FunctionRegistryTest, TheLibraryIsToldEvenWhenItLacksTheEntry) {
    host::FunctionRegistry::Register("Thread", "Edit", &One);
    EXPECT_EQ(nullptr, Find("Thread", "Other"));
    EXPECT_NE(nullptr, library.library);
    EXPECT_EQ(nullptr, Find("Other", "Edit"));
    EXPECT_EQ(nullptr, library.library);
    EXPECT_EQ(&One, CATGetFunctionAddress("Thread", "Edit", nullptr, 1, 1, 0, nullptr));
}

TEST_F(FunctionRegistryTest, TheLastRegistrationCounts) {
    host::FunctionRegistry::Register("Thread", "Edit", &One);
    host::FunctionRegistry::Register("Thread", "Edit", &Two);
    EXPECT_EQ(&Two, Find("Thread", "Edit"));
}

TEST_F(FunctionRegistryTest, ARemovedFunctionIsGoneAlone) {
    host::FunctionRegistry::Register("Thread", "Edit", &One);
    host::FunctionRegistry::Register("Thread", "Show", &Two);
    host::FunctionRegistry::Remove("Thread", "Edit");
    host::FunctionRegistry::Remove("Thread", "Never");
    host::FunctionRegistry::Remove("Never", "Edit");
    EXPECT_EQ(nullptr, Find("Thread", "Edit"));
    EXPECT_EQ(&Two, Find("Thread", "Show"));
    host::FunctionRegistry::Clear();
    EXPECT_EQ(nullptr, Find("Thread", "Show"));
    EXPECT_EQ(nullptr, library.library);
}
