// Failures on request: counted, by number, by name, from the environment.

#include "host/FaultPoints.h"

#include "CATGetFunctionAddress.h"
#include "CATHandle.h"
#include "CATMsgCatalog.h"
#include "Recorders.h"
#include "host/FunctionRegistry.h"
#include "host/MessageCatalogs.h"
#include "support/AuditedTest.h"
#include "support/TemporaryFolder.h"

#include <cstdlib>

namespace {

using host::FaultPoints;

const char variable[] = "KELVANE_FAIL_CALL";

class FaultPointsTest : public support::AuditedTest {
  protected:
    void TearDown() override {
        unsetenv(variable);
        FaultPoints::Stop();
        host::FunctionRegistry::Clear();
        AuditedTest::TearDown();
    }

    // Which of the calls "one", "two", "one", "two", "one" fail: an x for each that does.
    static std::string Pattern() {
        std::string pattern;
        for (const char* name : {"one", "two", "one", "two", "one"})
            pattern += FaultPoints::Fails(name) ? 'x' : '.';
        return pattern;
    }
    static bool ArmFrom(const char* iValue) {
        setenv(variable, iValue, 1);
        return FaultPoints::ArmFromEnvironment();
    }
};

void Nothing() {}

} // namespace

TEST_F(FaultPointsTest, NothingFailsAndNothingIsCountedUntilAsked) {
    FaultPoints::StartCounting();
    FaultPoints::Stop();
    EXPECT_EQ(".....", Pattern());
    EXPECT_EQ(0, FaultPoints::Passed());
}

TEST_F(FaultPointsTest, CountingFailsNothing) {
    FaultPoints::StartCounting();
    EXPECT_EQ(".....", Pattern());
    EXPECT_EQ(5, FaultPoints::Passed());
    EXPECT_EQ((std::map<std::string, int>{{"one", 3}, {"two", 2}}), FaultPoints::PassedByName());
}

TEST_F(FaultPointsTest, TheCallOfThatNumberFailsAlone) {
    FaultPoints::FailCall(4);
    EXPECT_EQ("...x.", Pattern());
    EXPECT_EQ(".....", Pattern());
    EXPECT_EQ(10, FaultPoints::Passed());
}

TEST_F(FaultPointsTest, TheCallOfThatNumberAndNameFailsAlone) {
    FaultPoints::FailCall(2, "one");
    EXPECT_EQ("..x..", Pattern());
    FaultPoints::FailCall(2, "two");
    EXPECT_EQ("...x.", Pattern());
    FaultPoints::FailCall(1, "three");
    EXPECT_EQ(".....", Pattern());
}

TEST_F(FaultPointsTest, ACallThatFailsByNameAloneTakesNoPartInTheOtherCounts) {
    FaultPoints::FailCall(1);
    EXPECT_FALSE(FaultPoints::FailsByName("deep"));
    EXPECT_EQ(0, FaultPoints::Passed());
    EXPECT_EQ("x....", Pattern());
    FaultPoints::FailCall(2, "deep");
    EXPECT_FALSE(FaultPoints::FailsByName("other"));
    EXPECT_FALSE(FaultPoints::FailsByName("deep"));
    EXPECT_TRUE(FaultPoints::FailsByName("deep"));
    EXPECT_FALSE(FaultPoints::FailsByName("deep"));
    EXPECT_EQ(0, FaultPoints::Passed());
    FaultPoints::Stop();
    EXPECT_FALSE(FaultPoints::FailsByName("deep"));
}

TEST_F(FaultPointsTest, ArmingAnewStartsTheCountAnew) {
    FaultPoints::FailCall(4);
    EXPECT_TRUE(FaultPoints::Passed() == 0 && FaultPoints::PassedByName().empty());
    static_cast<void>(Pattern());
    FaultPoints::FailCall(1);
    EXPECT_EQ(0, FaultPoints::Passed());
    EXPECT_EQ("x....", Pattern());
}

