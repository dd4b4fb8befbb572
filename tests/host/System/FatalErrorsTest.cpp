// Who hears of a fatal error.

#include "host/FatalErrors.h"

#include "CATFatalError.h"
#include "support/AuditedTest.h"

namespace {

std::vector<std::string> heard;

void Hear(const char* iText, const char* iFile, int iLine) {
    heard.push_back(std::string(iText) + " " + iFile + " " + std::to_string(iLine));
}

void HearToo(const char*, const char*, int) {
    heard.push_back("other");
}

class FatalErrorsTest : public support::AuditedTest {
  protected:
    void TearDown() override {
        host::FatalErrors::SetHandler(nullptr);
        heard.clear();
        AuditedTest::TearDown();
    }
};
typedef FatalErrorsTest FatalErrorsDeathTest;

} // namespace

TEST_F(FatalErrorsTest, TheHandlerHearsTextAndPlace) {
    EXPECT_EQ(nullptr, host::FatalErrors::SetHandler(&Hear));
    CATFatalError("no memory", "Frame.cpp", 7);
    CATFatalError(nullptr, nullptr, 0);
    EXPECT_EQ((std::vector<std::string>{"no memory Frame.cpp 7", "  0"}), heard);
}

TEST_F(FatalErrorsTest, TheHandlerBeforeIsGivenBack) {
    host::FatalErrors::SetHandler(&Hear);
    EXPECT_EQ(&Hear, host::FatalErrors::SetHandler(&HearToo));
    CATFatalError("no memory", "Frame.cpp", 7);
    EXPECT_EQ(std::vector<std::string>{"other"}, heard);
    EXPECT_EQ(&HearToo, host::FatalErrors::SetHandler(nullptr));
}

TEST_F(FatalErrorsDeathTest, WithoutAHandlerTheProcessEnds) {
    host::FatalErrors::SetHandler(&Hear);
    host::FatalErrors::SetHandler(nullptr);
    EXPECT_DEATH(CATFatalError("no memory", "Frame.cpp", 7), "no memory .Frame.cpp:7.");
}
