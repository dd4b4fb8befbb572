// What a test may know of errors and results beyond the platform.

#include "host/ErrorInspection.h"

#include "support/AuditedTest.h"

namespace {

using host::ErrorInspection;
using host::ReturnRecord;

class ErrorInspectionTest : public support::AuditedTest {
  protected:
    void TearDown() override {
        CATError::CATCleanLastError();
        AuditedTest::TearDown();
    }
    static std::string Text(const ReturnRecord& iRecord) {
        return std::to_string(iRecord.kind) + " " + iRecord.file + ":" + std::to_string(iRecord.line);
    }
};

} // namespace

TEST_F(ErrorInspectionTest, TheLastErrorIsSeenWithoutAReference) {
    EXPECT_EQ(nullptr, ErrorInspection::LastError());
    auto* error = new CATError("Key");
    CATError::GetReturn(2, error, nullptr, "Panel.cpp", 3);
    EXPECT_EQ(error, ErrorInspection::LastError());
    EXPECT_EQ(2UL, error->AddRef());
    error->Release();
}

TEST_F(ErrorInspectionTest, EveryReturnIsCountedAndTheLastOneRemembered) {
    const int before = ErrorInspection::ReturnCount();
    CATError::GetReturn(1, nullptr, nullptr, "First.cpp", 10);
    EXPECT_EQ("1 First.cpp:10", Text(ErrorInspection::LastReturn()));
    CATError::GetReturn(0, nullptr, nullptr, "Second.cpp", 20);
    EXPECT_EQ("0 Second.cpp:20", Text(ErrorInspection::LastReturn()));
    CATError::GetReturn(2, new CATError("Key"), nullptr, nullptr, 30);
    EXPECT_EQ("2 :30", Text(ErrorInspection::LastReturn()));
    EXPECT_EQ(before + 3, ErrorInspection::ReturnCount());
}

TEST_F(ErrorInspectionTest, AnErrorRemembersWhereItWasReturnedFirst) {
    auto* error = new CATError("Key");
    EXPECT_EQ("0 :0", Text(ErrorInspection::Origin(*error)));
    CATError::GetReturn(2, error, nullptr, "Callee.cpp", 5);
    CATError* const again = CATError::CATGetLastError(E_FAIL);
    ASSERT_EQ(error, again);
    CATError::GetReturn(2, again, nullptr, "Caller.cpp", 50);
    EXPECT_EQ("2 Callee.cpp:5", Text(ErrorInspection::Origin(*error)));
}

TEST_F(ErrorInspectionTest, TheParametersAreReadBack) {
    auto* error = new CATError("Key");
    CATUnicodeString first("12");
    error->SetNLSParameters(2, &first, static_cast<CATUnicodeString*>(nullptr));
    EXPECT_EQ((std::vector<std::string>{"12", ""}), ErrorInspection::Parameters(*error));
    error->SetNLSParameters(0, nullptr);
    EXPECT_TRUE(ErrorInspection::Parameters(*error).empty());
    error->Release();
}
