// Guarded blocks: a raised platform error becomes a result, a message or a trace; everything else passes or
// is ignored.

#include "OrvKvGuard.h"

#include "CATInputError.h"
#include "CATNotification.h"
#include "OrvKvErr.h"
#include "host/ErrorInspection.h"
#include "host/LiveObjects.h"
#include "support/ApplicationTest.h"
#include "support/Report.h"

#include <stdexcept>

using namespace support;

namespace {

const char source[] = "OrvKv9SubFrames.m/src/OrvKvTypeAndParameterSetSub";
const OrvKvSource here = {source, 40};
const char operation[] = "OrvKvTypeAndParameterSetSub::UnselectParameterSet";

const TraceLines caughtLines = {
    {"OrvKv9SubFrames", 3, "OrvKvTypeAndParameterSetSub::UnselectParameterSet -> caught ERROR"},
    {"OrvKv9SubFrames", 3, "error message: Error_Raised"}};

long Raise() {
    CATThrow(new CATInputError("Error_Raised", "RaisedCatalog"));
}

class OrvKvGuardTest : public ApplicationTest {};

TEST_F(OrvKvGuardTest, GivesTheResultOfTheBody) {
    EXPECT_EQ(
        Observe([] { return OrvKvGuard::Run(operation, here, [] { return OrvKvReport::Success(here); }); }),
        SuccessIn(source));
    EXPECT_EQ(OrvKvGuard::Run(operation, here, [] { return S_FALSE; }), S_FALSE);
    EXPECT_EQ(Traces().Take(), TraceLines());
}

TEST_F(OrvKvGuardTest, TurnsARaisedErrorIntoAFailingResultThatCarriesIt) {
    Report expected;
    expected.result = "E_FAIL";
    expected.returns = 1;
    expected.source = source;
    expected.traces = caughtLines;
    expected.errorClass = "CATInputError";
    expected.key = "Error_Raised";
    expected.catalogue = "RaisedCatalog";
    EXPECT_EQ(Observe([] { return OrvKvGuard::Run(operation, here, Raise); }), expected);
    EXPECT_EQ(host::ErrorInspection::LastReturn().line, 40);
    EXPECT_EQ(host::LiveObjects::Count("CATInputError"), 0);
}

TEST_F(OrvKvGuardTest, CarriesTheVeryErrorOfAFailingCallee) {
    const CATError* error = nullptr;
    const long result = OrvKvGuard::Run(operation, here, [&error]() -> long {
        const long failed = OrvKvReport::Failure("inner", here);
        error = host::ErrorInspection::LastError();
        OrvKvErr::Throw(failed);
    });
    EXPECT_EQ(result, E_FAIL);
    EXPECT_EQ(host::ErrorInspection::LastError(), error);
    CATError::CATCleanLastError();
    EXPECT_EQ(host::LiveObjects::Count("CATInternalError"), 0);
}

TEST_F(OrvKvGuardTest, ShowsARaisedErrorAtOnceWhereNothingIsReturned) {
    OrvKvGuard::RunShowing(operation, Raise);
    EXPECT_EQ(Traces().Take(), caughtLines);
    EXPECT_EQ(TakeMessages(), ShownMessages({{0x10000000, "Error", "Error_Raised", "CATInputError", 1024}}));
    EXPECT_EQ(host::ErrorInspection::LastError(), nullptr);
    EXPECT_EQ(host::LiveObjects::Count("CATInputError"), 0);
    RunIdle();
}

TEST_F(OrvKvGuardTest, ShowsNothingWhenTheBodyRunsThrough) {
    bool ran = false;
    OrvKvGuard::RunShowing(operation, [&ran] { ran = true; });
    EXPECT_TRUE(ran);
    EXPECT_EQ(Traces().Take(), TraceLines());
    EXPECT_EQ(TakeMessages(), ShownMessages());
}

// Which object comes out of a guarded body that raises iRaised.
CATBaseUnknown* PassedThrough(CATBaseUnknown* iRaised, bool iShowing) {
    const auto raise = [iRaised]() -> long { CATThrow(iRaised); };
    try {
        if (iShowing)
            OrvKvGuard::RunShowing(operation, raise);
        else
            OrvKvGuard::Run(operation, here, raise);
    } catch (CATBaseUnknown* caught) {
        return caught;
    }
    ADD_FAILURE() << "nothing came through";
    return nullptr;
}

TEST_F(OrvKvGuardTest, LetsAnObjectThatIsNoErrorPassUnchanged) {
    auto* const notification = new CATNotification();
    EXPECT_EQ(PassedThrough(notification, false), notification);
    EXPECT_EQ(PassedThrough(notification, true), notification);
    EXPECT_EQ(notification->Release(), 0U);
    EXPECT_EQ(PassedThrough(nullptr, false), nullptr);
    EXPECT_EQ(Traces().Take(), TraceLines());
    EXPECT_EQ(TakeMessages(), ShownMessages());
}

TEST_F(OrvKvGuardTest, ABlockThatIgnoresOthersGivesTheResultOfItsBodyAndTurnsErrorsIntoResults) {
    EXPECT_EQ(OrvKvGuard::RunIgnoringOthers(operation, here, [] { return S_FALSE; }), S_FALSE);
    const Report plain = Observe([] { return OrvKvGuard::Run(operation, here, Raise); });
    EXPECT_EQ(Observe([] { return OrvKvGuard::RunIgnoringOthers(operation, here, Raise); }), plain);
    EXPECT_EQ(plain.traces, caughtLines);
    EXPECT_EQ(host::LiveObjects::Count("CATInputError"), 0);
}

TEST_F(OrvKvGuardTest, ABlockThatIgnoresOthersReleasesAnObjectThatIsNoErrorAndSucceeds) {
    const auto raising = [](CATBaseUnknown* iRaised) {
        return Observe([iRaised] {
            return OrvKvGuard::RunIgnoringOthers(operation, here, [iRaised]() -> long { CATThrow(iRaised); });
        });
    };
    EXPECT_EQ(raising(new CATNotification()), SuccessIn(source));
    EXPECT_EQ(host::LiveObjects::Count("CATNotification"), 0);
    EXPECT_EQ(raising(nullptr), SuccessIn(source));
}

TEST_F(OrvKvGuardTest, AQuietBlockTracesAndReleasesAnError) {
    EXPECT_FALSE(OrvKvGuard::RunQuietly(operation, Raise));
    EXPECT_EQ(Traces().Take(), caughtLines);
    EXPECT_EQ(host::ErrorInspection::LastError(), nullptr);
    EXPECT_EQ(host::LiveObjects::Count("CATInputError"), 0);
}

TEST_F(OrvKvGuardTest, AQuietBlockReleasesAnObjectThatIsNoErrorWithoutATrace) {
    EXPECT_FALSE(OrvKvGuard::RunQuietly(operation, [] { CATThrow(new CATNotification()); }));
    EXPECT_EQ(host::LiveObjects::Count("CATNotification"), 0);
    EXPECT_FALSE(OrvKvGuard::RunQuietly(operation, [] { CATThrow(nullptr); }));
    EXPECT_EQ(Traces().Take(), TraceLines());
}

TEST_F(OrvKvGuardTest, AQuietBlockTellsThatItRanThrough) {
    bool ran = false;
    EXPECT_TRUE(OrvKvGuard::RunQuietly(operation, [&ran] { ran = true; }));
    EXPECT_TRUE(ran);
    EXPECT_EQ(Traces().Take(), TraceLines());
}

TEST_F(OrvKvGuardTest, LetsAnExceptionOfTheLanguagePass) {
    const auto raise = []() -> long { throw std::runtime_error("not ours"); };
    EXPECT_THROW(OrvKvGuard::Run(operation, here, raise), std::runtime_error);
    EXPECT_THROW(OrvKvGuard::RunShowing(operation, raise), std::runtime_error);
    EXPECT_THROW(OrvKvGuard::RunIgnoringOthers(operation, here, raise), std::runtime_error);
    EXPECT_THROW(OrvKvGuard::RunQuietly(operation, raise), std::runtime_error);
    EXPECT_EQ(Traces().Take(), TraceLines());
}

} // namespace