TEST_F(FaultPointsTest, StoppingKeepsTheCounts) {
    FaultPoints::StartCounting();
    static_cast<void>(Pattern());
    FaultPoints::Stop();
    static_cast<void>(Pattern());
    EXPECT_EQ(5, FaultPoints::Passed());
}

TEST_F(FaultPointsTest, TheEnvironmentArmsByNumber) {
    EXPECT_TRUE(ArmFrom("3"));
    EXPECT_EQ("..x..", Pattern());
}

TEST_F(FaultPointsTest, TheEnvironmentArmsByNameAndNumber) {
    EXPECT_TRUE(ArmFrom("two:1"));
    EXPECT_EQ(".x...", Pattern());
}

TEST_F(FaultPointsTest, ANameInTheEnvironmentMayHaveAColon) {
    EXPECT_TRUE(ArmFrom("a:b:1"));
    EXPECT_TRUE(FaultPoints::Fails("a:b"));
}

TEST_F(FaultPointsTest, AnEmptyOrMissingVariableArmsNothing) {
    unsetenv(variable);
    EXPECT_TRUE(FaultPoints::ArmFromEnvironment());
    EXPECT_EQ(".....", Pattern());
    EXPECT_TRUE(ArmFrom(""));
    EXPECT_EQ(".....", Pattern());
}

TEST_F(FaultPointsTest, AValueThatMakesNoSenseIsRefusedAndArmsNothing) {
    for (const char* value : {"0", "-1", "x", "1x", " 1", "+1", "1.5", "two:", "two:0", "two:x", ":", ":3",
                              "99999999999999999999"}) {
        EXPECT_FALSE(ArmFrom(value)) << value;
        EXPECT_EQ(".....", Pattern()) << value;
    }
}

TEST_F(FaultPointsTest, AnInterfaceQueryFailsOnRequest) {
    CATBaseUnknown object;
    void* found = nullptr;
    FaultPoints::FailCall(1, "interface query");
    EXPECT_EQ(E_NOINTERFACE, object.QueryInterface(IID_CATBaseUnknown, &found));
    EXPECT_EQ(nullptr, found);
    EXPECT_EQ(S_OK, object.QueryInterface(IID_CATBaseUnknown, &found));
    object.Release();
}

TEST_F(FaultPointsTest, ANotificationCannotBeMadeOnRequest) {
    FaultPoints::FailCall(1, "notification allocation");
    EXPECT_EQ(nullptr, new SampleNotification);
    CATNotification* const made = new SampleNotification;
    ASSERT_NE(nullptr, made);
    made->Release();
}

TEST_F(FaultPointsTest, AMessageAndAResourceAreMissingOnRequest) {
    const support::TemporaryFolder folder;
    folder.Write("Texts.CATNls", "Key = \"text\";\n");
    folder.Write("Texts.CATRsc", "Key = \"icon\";\n");
    host::MessageCatalogs::AddFolder(folder.Path().string());
    FaultPoints::FailCall(1, "message look-up");
    EXPECT_STREQ("Key", CATMsgCatalog::BuildMessage("Texts", "Key").ConvertToChar());
    EXPECT_STREQ("text", CATMsgCatalog::BuildMessage("Texts", "Key").ConvertToChar());
    FaultPoints::FailCall(1, "resource look-up");
    EXPECT_EQ(std::nullopt, host::MessageCatalogs::Resource("Texts", "Key"));
    EXPECT_EQ("icon", host::MessageCatalogs::Resource("Texts", "Key"));
}

TEST_F(FaultPointsTest, AFunctionIsMissingOnRequest) {
    host::FunctionRegistry::Register("Library", "Entry", &Nothing);
    FaultPoints::FailCall(1, "function look-up");
    EXPECT_EQ(nullptr, CATGetFunctionAddress("Library", "Entry", nullptr, 1, 1, 0, nullptr));
    EXPECT_EQ(&Nothing, CATGetFunctionAddress("Library", "Entry", nullptr, 1, 1, 0, nullptr));
}
