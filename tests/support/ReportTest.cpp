// A report tells how an operation returned, and tells a failure that took over an older error.

#include "support/Report.h"

#include "CATInternalError.h"
#include "support/AuditedTest.h"

using namespace support;

namespace {

class ReportTest : public AuditedTest {};

TEST_F(ReportTest, TellsAReturnedSuccessFromAPlainOne) {
    EXPECT_EQ(Observe([] { return CATError::GetReturn(1, nullptr, nullptr, "module/src/Class", 7); }),
              SuccessIn("module/src/Class"));
    EXPECT_EQ(Observe([] { return S_OK; }), PlainSuccess());
    EXPECT_FALSE(SuccessIn("module/src/Class") == PlainSuccess());
    EXPECT_EQ(Observe([] { return S_FALSE; }).result, "1");
}

TEST_F(ReportTest, TellsAFailureThatLeavesAnOlderErrorLyingAbout) {
    EXPECT_EQ(Observe([] { return E_FAIL; }).key, "AnOlderError");
    EXPECT_EQ(Observe([] {
                  CATError::CATCleanLastError();
                  return E_FAIL;
              }),
              PlainFailure());
}

TEST_F(ReportTest, DescribesTheErrorBehindAFailure) {
    const Report report = Observe([] {
        auto* const error = new CATInternalError("Key", "Catalogue");
        CATUnicodeString text("text");
        error->SetNLSParameters(1, &text);
        host::Trace::Write({"Channel", 2, " at line 5 in file module/src/Class\n"});
        host::Trace::Write({"Channel", 2, " at line 6 in file module/src/Class\n"});
        return CATError::GetReturn(2, error, nullptr, "module/src/Class", 5);
    });
    Report expected;
    expected.result = "E_FAIL";
    expected.returns = 1;
    expected.source = "module/src/Class";
    expected.traces = {{"Channel", 2, " at line LINE in file module/src/Class\n"},
                       {"Channel", 2, " at line 6 in file module/src/Class\n"}};
    expected.errorClass = "CATInternalError";
    expected.key = "Key";
    expected.catalogue = "Catalogue";
    expected.parameters = {"text"};
    EXPECT_EQ(report, expected);
}

} // namespace
