// Results of operations: how a success and the kinds of failure are returned, traced and explained.

#include "OrvKvReport.h"

#include "CATInputError.h"
#include "OrvKvError.h"
#include "host/ErrorInspection.h"
#include "host/LiveObjects.h"
#include "support/AuditedTest.h"
#include "support/Report.h"

using namespace support;

namespace {

const char source[] = "OrvKv9DialogWindows.m/src/OrvKvMainPanel";
const OrvKvSource here = {source, 17};

// The failing result of a callee that explains itself.
long FailAsCallee() {
    auto* const error = new CATInputError("Error_Callee", "CalleeCatalog");
    CATUnicodeString first("one");
    CATUnicodeString second("two");
    error->SetNLSParameters(2, &first, &second);
    return CATError::GetReturn(CATReturnKindError, error, nullptr, "Callee.m/src/Callee", 3);
}

class OrvKvReportTest : public AuditedTest {};

TEST_F(OrvKvReportTest, ReturnsASuccessWithItsPlaceAndWithoutATrace) {
    EXPECT_EQ(Observe([] { return OrvKvReport::Success(here); }), SuccessIn(source));
    EXPECT_EQ(host::ErrorInspection::LastReturn().kind, 1);
    EXPECT_EQ(host::ErrorInspection::LastReturn().line, 17);
}

TEST_F(OrvKvReportTest, LeavesTheLastErrorAloneOnASuccess) {
    FailAsCallee();
    EXPECT_EQ(OrvKvReport::Success(here), S_OK);
    ASSERT_NE(host::ErrorInspection::LastError(), nullptr);
    EXPECT_STREQ(host::ErrorInspection::LastError()->GetMsgId(), "Error_Callee");
    CATError::CATCleanLastError();
}

TEST_F(OrvKvReportTest, TracesAFailureThenItsPlaceAndAttachesANewError) {
    TraceRecorder traces;
    EXPECT_EQ(Observe([] { return OrvKvReport::Failure("Error in setting the groups.", here); }),
              FailureIn(source, "Error in setting the groups."));
    EXPECT_EQ(host::ErrorInspection::LastReturn().kind, 2);
    EXPECT_EQ(
        traces.Take(),
        TraceLines({{"OrvKv9Errors", 1, "Error in setting the groups."},
                    {"OrvKv9Errors", 1, " at line 17 in file OrvKv9DialogWindows.m/src/OrvKvMainPanel\n"}}));
}

TEST_F(OrvKvReportTest, FailsWithTheNegativeValueOfThePlatform) {
    const long result = OrvKvReport::Failure("no", here);
    EXPECT_LT(result, 0);
    EXPECT_EQ(static_cast<int>(result), static_cast<int>(0x80004005U));
    CATError::CATCleanLastError();
}

TEST_F(OrvKvReportTest, KeepsAMessageWithPercentSignsAndLineBreaksAsItIs) {
    EXPECT_EQ(Observe([] { return OrvKvReport::Failure("50 %s\n or 60 %ld", here); }),
              FailureIn(source, "50 %s\n or 60 %ld"));
}

TEST_F(OrvKvReportTest, MakesAnErrorOfTheLibrarysOwnClass) {
    static_assert(std::is_base_of<CATInternalError, OrvKvError>::value, "an internal error of the platform");
    static_assert(sizeof(OrvKvError) == sizeof(CATInternalError), "nothing is added");
    OrvKvReport::Failure("no", here);
    EXPECT_NE(dynamic_cast<const OrvKvError*>(host::ErrorInspection::LastError()), nullptr);
    EXPECT_EQ(host::ErrorInspection::LastError()->IsAKindOf("CATInternalError"), 1);
    CATError::CATCleanLastError();
    EXPECT_EQ(host::LiveObjects::Count("CATInternalError"), 0);
}

TEST_F(OrvKvReportTest, KeepsTheErrorOfAFailingCalleeUnchanged) {
    Report expected = FailureIn(source, "Error in setting the types.");
    expected.returns = 2;
    expected.errorClass = "CATInputError";
    expected.key = "Error_Callee";
    expected.catalogue = "CalleeCatalog";
    expected.parameters = {"one", "two"};
    EXPECT_EQ(Observe([] {
                  return OrvKvReport::FailureAfter(FailAsCallee(), "Error in setting the types.", here);
              }),
              expected);
}

TEST_F(OrvKvReportTest, KeepsTheVeryErrorObjectThroughEveryPanelAboveTheCallee) {
    const long first = FailAsCallee();
    const CATError* const error = host::ErrorInspection::LastError();
    const long second = OrvKvReport::FailureAfter(first, "inner", here);
    EXPECT_EQ(OrvKvReport::FailureAfter(second, "outer", here), E_FAIL);
    EXPECT_EQ(host::ErrorInspection::LastError(), error);
    EXPECT_EQ(host::ErrorInspection::Origin(*error).file, "Callee.m/src/Callee");
    CATError::CATCleanLastError();
    EXPECT_EQ(host::LiveObjects::Count("CATInputError"), 0);
}

TEST_F(OrvKvReportTest, MakesAnErrorWhereTheCalleeLeftNone) {
    EXPECT_EQ(Observe([] { return OrvKvReport::FailureAfter(OrvKvReport::SilentFailure(), "outer", here); }),
              FailureIn(source, "outer"));
}

TEST_F(OrvKvReportTest, MakesAnErrorWhenTheCalleeDidNotFail) {
    EXPECT_EQ(Observe([] { return OrvKvReport::FailureAfter(S_FALSE, "outer", here); }),
              FailureIn(source, "outer"));
}

TEST_F(OrvKvReportTest, ReturnsACaughtErrorWithoutTracingItAgain) {
    Report expected = PlainFailure();
    expected.returns = 1;
    expected.source = source;
    expected.errorClass = "CATInputError";
    expected.key = "Caught";
    expected.catalogue = "CalleeCatalog";
    EXPECT_EQ(
        Observe([] { return OrvKvReport::FailureWith(new CATInputError("Caught", "CalleeCatalog"), here); }),
        expected);
}

TEST_F(OrvKvReportTest, FailsSilentlyAndForgetsAnOlderError) {
    EXPECT_EQ(Observe([] { return OrvKvReport::SilentFailure(); }), PlainFailure());
    FailAsCallee();
    EXPECT_EQ(OrvKvReport::SilentFailure(), E_FAIL);
    EXPECT_EQ(host::ErrorInspection::LastError(), nullptr);
}

static const char SourceFile[] = "OrvKv9SubFrames.m/src/OrvKvTypeSub";

TEST_F(OrvKvReportTest, NamesThePlaceWhereHereIsSaid) {
    const int line = __LINE__ + 1;
    const OrvKvSource place = OrvKvHere;
    EXPECT_STREQ(place.file, "OrvKv9SubFrames.m/src/OrvKvTypeSub");
    EXPECT_EQ(place.line, line);
}

} // namespace
